// The store of the activity values that come from a configuration file, and of what the database
// says of its characteristics. It is shown for a moment, and nobody works on it.
#pragma once

#include "shared/data_source.h"

namespace brooklander {

struct FrmImport : Screen {
    explicit FrmImport(Desk& desk) : Screen(desk, "frmImport", "Import Files") {
        AdodcSystemHabitat.bind(MSHFlexSystemHabitat);
        AdodcUserHabitat.bind(MSHFlexUserHabitat);
        AdodcCharacteristicGroup.bind(MSHFlexCharacteristics);
    }

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};

    Panel frameSelections{*this, "frameSelections", "Fields Added From Defaults File"};
    Label lblOrganization{frameSelections, "lblOrganization"};
    Label lblTrip{frameSelections, "lblTrip"};
    Label lblActivityType{frameSelections, "lblActivityType"};
    Label lblActivityCategory{frameSelections, "lblActivityCategory"};
    Label lblMedium{frameSelections, "lblMedium"};
    Label lblSamplingProcedures{frameSelections, "lblSamplingProcedures"};
    Label lblSamplingGear{frameSelections, "lblSamplingGear"};
    Label lblGearConfiguration{frameSelections, "lblGearConfiguration"};
    Label lblSubjectTaxon{frameSelections, "lblSubjectTaxon", {}, hidden};
    Label lblBioPartDisplay{frameSelections, "lblBioPartDisplay", {}, hidden};
    Label lblBiopartCaption{frameSelections, "lblBiopartCaption", "Biopart:", hidden};

    Label lblCharGroupNumber{*this, "lblCharGroupNumber", {}, hidden};
    Label lblCharacteristicGroup{*this, "lblCharacteristicGroup", {}, hidden};
    Label lblStationIsNumber{*this, "lblStationIsNumber", {}, hidden};

    Panel frameUsePreferences{*this, "frameUsePreferences", "Select A Defaults File"};
    TickBox chkPreferences{frameUsePreferences, "chkPreferences", "Use A Defaults File?", hidden};
    TickBox chkNoPreferences{frameUsePreferences, "chkNoPreferences", "Do Not Use A Defaults File",
                             hidden};
    Button cmdConfirm{frameUsePreferences, "cmdConfirm", "Continue =>"};

    Button cmdActivityNext{*this, "cmdActivityNext", "Next =>", disabled};

    // What the database knows of a group of characteristics.
    DataSource AdodcSystemHabitat{*this, "AdodcSystemHabitat"};
    Grid MSHFlexSystemHabitat{*this, "MSHFlexSystemHabitat", {}, hidden};
    DataSource AdodcUserHabitat{*this, "AdodcUserHabitat"};
    Grid MSHFlexUserHabitat{*this, "MSHFlexUserHabitat", {}, hidden};
    DataSource AdodcCharacteristicGroup{*this, "AdodcCharacteristicGroup"};
    Grid MSHFlexCharacteristics{*this, "MSHFlexCharacteristics", {}, hidden};
    DataSource AdodcBioPart{*this, "AdodcBioPart"};
};

}  // namespace brooklander
