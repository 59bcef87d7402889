// What the guide's prose takes from the program as it runs, instead of saying it in words of its
// own: captions, cells, and what stands in files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "scenario/stage.h"

namespace brooklander::guide {

struct Value {
    enum class Kind {
        caption,  // what a user sees a field say
        text,     // what stands in a cell or in a file
        number,   // a count
        no_line,  // there is no line in the file to take it from
    };
    Kind kind = Kind::text;
    std::string text{};  // in the code page
};

// The value that is written so (UTF-8, cut into words as the lines of scenarios are):
//
//   FIELD                what the field says, without the blanks at its ends
//   FIELD ROW COLUMN     a cell of a grid, from 0
//   cell PATH LINE N     the Nth of the cells that tabs divide in a line of a file, both from 1
//   field PATH ID N      the Nth field of the first line of a load file with that activity id
//   line PATH LINE       a whole line of a file
//   count PATH LINE      how many fields a line of a load file has
//   lines PATH           how many lines a file has
//   room HEADING         how many letters of a characteristic's detail every reader keeps
//   text WORDS           these very words
//
// Throws Unmet where there is none. That a field is not on the screen is such a case, too: what the
// prose names, a reader who follows it must see.
Value value_of(std::string_view written, const scenario::Stage& stage);

// The fields of the first line of a load file with an activity id, and with a characteristic where
// one is named; none where there is no such line.
std::vector<std::string> load_file_fields(const scenario::Stage& stage, std::string_view path,
                                          std::string_view activity_id, std::string_view name = {});

}  // namespace brooklander::guide
