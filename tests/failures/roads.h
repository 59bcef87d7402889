// Whole roads through the program, as a user takes them, on files that can fail.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "support/failing_files.h"
#include "support/test_program.h"

namespace brooklander::test {

// A program on a home that others keep.
struct RoadProgram {
    explicit RoadProgram(const std::filesystem::path& home) : files(home) {}

    FailingFiles files;
    WatchedDatabase database;
    WatchedHelp help;
    Program program{{files, database, help}};
};

struct Road {
    std::string name;
    std::function<void(const TemporaryFolder& home)> prepare;
    std::function<void(RoadProgram&)> take;
};

Road conversion_without_configuration();
Road conversion_with_configuration();
Road making_a_configuration();
Road editing_a_configuration();
Road managing_files();
Road first_logger_path();
Road second_logger_path();
Road portable_entry();

// The names by which the outcomes tell the files.
namespace road_files {
inline constexpr auto table = "c:\\data\\lake.txt";
inline constexpr auto load_file = "c:\\brooklander\\voxoutfiles\\lake.txt";
inline constexpr auto configuration = "c:\\brooklander\\preferences\\survey.txt";
inline constexpr auto notice = "c:\\brooklander\\voxconfiguration\\survey.txt";
inline constexpr auto characteristics = "c:\\brooklander\\characteristics\\survey.txt";
inline constexpr auto persons = "c:\\brooklander\\person\\survey.txt";
inline constexpr auto other_output = "c:\\BrookLander\\voxoutfiles\\old.txt";
inline constexpr auto logger_table = "c:\\data\\buoy.txt";
inline constexpr auto logger_file = "c:\\brooklander\\logoutfiles\\buoy.txt";
inline constexpr auto portable_file = "c:\\fenwater\\batchfile\\portable.txt";
}  // namespace road_files

}  // namespace brooklander::test
