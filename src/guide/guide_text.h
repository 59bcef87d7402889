// A chapter of the guide as it is written: prose and commands in one file.
//
// A chapter is a scenario. Its prose stands in the scenario's remarks, in lines that begin with
// `#|`; whatever is no such line is left to the scenario player.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace brooklander::guide {

// Lines of one kind that stand together, with the empty ones among and behind them.
struct Part {
    bool is_prose = false;
    int first_line = 1;              // from 1, in the file
    std::vector<std::string> lines;  // of prose, without the mark and one blank behind it
};

// The parts of a chapter in their order. Throws WrongLine for a file that cannot be read.
std::vector<Part> parts_of(const std::filesystem::path& file);

}  // namespace brooklander::guide
