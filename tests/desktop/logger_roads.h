// The states of the windows of data loggers, and of the translation of taxa.
#pragma once

#include "desktop/drawn_program.h"

namespace brooklander::test {

// What the database holds for two invented organizations: the first has lists with names of all
// lengths, the second has none of them.
QueryResult answer_of_two_fens(const Query& query);

// From the start to the organizations of the set-up, and on to where the installation is typed.
void open_setup(DrawnProgram& drawn);
void choose_fen(DrawnProgram& drawn, int row);

// From the start to the screen of results that are typed in by hand.
void open_portable(DrawnProgram& drawn);

Roads logger_roads();

}  // namespace brooklander::test
