// What has to come of every file operation that fails, for each road.
#pragma once

#include <string>
#include <vector>

#include "failures/roads.h"

namespace brooklander::test {

enum class Ending {
    goes_on,  // the road goes on to its end, as if nothing had been amiss
    fatal,    // one FatalFailure, whose sentence names a path
    waits,    // the program waits, and the field that the road goes on with cannot be worked
};

// What the home holds then. Where the road went on, that is what a run without a failure leaves;
// else what such a run has made of it up to there; and of one file:
enum class Left {
    as_without_failure,
    part_written,   // before the write, with a part of what was written behind it
    lines_written,  // the same, and it ends with a whole line
    written_anew,   // whole lines of a first pass, and all lines of a second
    as_at_the_start,
    nothing_in_it,
    as_if_cut_in_half,  // as if the file that is read were half as long
    as_if_not_there,    // as if the file that is read were gone
};

struct Outcome {
    Operation operation{};
    std::string path;
    Ending ending{};

    // Counted from 1 among the operations of this kind on this path; 0 stands for every one.
    int occurrence = 0;

    // The path that the sentence names, or the field that cannot be worked; the operation's own
    // path without it.
    std::string told{};

    Left left = Left::as_without_failure;

    // Of which file; the operation's own without it.
    std::string file{};

    // Whether the same road, taken again without a failure, leaves what it would have left.
    bool mends = true;
};

struct RoadOutcomes {
    Road road;
    std::vector<Outcome> outcomes;  // each of which must come up; the first that fits holds
    std::string appended;           // a file to whose end every run writes
};

// What start-up and lists of files do on every road, where a road has no outcome of its own.
const std::vector<Outcome>& outcomes_of_every_road();

std::vector<RoadOutcomes> all_roads();

}  // namespace brooklander::test
