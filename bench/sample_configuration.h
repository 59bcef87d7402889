// A configuration as a monitoring program keeps it: its activity values, and its characteristics.
#pragma once

#include <filesystem>

namespace brooklander::bench {

// Writes the two files of a configuration `bench.txt` of so many characteristics below a home
// folder, every detail of each filled.
void write_sample_configuration(const std::filesystem::path& home, int characteristics);

}  // namespace brooklander::bench
