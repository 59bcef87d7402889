// The second logger path: organization and characteristic group.
#pragma once

#include "shared/data_source.h"

namespace brooklander {

struct FrmDataLogger : Screen {
    explicit FrmDataLogger(Desk& desk) : Screen(desk, "frmDataLogger", "Automatic Data Logger") {
        MSHFlexOrganization.set_column_widths({1500, 4500});
        MSHFlexGroups.set_column_widths({1500, 4000});
        MSHFlexContents.set_column_widths({1500, 3000, 1000, 1200});
        for (int column = 0; column < 4; ++column) {
            MSHFlexContents.set_column_alignment(column, Alignment::left);
        }
        AdodcOrganization.bind(MSHFlexOrganization);
        AdodcGroups.bind(MSHFlexGroups, bound::setup_groups);
        AdodcChars.bind(MSHFlexContents, bound::group_contents);
    }

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};

    Panel frameOrganizations{*this, "frameOrganizations", "Select Organization"};
    DataSource AdodcOrganization{frameOrganizations, "AdodcOrganization"};
    Grid MSHFlexOrganization{frameOrganizations, "MSHFlexOrganization"};
    Label lblOrganizationSelect{frameOrganizations, "lblOrganizationSelect"};
    Label lblOrgName{frameOrganizations, "lblOrgName"};
    Button cmdLoggerNext{frameOrganizations, "cmdLoggerNext", "Continue =>", disabled};

    // Continue comes up once both boxes are filled in.
    Panel frameInstallation{*this, "frameInstallation",
                            "Enter Installation ID And Operating Period Log", hidden};
    DataSource AdodcLogger{frameInstallation, "AdodcLogger"};
    DataSource AdodcOperatingPeriod{frameInstallation, "AdodcOperatingPeriod"};
    Label lblInstallationCaption{frameInstallation, "lblInstallationCaption", "Installation ID:"};
    TextBox txtInstallationID{frameInstallation, "txtInstallationID"};
    Label lblPeriodCaption{frameInstallation, "lblPeriodCaption", "Operating Period:"};
    TextBox txtOperatingPeriod{frameInstallation, "txtOperatingPeriod"};
    Button cmdCharContinue{frameInstallation, "cmdCharContinue", "Continue =>",
                           hidden_and_disabled};

    Panel frameCharacteristicGroup{*this, "frameCharacteristicGroup", "Select Characteristic Group",
                                   hidden};
    DataSource AdodcGroups{frameCharacteristicGroup, "AdodcGroups"};
    Label lblGroupIdColumn{frameCharacteristicGroup, "lblGroupIdColumn", "Group ID"};
    Label lblGroupNameColumn{frameCharacteristicGroup, "lblGroupNameColumn", "Group Name"};
    Grid MSHFlexGroups{frameCharacteristicGroup, "MSHFlexGroups"};
    Label lblGroupName{frameCharacteristicGroup, "lblGroupName"};
    Label lblContents{frameCharacteristicGroup, "lblContents", "Characteristics In Selected Group"};
    Label lblRowIdColumn{frameCharacteristicGroup, "lblRowIdColumn", "Row ID"};
    Label lblDisplayNameColumn{frameCharacteristicGroup, "lblDisplayNameColumn", "Display Name"};
    Label lblUnitsColumn{frameCharacteristicGroup, "lblUnitsColumn", "Units"};
    Label lblFractionColumn{frameCharacteristicGroup, "lblFractionColumn", "Sample Fraction"};
    DataSource AdodcChars{frameCharacteristicGroup, "AdodcChars"};
    Grid MSHFlexContents{frameCharacteristicGroup, "MSHFlexContents", {}, hidden};
    Button cmdConvertContinue{frameCharacteristicGroup, "cmdConvertContinue", "Continue =>",
                              disabled};

    // The row ids of the chosen group, in sequence order.
    List lstFinalOut{*this, "lstFinalOut", hidden};
};

}  // namespace brooklander
