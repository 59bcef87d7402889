// The choice of an analytical procedure, by its source and a search, and of a unit.
#pragma once

#include "platform/database.h"
#include "screens.h"

namespace brooklander {

// All of these that search: a FatalFailure when the statement fails, as it does over a quote in
// what is searched for.

// Takes the clicked source and lists its procedures.
void MSHFlexSource_Click(Screens& screens, Database& database);

// Takes the clicked procedure, whichever of its cells was clicked, unless that was an empty one.
void MSHFlexProc_Click(FrmCharacteristicDetails& details);

// The two ways of searching exclude one another, and one of them and a text are needed for it.
void chkProcId_Click(FrmCharacteristicDetails& details);
void chkProcName_Click(FrmCharacteristicDetails& details);
void txtSearch_Change(FrmCharacteristicDetails& details);

// Searches the source's procedures: by id for the text as typed, in upper case, and with its first
// letter in upper case; by name for the last of these alone.
void cmdProcSearch_Click(Screens& screens, Database& database);

// All procedures of the source again.
void cmdReset_Click(Screens& screens, Database& database);

// Back to the sources.
void cmdSourceBack_Click(FrmCharacteristicDetails& details);

// Searches the units for the text as typed and with its first letter in upper case.
void cmdUOMSearch_Click(Screens& screens, Database& database);

// Runs the last statement again.
void cmdRefresh_Click(FrmCharacteristicDetails& details, Database& database);

void MSHFlexUOM_Click(FrmCharacteristicDetails& details);

}  // namespace brooklander
