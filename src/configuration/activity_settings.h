// What happens on the activity settings, the first screen of a new or edited configuration. The
// boxes of type, category and medium are in activity_boxes.h.
#pragma once

#include "platform/database.h"
#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// Lists the organizations. A FatalFailure when the database cannot be reached.
void load_activity_settings(Screens& screens, Database& database);

// Takes the clicked organization, and blanks on this and the following screens what depended on the
// one before; the second project and the trip's number stay. Lists the organization's trips: a
// FatalFailure when the database cannot be reached.
void MSHFlexOrganization_Click(Screens& screens, Database& database);

void lstTimeZone_Click(FrmPreferencesSettings& settings);

// Goes on to the sample collection for a sample, and to the sample options for anything else, and
// fills the lists of that screen. A FatalFailure, with this screen still up, when the database
// cannot be reached.
void cmdSave_Click(Screens& screens, FrmPreferencesSettings& settings, Database& database);

// Back to the manager's options. Nothing is saved.
void mnuExit_Click(Screens& screens, FrmPreferencesSettings& settings);

// The choice of a trip and the list of its stations, whose panels nothing shows.
void MSHFlexTrip_Click(FrmPreferencesSettings& settings);

// Saves the ids of the stations, one a line behind the trip's, in a file that is named after the
// trip, in the root of the workspace. A FatalFailure when the file cannot be written.
void cmdPrint_Click(const FrmPreferencesSettings& settings, Files& files);
void cmdStationCheck_Click(FrmPreferencesSettings& settings);

}  // namespace brooklander
