// What happens on the sample collection: procedure, gear, and the gear's configuration.
#pragma once

#include "platform/database.h"
#include "screens.h"

namespace brooklander {

// Takes the clicked procedure and lists the gear of the type that it names. A procedure that names
// none needs no gear; with any other, gear is compulsory. A FatalFailure when the database cannot
// be reached, here and in the next.
void MSHFlexSampleCollection_Click(Screens& screens, Database& database);

// Takes the clicked gear and lists how the organization sets it up: one of these must be chosen
// where there are any.
void MSHFlexGear_Click(Screens& screens, Database& database);

void MSHFlexGearConfiguration_Click(FrmPreferencesSamples& samples);

// Opens the choice for a configuration that is edited; what its file holds stands until a procedure
// is clicked.
void cmdChange_Click(FrmPreferencesSamples& samples);

// Both go on to the sample options and fill their lists. A FatalFailure when the database cannot be
// reached: Continue is still here then, and Keep there.
void cmdContinue_Click(Screens& screens, Database& database);
void cmdKeep_Click(Screens& screens, Database& database);

// Back to the activity settings; what was chosen stays.
void mnuExit_Click(Screens& screens, FrmPreferencesSamples& samples);

}  // namespace brooklander
