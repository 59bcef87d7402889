// The commands of the scenario language.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "scenario/script.h"

namespace brooklander::scenario {

// The step that a line's words ask for, its place left open. HOST words are taken from `folder`.
// Everything that the line alone can tell is checked here: the number of words, the names of
// fields, whether a command suits the kind of its field. Throws WrongLine.
Step step_of(const std::vector<std::string>& words, const std::filesystem::path& folder);

// A HOST word as a path of the machine.
std::filesystem::path host_file(const std::string& word, const std::filesystem::path& folder);

// The whole of a file of the host; `shown` is its name in a sentence, in UTF-8. Throws Unmet where
// it cannot be read.
FileText text_of(const std::filesystem::path& file, const std::string& shown);

// Whether a path of the host is the root of a file system, or `drive_c`, the folder that stands for
// that drive, or a folder around it. None of these is ever removed.
bool holds_a_drive(const std::filesystem::path& path, const std::filesystem::path& drive_c);

}  // namespace brooklander::scenario
