// The second logger path: organization and characteristic group.
#pragma once

#include "shared/data_source.h"

namespace brooklander {

struct FrmDataLogger : Screen {
    explicit FrmDataLogger(Desk& desk) : Screen(desk, "frmDataLogger", "Automatic Data Logger") {
        MSHFlexOrganization.set_column_widths({1500, 4500});
    }

    Panel frameOrganizations{*this, "frameOrganizations", "Select Organization"};
    DataSource AdodcOrganization{frameOrganizations, "AdodcOrganization"};
    Grid MSHFlexOrganization{frameOrganizations, "MSHFlexOrganization"};
    Label lblOrganizationSelect{frameOrganizations, "lblOrganizationSelect"};
    Label lblOrgName{frameOrganizations, "lblOrgName"};
    Button cmdLoggerNext{frameOrganizations, "cmdLoggerNext", "Continue =>", disabled};
};

}  // namespace brooklander
