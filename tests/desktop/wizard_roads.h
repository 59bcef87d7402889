// The states of the windows in which a configuration is made.
#pragma once

#include "desktop/drawn_program.h"

namespace brooklander::test {

// What the database holds for two invented organizations: the first has lists with names of all
// lengths, the second has none of them.
QueryResult answer_of_two_lakes(const Query& query);

// From the start to the activity settings of a new configuration.
void name_configuration(DrawnProgram& drawn);

Roads wizard_roads();

}  // namespace brooklander::test
