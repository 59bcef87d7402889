// The sample collection: procedure, gear and gear configuration of a sample activity.
#pragma once

#include "shared/data_source.h"

namespace brooklander {

struct FrmPreferencesSamples : Screen {
    explicit FrmPreferencesSamples(Desk& desk)
        : Screen(desk, "frmPreferencesSamples",
                 "Setting Configuration File Sample Collection Procedures") {
        AdodcSampleCollection.bind(MSHFlexSampleCollection, bound::sample_procedures);
        AdodcGear.bind(MSHFlexGear, bound::gear);
        AdodcGearConfiguration.bind(MSHFlexGearConfiguration, bound::gear_configurations);
        MSHFlexGear.set_column_widths({1300, 3300, 3500});
    }

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};

    Label lblFileNameCaption{*this, "lblFileNameCaption", "Configuration File Name:"};
    Label lblFileName{*this, "lblFileName"};

    // lblFieldGearID holds the type of the gear; its id stands in lblFieldGearIDSelected.
    Panel frameDisplay{*this, "frameDisplay",
                       "Sample Collection Procedures And Field Gear Display"};
    Label lblSampleCollectionCaption{frameDisplay, "lblSampleCollectionCaption",
                                     "Sample Collection ID:"};
    Label lblSampleCollectionProcedureID{frameDisplay, "lblSampleCollectionProcedureID"};
    Label lblGearCaption{frameDisplay, "lblGearCaption", "Gear Type:"};
    Label lblFieldGearID{frameDisplay, "lblFieldGearID"};
    Label lblFieldGearIDLabel{frameDisplay, "lblFieldGearIDLabel", "Field Gear ID:"};
    Label lblFieldGearIDSelected{frameDisplay, "lblFieldGearIDSelected"};
    Label lblGearConfigurationLabel{frameDisplay, "lblGearConfigurationLabel",
                                    "Gear Configuration ID:"};
    Label lblGearConfiguration{frameDisplay, "lblGearConfiguration"};
    Button cmdChange{frameDisplay, "cmdChange", "Change =>"};
    Button cmdKeep{frameDisplay, "cmdKeep", "<= Keep"};

    // The blank at the end belongs to the title.
    Panel frameSampleCollection{*this, "frameSampleCollection",
                                "Sample Collection Procedures And Field Gear Entry ", hidden};
    Label lblSampleCollection{frameSampleCollection, "lblSampleCollection",
                              "Sample Collection Procedure ID:"};
    DataSource AdodcSampleCollection{frameSampleCollection, "AdodcSampleCollection"};
    Grid MSHFlexSampleCollection{frameSampleCollection, "MSHFlexSampleCollection", {.columns = 3}};
    Label lblFieldGear{frameSampleCollection, "lblFieldGear", "Field Gear:"};
    DataSource AdodcGear{frameSampleCollection, "AdodcGear"};
    Grid MSHFlexGear{frameSampleCollection, "MSHFlexGear", {.columns = 3}};
    Label lblGearConfigurationList{frameSampleCollection, "lblGearConfigurationList",
                                   "Gear Configuration:"};
    DataSource AdodcGearConfiguration{frameSampleCollection, "AdodcGearConfiguration"};
    Grid MSHFlexGearConfiguration{frameSampleCollection, "MSHFlexGearConfiguration"};
    Panel frameGearConfigurationError{frameSampleCollection, "frameGearConfigurationError",
                                      "There are no configurations associated with this gear",
                                      hidden};
    Label lblGearDeploymentComments{frameSampleCollection, "lblGearDeploymentComments",
                                    "Gear Deployment Comments:"};
    TextBox txtGearDeploymentComments{frameSampleCollection, "txtGearDeploymentComments"};
    Button cmdContinue{frameSampleCollection, "cmdContinue", "Continue =>", disabled};
};

}  // namespace brooklander
