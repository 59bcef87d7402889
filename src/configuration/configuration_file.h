// The configuration file: the activity values that are stamped on every result of a file.
//
// Each line is a key, padded with blanks to 19 bytes, an equals sign, and the value from position
// 21 on. There is no quoting and no order that a reader asks for.
#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "screens.h"
#include "shared/text_reading.h"

namespace brooklander {

inline constexpr std::size_t configuration_key_width = 19;

// What a reader takes of a line. It does not look at position 20.
inline constexpr Cut configuration_key_cut{1, configuration_key_width};
inline constexpr Cut configuration_value_cut{21, 50};

// As many files as the folder of the configurations may hold.
inline constexpr std::size_t most_configurations = 100;

// As many items as the display reads of one file.
inline constexpr std::size_t most_displayed_items = 101;

// What the readers differ in: the panel that values go to, a second label for the medium, and how
// many items there may be.
struct ConfigurationTargets {
    ConfigurationPanel& panel;
    Label* medium = nullptr;
    std::size_t most_items = std::string_view::npos;
};

// Empties the labels of the panel, its file name too. Activity type and depth unit stay: a file
// without those keys shows what the file before it had.
void clear_values(ConfigurationPanel& panel);

// Reads all items of a file's text into the labels, a later item over an earlier one. Items end at
// commas as at line ends, so that a value is cut at its first comma. Items that begin with no key
// are passed over, and so are letters of another case. Values are taken as they stand, but for the
// organization's, which is trimmed. The habitat definition goes to the holder and, with every
// item, from there to the panel. One item too many is a FatalFailure, those before it read.
void read_configuration(std::string_view file_text, const ConfigurationTargets& targets,
                        FrmPreferencesCharacteristics& holder);

// The name under which the configuration in work is saved: the typed name with ".txt" behind it,
// or the selected file's as it stands where none is typed. With neither, ".txt".
std::string configuration_name(const FrmPreferences& preferences);

// Writes the configuration in work to a file that was opened for it. Without any project a
// FatalFailure, with the lines before those of the projects in the file: the buttons that lead here
// wait for a project.
void write_configuration(const Screens& screens, OutputFile& file);

}  // namespace brooklander
