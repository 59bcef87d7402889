// What happens on the sample options, the last screen before a configuration is written: depth
// unit, projects, person and sample transport.
#pragma once

#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// Feet and meters switch each other off; with neither there is no unit.
void chkFeet_Click(FrmPreferencesSampleOption& options);
void chkMeters_Click(FrmPreferencesSampleOption& options);

// Takes the clicked project, as the first one while there is none, else as the second. The blank
// row of an organization without projects is none.
void MSHFlexProjects_Click(FrmPreferencesSampleOption& options);
void cmdProjectClear_Click(FrmPreferencesSampleOption& options);
void cmdProjectTwoClear_Click(FrmPreferencesSampleOption& options);

void MSHFlexPerson_Click(FrmPreferencesSampleOption& options);
void MSHFlexSampleTransportation_Click(FrmPreferencesSampleOption& options);
void cmdSampleTransportClear_Click(FrmPreferencesSampleOption& options);

// Writes the configuration file and its notice, and leads on: to the characteristics of the file
// for one that is edited, to the choice of a sample file for a new one. A FatalFailure when one of
// the files cannot be written, which leaves the configuration as far as it was written.
void cmdNext_Click(Screens& screens, Files& files);

// Back to the activity settings for a field activity, to the sample collection for anything else.
void mnuExit_Click(Screens& screens, FrmPreferencesSampleOption& options);

}  // namespace brooklander
