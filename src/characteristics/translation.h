// The names of a sample file's characteristics are translated to those of the database.
//
// A name in work is known by lblCharacteristics: as the file has it when it was picked in the grid,
// in upper case when it was picked in the list. What is translated is marked in the list where its
// entry in upper case is that text exactly, so that a name of mixed case picked in the grid stays
// unmarked there.
#pragma once

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

// Takes the clicked row's name in work, taxa being left out of its search.
void MSFlexChar_Click(FrmCharacteristics& translation);

// Takes an entry's name in work; the original name on the screen stays.
void lstCharacteristics_Click(FrmCharacteristics& translation);

// The two filters exclude one another; that for taxa alone hides the search text.
void chkNoTaxa_Click(FrmCharacteristics& translation);
void chkTaxa_Click(FrmCharacteristics& translation);

// Searches the database for the text, anywhere in a name; a `%` or `_` in it is a wildcard. When
// the first row that comes back has the very name in work, it is translated at once. A text that is
// pH, in any case, is offered as that without a search. A FatalFailure when the statement fails, as
// it does over a quote in the text.
void cmdDisplay_Click(Screens& screens, Database& database);

// Accepts the picked translation. To pick and offer one, see name_translation.h.
void cmdYes_Click(FrmCharacteristics& translation);

// Goes on to the details with a row for each name, translated or not. A FatalFailure when the
// database cannot be reached or a reference list cannot be read.
void cmdNext_Click(Screens& screens, Platform& platform);

// Back to the choice of the file.
void mnuExit_Click(Screens& screens, FrmCharacteristics& translation);

}  // namespace brooklander
