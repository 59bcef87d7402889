// The lines of a data logger's own file, and what becomes of them in a Batch Update file.
//
// A logger file has a record a line, its fields between tabs: the date in column 0, the time in
// column 1, then a value for each characteristic of the group. It has no heading.
#pragma once

#include "conversion/batch_update.h"
#include "shared/grid.h"

namespace brooklander {

// Replaces a table with a logger file: a row for each line, and as many columns as the line with
// the most fields has; at least one.
void load_logger_file(Grid& log, FileText file);

// Writes the records of a table, and puts dates and times right in its cells. Cells are taken one
// by one, row by row, and each goes through these rules in this order, each rule reading what the
// one before has left:
//
//   a date of 5 characters    0M-DD-20YY, and a record date line; 61401 gives 06-14-2001
//   a date of 6 characters    the same from its first, second and fourth character on, which is
//                             wrong by one for all but the first and has always been so: 061401
//                             gives 06-61-2040
//   a blank time; or 0, in any column, a value too
//                             000000
//   a time of 4 or 5 characters
//                             zeros before it, up to 6
//   a time of 6 characters    trimmed
//
// A date of any other length has no record date line. Then a time begins a result line, a value
// that is not empty goes on with it, trimmed, and the last column ends it. So in a table of one
// column every record ends with an empty line.
void put_logger_records(Grid& log, BatchUpdateText& text);

}  // namespace brooklander
