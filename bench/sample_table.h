// Tables as monitoring programs keep them, made from a fixed seed.
#pragma once

#include <filesystem>

namespace brooklander::bench {

inline constexpr int leading_columns = 14;
inline constexpr int result_columns = 36;

// What the cells of a table are like.
enum class Cells {
    as_in_life,  // 15 % of the results blank, 10 % with a `<`, some times short, some ids missing
    plain,       // nothing that a conversion would rewrite
};

// Writes a table of a heading line and so many rows, tab-delimited: station, date, time, sample id,
// depth, comments and personnel, seven columns that nobody asks for, and the results.
void write_sample_table(const std::filesystem::path& file, int rows, Cells cells);

}  // namespace brooklander::bench
