// Writes the benchmarks' table into a file, for the programs that are measured beside this one.
//
//   bench_table FILE ROWS

#include <iostream>
#include <string>

#include "sample_table.h"

int main(int argc, char** argv) {
    const std::string rows = argc == 3 ? argv[2] : "";
    if (rows.empty() || rows.size() > 7 ||
        rows.find_first_not_of("0123456789") != std::string::npos) {
        std::cerr << "bench_table FILE ROWS\n";
        return 2;
    }
    using namespace brooklander::bench;
    write_sample_table(argv[1], std::stoi(rows), Cells::as_in_life);
}
