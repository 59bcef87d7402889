// The boxes of activity type, category and medium, which are used like options, with the further
// state that none of a kind is ticked.
#pragma once

#include <array>

#include "screens.h"

namespace brooklander {

using ActivityBox = TickBox FrmPreferencesSettings::*;

inline constexpr std::array<ActivityBox, 9> activity_boxes{
    &FrmPreferencesSettings::chkSample,     &FrmPreferencesSettings::chkField,
    &FrmPreferencesSettings::chkRoutine,    &FrmPreferencesSettings::chkHabitat,
    &FrmPreferencesSettings::chkWater,      &FrmPreferencesSettings::chkAir,
    &FrmPreferencesSettings::chkSediment,   &FrmPreferencesSettings::chkSoil,
    &FrmPreferencesSettings::chkBiological,
};

// Every one of them, whenever it goes on or off, by a user or by a step. It switches other boxes
// off, which runs this for each of those before the box's own captions are set.
//
// Soil and biological stay ticked under another activity type, and whether one may continue stays
// with them.
void activity_box_Click(Screens& screens, ActivityBox box);

}  // namespace brooklander
