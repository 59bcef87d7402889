// The conversion told plainly: all rows' fields first, in tables, then all results, on strings.
// Slow and obvious, to hold the real one against.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brooklander::test {

using PlainTable = std::vector<std::vector<std::string>>;

struct PlainInputs {
    PlainTable table;
    int station = 0;
    int date = 0;
    std::optional<int> time;
    std::optional<int> sample;
    std::optional<int> depth;
    std::optional<int> comments;
    std::optional<int> person;
    int first_result = 0;
    int first_row = 1;
    std::string filler;
    std::string depth_unit;
    std::string trip;
};

struct PlainResult {
    std::string output;
    PlainTable table;
};

// Under a configuration of the import module, whose names are the headings.
PlainResult convert_plainly(PlainInputs inputs);

}  // namespace brooklander::test
