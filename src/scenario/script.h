// A scenario file, read whole and checked before anything of it is run.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "scenario/words.h"

namespace brooklander::scenario {

class Stage;

// When a command works: as `start` is followed by a running program, and that by its end.
enum class Works {
    always,       // files around a run, and start itself
    after_start,  // what asks how the program has ended
    while_running,
};

// One command, ready to be done.
struct Step {
    std::string place;  // `FILE:LINE`
    Works works = Works::while_running;
    bool is_fatal_check = false;
    std::function<void(Stage&)> act;  // throws Unmet, or the program's FatalFailure
};

// A file that somebody wrote, whole. Throws WrongLine where it cannot be read.
FileText script_file(const std::filesystem::path& file);

// Its lines, as any editor ends them, without the mark that some begin a file with.
std::vector<std::string_view> script_lines(std::string_view text);

// All steps of a file, in order, with those of the files that it includes. Throws WrongLine with
// the place before its sentence, for a file that cannot be read and for a line that is no command.
// What is wrong with a line that puts in one of the `secrets` is not told in its words.
std::vector<Step> read_script(const std::filesystem::path& file, const Variables& variables,
                              const std::vector<std::string>& secrets = {});

// The same of a text, as if it stood in a file of that name.
std::vector<Step> read_script_text(std::string_view text, const std::filesystem::path& file,
                                   const Variables& variables,
                                   const std::vector<std::string>& secrets = {});

}  // namespace brooklander::scenario
