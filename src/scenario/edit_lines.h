// What was typed into a text box, as lines that type it again.
#pragma once

#include <string>
#include <vector>

#include "scenario/recorded_line.h"

namespace brooklander::scenario {

// One change of a box's text by its user.
struct Edit {
    std::string before;
    std::string after;
};

// The lines that make a run of changes anew, each beginning with the text that the one before has
// left. A text that grows from nothing, or over all that stood there, by one character at a time is
// one `type`. Changes inside a text are `keys`, which begin at its end, so that the caret is led to
// its place by arrows and what was taken away goes by Backspace. Either way the box's handlers run
// with the same texts in the same order; only where several characters came or went at once, from
// the clipboard or over a selection, do they run for each of these characters in turn.
std::vector<RecordedLine> lines_for(TextBox& box, const std::vector<Edit>& edits);

}  // namespace brooklander::scenario
