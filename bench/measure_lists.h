// How long lists of the database take to the screen.
#pragma once

#include <filesystem>

namespace brooklander::bench {

// Prints, for the clicks that list 10,000 procedures, projects, persons and transports, the time
// from the click to the screen, that of the queries alone, and the difference: once with answers
// from memory, and, where `sqlite3` is on the path, with a database of its own in `home`.
void measure_lists(const std::filesystem::path& home);

}  // namespace brooklander::bench
