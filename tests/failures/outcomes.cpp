#include "failures/outcomes.h"

namespace brooklander::test {
namespace {

using namespace road_files;
using enum Operation;
using enum Ending;
using enum Left;

using Outcomes = std::vector<Outcome>;

constexpr auto root = "c:\\brooklander";
constexpr auto drive = "c:\\";
constexpr auto data = "c:\\data";
constexpr auto configurations = "c:\\brooklander\\preferences";
constexpr auto characteristics_folder = "c:\\brooklander\\characteristics\\";

void add(Outcomes& to, const Outcomes& more) { to.insert(to.end(), more.begin(), more.end()); }

// A file that nothing can do without.
Outcomes needed(const std::string& path, int occurrence = 0) {
    return {{open_to_read, path, fatal, occurrence}, {read, path, fatal, occurrence}};
}

// A file that is read for what may be in it.
Outcomes optional(const std::string& path, int occurrence = 0) {
    return {{open_to_read, path, goes_on, occurrence}, {read, path, goes_on, occurrence}};
}

// A file that is written whole, without a step for the case that it cannot be.
Outcomes written(const std::string& path, bool mends = true) {
    return {{create, path, fatal, 0, {}, as_without_failure, {}, mends},
            {write, path, fatal, 0, {}, part_written, {}, mends},
            {Operation::close, path, fatal, 0, {}, as_without_failure, {}, mends}};
}

// The way to a file through the lists of folders and files of a screen.
Outcomes listed(const std::string& folders, const std::string& files) {
    return {{list_folders, drive, waits, 0, folders}, {list_files, data, waits, 1, files}};
}

// The save step makes the load file, the conversion opens it again.
Outcomes load_file_opened() {
    return {{create, load_file, fatal},
            {append, load_file, fatal},
            {Operation::close, load_file, fatal}};
}

// The import table ends where its file cannot be read further.
Outcomes table_read(const std::string& path) {
    return {{open_to_read, path, fatal}, {read, path, goes_on, 0, {}, as_if_cut_in_half}};
}

Outcomes without_configuration() {
    Outcomes outcomes = listed("frmStart.Dir1", "frmStart.lstImportFileBox");
    add(outcomes, table_read(table));
    add(outcomes, load_file_opened());
    add(outcomes, {{write, load_file, fatal, 0, {}, lines_written}});
    return outcomes;
}

Outcomes with_configuration() {
    Outcomes outcomes = listed("frmStart.Dir1", "frmStart.lstImportFileBox");
    add(outcomes, {{make_folder, "voxoutfiles", fatal, 0, load_file},
                   {list_files, configurations, waits, 3, "frmPreferences.filePreferences"}});
    add(outcomes, table_read(table));
    add(outcomes, needed(configuration, 1));      // selected in the list
    add(outcomes, optional(configuration, 2));    // displayed
    add(outcomes, optional(characteristics, 1));  // selected
    add(outcomes, optional(characteristics, 2));  // displayed
    add(outcomes, optional(persons));
    add(outcomes, load_file_opened());
    add(outcomes, {{open_to_read, characteristics, goes_on, 3, {}, as_if_not_there},
                   {read, characteristics, goes_on, 3, {}, as_if_cut_in_half},
                   {write, load_file, goes_on, 0, {}, written_anew}});
    return outcomes;
}

Outcomes reference_lists() {
    Outcomes outcomes;
    for (const char* const list :
         {"samplefraction.txt", "statistictype.txt", "duration.txt", "temperature.txt"}) {
        add(outcomes, needed(std::string(root) + "\\" + list));
    }
    return outcomes;
}

// Nothing of the save of characteristics is ever told.
Outcomes characteristics_saved(bool mends) {
    return {{create, characteristics, goes_on, 0, {}, as_at_the_start},
            {write, characteristics, goes_on, 0, {}, part_written, {}, mends},
            {Operation::close, characteristics, goes_on}};
}

Outcomes making() {
    Outcomes outcomes = listed("frmCharSource.Dir1", "frmCharSource.lstImportFileBox");
    add(outcomes, {{make_folder, "voxconfiguration", fatal, 0, notice}});
    add(outcomes, written(configuration));
    add(outcomes, written(notice));
    add(outcomes, table_read(table));
    add(outcomes, reference_lists());
    add(outcomes, characteristics_saved(true));
    add(outcomes,
        {{make_folder, characteristics_folder, goes_on, 0, {}, as_at_the_start, characteristics}});
    return outcomes;
}

// What an edit has emptied, or written in part, holds no values to edit again.
Outcomes editing() {
    constexpr bool lost = false;
    const std::string next = "frmPreferencesSettings.cmdSave";
    Outcomes outcomes{
        {list_files, configurations, waits, 3, "frmPreferences.filePreferences"},
        // Without characteristics there is no editing.
        {open_to_read, characteristics, waits, 1, next},
        {read, characteristics, waits, 1, next},
        {open_to_read, characteristics, waits, 2, next},
        {read, characteristics, waits, 2, next},
        // The details then show none, and none are what is saved.
        {open_to_read, characteristics, goes_on, 3, {}, nothing_in_it, {}, lost},
        {read, characteristics, goes_on, 3, {}, nothing_in_it, {}, lost},
        {create, configuration, fatal},
        {write, configuration, fatal, 0, {}, part_written, {}, lost},
        {Operation::close, configuration, fatal},
        {create, notice, fatal, 0, {}, as_without_failure, {}, lost},
        {write, notice, fatal, 0, {}, part_written},
        {Operation::close, notice, fatal},
    };
    add(outcomes, needed(configuration));
    add(outcomes, reference_lists());
    add(outcomes, characteristics_saved(lost));
    add(outcomes, {{make_folder, characteristics_folder, goes_on}});  // it is there
    return outcomes;
}

Outcomes managing() {
    Outcomes outcomes = listed("frmStart.Dir1", "frmStart.lstImportFileBox");
    add(outcomes, needed(configuration));
    add(outcomes, optional(characteristics));
    add(outcomes, table_read(table));
    add(outcomes, load_file_opened());
    add(outcomes, {{write, load_file, fatal, 0, {}, lines_written},
                   {remove, configuration, fatal},
                   {remove, other_output, fatal},
                   // What is not listed is not deleted.
                   {list_files, configurations, goes_on, 3, {}, as_at_the_start, configuration},
                   {list_files,
                    "c:\\brooklander\\voxoutfiles",
                    goes_on,
                    4,
                    {},
                    as_at_the_start,
                    other_output}});
    return outcomes;
}

Outcomes of_first_logger_path() {
    Outcomes outcomes = listed("frmStart.Dir1", "frmStart.lstImportFileBox");
    add(outcomes,
        {{make_folder, "logoutfiles", fatal, 0, logger_file}, {append, logger_file, fatal}});
    add(outcomes, needed(logger_table));
    add(outcomes, written(logger_file));
    return outcomes;
}

Outcomes of_second_logger_path() {
    Outcomes outcomes =
        listed("frmDataLoggerResults.dirLoggerFile", "frmDataLoggerResults.fileLogger");
    add(outcomes, {{make_folder, "logoutfiles", fatal, 0, logger_file}});
    add(outcomes, needed(logger_table));
    add(outcomes, written(logger_file));
    return outcomes;
}

Outcomes of_portable_entry() {
    return {{make_folder, "c:\\fenwater", fatal, 0, portable_file},
            {make_folder, "c:\\fenwater\\batchfile\\", fatal, 0, portable_file},
            {append, portable_file, fatal},
            {write, portable_file, fatal, 0, {}, part_written},
            {Operation::close, portable_file, fatal}};
}

}  // namespace

const std::vector<Outcome>& outcomes_of_every_road() {
    static const Outcomes outcomes = [] {
        Outcomes made{{change_directory, root, fatal}};
        for (const char* const folder :
             {"", "organization", "gear", "voxoutfiles", "batchoutfiles", "logoutfiles",
              "preferences", "person", "voxconfiguration"}) {
            made.push_back({make_folder, folder, goes_on});
        }
        for (const char* const folder :
             {root, drive, data, configurations, "c:\\brooklander\\voxoutfiles"}) {
            made.push_back({list_folders, folder, goes_on});
            made.push_back({list_files, folder, goes_on});
        }
        return made;
    }();
    return outcomes;
}

std::vector<RoadOutcomes> all_roads() {
    return {
        {conversion_without_configuration(), without_configuration(), {}},
        {conversion_with_configuration(), with_configuration(), {}},
        {making_a_configuration(), making(), {}},
        {editing_a_configuration(), editing(), {}},
        {managing_files(), managing(), {}},
        {first_logger_path(), of_first_logger_path(), {}},
        {second_logger_path(), of_second_logger_path(), {}},
        {portable_entry(), of_portable_entry(), portable_file},
    };
}

}  // namespace brooklander::test
