// Taking the screens of the configurations back to where work on one begins, and what else several
// subjects take back.
#pragma once

#include "screens.h"

namespace brooklander {

// Each takes one screen back to no choice at all: its value labels empty, its tick boxes at 0, in
// that order, and the button that goes on disabled, which waits for choices. A box that was ticked
// runs its handler, as it does whenever it goes off; what the handlers hide and disable is theirs.
//
// A value label is one that a step fills: what was chosen in a grid or a list, and the name of the
// configuration file. Labels that only say what stands beside them are captions and keep their
// text ("Trip:", `lblTripCaption`; "Gear Type:", `lblGearCaption`), and so do panels, however much
// their title looks like a value. Grids, lists, text boxes, options, what is shown, and what else
// is enabled stay as they are: the steps that lead to a screen set those.

// The organization, the trip with its name and number, the time zone, and the nine boxes of
// activity type, category and medium.
void reset(FrmPreferencesSettings& settings);

// The procedure, the gear with its type, and the gear's configuration. The screen has no boxes, and
// the comments on the gear are a text box.
void reset(FrmPreferencesSamples& samples);

// The depth unit, both projects, the person, the sample transport, and the three boxes: feet,
// meters, characteristics.
void reset(FrmPreferencesSampleOption& options);

// The start screen knows of no file whether it is a data logger's.
void clear_logger_options(FrmStart& start);

// None of the manager's four options is chosen.
void clear_options(FrmPreferences& preferences);

// The manager shows no file: neither the one that is converted, nor a list to choose from, nor a
// name to give, nor what one holds with what can be done to it, nor a word or a question about one.
void hide_files(FrmPreferences& preferences);

}  // namespace brooklander
