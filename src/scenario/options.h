// The command line of the scenario player.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "scenario/words.h"

namespace brooklander::scenario {

struct Options {
    bool drawn = false;
    bool help = false;
    std::filesystem::path shots;
    std::filesystem::path home;  // stands for drive `c:`; empty where none is named
    Variables variables;
    std::vector<std::string> secrets;  // names whose values are still to be asked for
    std::vector<std::filesystem::path> files;
};

// Reads the words of the command line, in UTF-8, the program's own name first. Throws WrongLine
// with one sentence when it is not one.
Options options_of(std::vector<std::string> words);

// How the command line is written.
std::string usage();

// Asks for a value on the terminal without showing it; reads a line of standard input where there
// is no terminal. In the code page. Throws WrongLine when nothing can be read.
std::string ask_for_secret(const std::string& name);

}  // namespace brooklander::scenario
