// The folder tree that all of the program's files lie in, and its reference lists.
#pragma once

#include <string_view>

#include "platform/files.h"
#include "shared/fields.h"

namespace brooklander {

namespace workspace {

// The root is made by the installation and lies in the same place everywhere. Folders end in a
// backslash here, ready for a name behind them.
inline constexpr std::string_view root = "c:\\brooklander";
inline constexpr std::string_view converted_files = "c:\\brooklander\\voxoutfiles\\";
inline constexpr std::string_view batch_files = "c:\\brooklander\\batchoutfiles\\";
inline constexpr std::string_view logger_files = "c:\\brooklander\\logoutfiles\\";
inline constexpr std::string_view configurations = "c:\\brooklander\\preferences\\";
inline constexpr std::string_view characteristics = "c:\\brooklander\\characteristics\\";
inline constexpr std::string_view notices = "c:\\brooklander\\voxconfiguration\\";
inline constexpr std::string_view persons = "c:\\brooklander\\person\\";
inline constexpr std::string_view help_file = "c:\\brooklander\\BROOKLANDER.HLP";

// Of an older installation; the logger screens that name them have kept them.
inline constexpr std::string_view older_root = "c:\\fenwater";
inline constexpr std::string_view portable_logger_files = "c:\\fenwater\\batchfile\\";
inline constexpr std::string_view older_help_file = "c:\\fenwater\\FENwater.HLP";

}  // namespace workspace

// Makes the root the current directory, and in it the folders that the program writes to. A root
// that is missing is a FatalFailure; a folder that cannot be made is passed over, and shows when a
// file in it is opened.
void enter_workspace(Files& files);

// How a reference list's file is taken apart: whole lines, or items between commas and line ends.
enum class ReferenceItems { lines, comma_items };

// Refills a list from a file of the root, in the file's order; an empty line becomes an empty
// entry. A file that cannot be opened is a FatalFailure.
void read_reference_list(const Files& files, std::string_view path, ReferenceItems items,
                         EntryList& list);

// The four lists that characteristics are described with. All are read as lines but the sample
// fractions, whose lines a comma divides.
struct ReferenceLists {
    EntryList& fractions;
    EntryList& statistic_types;
    EntryList& durations;
    EntryList& temperatures;
};
void read_reference_lists(const Files& files, const ReferenceLists& lists);

}  // namespace brooklander
