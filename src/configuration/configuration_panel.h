// What a configuration file holds, as the two screens that show it have it: a label for each key,
// and a grid of its characteristics.
#pragma once

#include "shared/grid.h"

namespace brooklander {

struct ConfigurationPanel {
    ConfigurationPanel(Screen& screen, Start start)
        : frameView(screen, "frameView", "Contents of Selected Configuration File", start) {
        MSFlexCharacteristics.set_rows(1);
    }

    Panel frameView;
    Label lblViewFileName{frameView, "lblViewFileName"};
    Label lblOrganization{frameView, "lblOrganization"};
    Label lblOrganizationName{frameView, "lblOrganizationName"};
    Label lblActivityType{frameView, "lblActivityType"};
    Label lblActivityCategory{frameView, "lblActivityCategory"};
    Label lblMedium{frameView, "lblMedium"};
    Label lblSampleTransport{frameView, "lblSampleTransport"};
    Label lblPerson{frameView, "lblPerson"};
    Label lblSampleCollectionID{frameView, "lblSampleCollectionID"};
    Label lblFieldGearID{frameView, "lblFieldGearID"};
    Label lblGearType{frameView, "lblGearType"};
    Label lblGearConfiguration{frameView, "lblGearConfiguration"};
    Label lblProjectID{frameView, "lblProjectID"};
    Label lblProjectName{frameView, "lblProjectName"};
    Label lblDepthUnits{frameView, "lblDepthUnits"};
    Label lblTimeZone{frameView, "lblTimeZone"};
    Label lblTrip{frameView, "lblTrip"};
    Label lblChar{frameView, "lblChar"};

    Grid MSFlexCharacteristics{frameView, "MSFlexCharacteristics", {.columns = 13}};

    // Whether an existing file is being edited; steps set it, and no user.
    TickBox chkEdit{frameView, "chkEdit", "Edit", hidden};

    Panel frameUseFile{frameView, "frameUseFile", "Use This Configuration  With Imported File?",
                       hidden};
    TickBox chkYes{frameUseFile, "chkYes", "Yes"};
    Button cmdConfirm{frameUseFile, "cmdConfirm", "Confirm", disabled};
};

}  // namespace brooklander
