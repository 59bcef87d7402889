// The second logger path: an organization and one of its characteristic groups are picked, and the
// group's row ids collected.
#pragma once

#include "platform/database.h"
#include "screens.h"

namespace brooklander {

// Another organization takes the choice of a group back.
void MSHFlexOrganization_Click(FrmDataLogger& logger);

// Asks for the installation and the operating period, and lists the organization's groups. A
// FatalFailure when a statement fails.
void cmdLoggerNext_Click(Screens& screens, FrmDataLogger& logger, Database& database);

// The way to the groups opens when the installation and the period are both filled in, and closes
// again when one is emptied.
void installation_Change(FrmDataLogger& logger);

// Collects the row ids of the clicked group. A FatalFailure when the statement fails.
void MSHFlexGroups_Click(Screens& screens, FrmDataLogger& logger, Database& database);

// Goes on to the results file, which is told the installation and the period.
void cmdConvertContinue_Click(Screens& screens, FrmDataLogger& logger);

}  // namespace brooklander
