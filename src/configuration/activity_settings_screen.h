// The activity settings: organization, activity type, category, medium, time zone.
#pragma once

#include "shared/data_source.h"

namespace brooklander {

struct FrmPreferencesSettings : Screen {
    explicit FrmPreferencesSettings(Desk& desk)
        : Screen(desk, "frmPreferencesSettings", "Configuration File Settings") {
        AdodcOrganization.bind(MSHFlexOrganization);
        AdodcTrip.bind(MSHFlexTrip, bound::trips);
        AdodcStations.bind(MSHFlexStations);
    }

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};

    Panel Frame1{*this, "Frame1", "Configuration File:"};
    Label lblFileName{Frame1, "lblFileName"};

    Panel frameView{*this, "frameView", "Select Organization"};
    DataSource AdodcOrganization{frameView, "AdodcOrganization"};
    Grid MSHFlexOrganization{frameView, "MSHFlexOrganization"};
    Label lblOrganizationCaption{frameView, "lblOrganizationCaption", "Organization:"};
    Label lblSelectedOrganization{frameView, "lblSelectedOrganization"};
    Label lblOrganizationName{frameView, "lblOrganizationName"};

    // Nothing reads the two trip options.
    Panel frameTripOptions{*this, "frameTripOptions", "Trip Options", hidden};
    Option optVOXTrip{frameTripOptions, "optVOXTrip", "Let VOX Create A Trip (Recommended)"};
    Option optKeldarTrip{frameTripOptions, "optKeldarTrip", "Select Trip From KELDAR"};
    Panel frameTripMessage{
        frameTripOptions, "frameTripMessage",
        "Be Sure To Set The Instructions In VOX To Create A Trip And Station Visits."};

    // The choice of a trip and the list of its stations are closed: no step shows their panels.
    Panel frameTrip{*this, "frameTrip", "Select Trip From KELDAR", hidden};
    DataSource AdodcTrip{frameTrip, "AdodcTrip"};
    Grid MSHFlexTrip{frameTrip, "MSHFlexTrip", {.columns = 4}};
    Label lblTripCaption{frameTrip, "lblTripCaption", "Trip:"};
    Label lblTrip{frameTrip, "lblTrip"};
    Label lblTripName{frameTrip, "lblTripName"};
    Label lblTripNumber{frameTrip, "lblTripNumber", {}, hidden};

    Panel frameStations{*this, "frameStations", "View Stations Visited On Trip", hidden};
    DataSource AdodcStations{frameStations, "AdodcStations"};
    Grid MSHFlexStations{frameStations, "MSHFlexStations"};
    List lstStations{frameStations, "lstStations"};
    Button cmdPrint{frameStations, "cmdPrint", "Save List"};
    Button cmdStationCheck{frameStations, "cmdStationCheck", "Close"};
    Label lblSaveList{frameStations, "lblSaveList",
                      "<= Save this list.  Click HELP for printing details"};
    Label lblMissingStations{
        frameStations, "lblMissingStations",
        "IMPORTANT!!  If any stations in a file being converted with this Defaults File are NOT in "
        "this list, they must be added to the selected Trip in KELDAR BEFORE proceeding with any "
        "conversions."};

    // Tick boxes that are used like options, with the further state that none is ticked.
    Panel frameActivity{*this, "frameActivity", "Activity Details", hidden};
    Panel frameActivityType{frameActivity, "frameActivityType", "Activity Type"};
    TickBox chkSample{frameActivityType, "chkSample", "Grab Sample"};
    TickBox chkField{frameActivityType, "chkField", "Field Measurements and Observations"};

    Panel frameActivityCategory{frameActivity, "frameActivityCategory", "Activity Category",
                                hidden};
    TickBox chkRoutine{frameActivityCategory, "chkRoutine", "Routine Field Measurement"};
    TickBox chkHabitat{frameActivityCategory, "chkHabitat", "Routine Habitat Assessment"};

    Panel frameMedium{frameActivity, "frameMedium", "Medium", hidden};
    TickBox chkWater{frameMedium, "chkWater", "Water"};
    TickBox chkAir{frameMedium, "chkAir", "Air"};
    TickBox chkSediment{frameMedium, "chkSediment", "Sediment"};
    TickBox chkSoil{frameMedium, "chkSoil", "Soil"};
    TickBox chkBiological{frameMedium, "chkBiological", "Biological"};

    Panel frameTimeZone{frameActivity, "frameTimeZone", "Activity Start Time Time Zone", hidden};
    List lstTimeZone{frameTimeZone, "lstTimeZone"};
    Label lblTimeZone{frameTimeZone, "lblTimeZone"};

    Button cmdSave{frameActivity, "cmdSave", "Continue =>", disabled};
};

}  // namespace brooklander
