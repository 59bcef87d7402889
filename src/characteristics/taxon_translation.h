// The translation of taxon names, in what it does otherwise than that of characteristics: every
// search goes to the database, and to taxa alone.
#pragma once

#include "platform/database.h"
#include "screens.h"

namespace brooklander {

// Takes the clicked row's name in work.
void MSFlexChar_Click(FrmSubjectTaxon& translation);

// Searches for taxa. A FatalFailure when the statement fails; and one when the first row that comes
// back has the very name in work: that road goes on to mark a list of names, which this screen does
// not have.
void cmdDisplay_Click(Screens& screens, FrmSubjectTaxon& translation, Database& database);

// Accepts the picked translation.
void cmdYes_Click(FrmSubjectTaxon& translation);

}  // namespace brooklander
