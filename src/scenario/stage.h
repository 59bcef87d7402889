// Where a scenario file is played: a fresh program, its files, and what became of it.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/odbc_database.h"
#include "platform/files/host_files.h"
#include "program.h"
#include "scenario/field_names.h"
#include "scenario/script.h"

namespace brooklander::scenario {

// Files of help that were asked for are shown to nobody here.
class NoHelp : public Help {
  public:
    void show(std::string_view /*path*/) override {}
};

// A program that runs, with the machine that it runs on.
struct RunningProgram {
    explicit RunningProgram(const std::filesystem::path& home) : files(home) {}

    HostFiles files;
    OdbcDatabase database;
    NoHelp help;
    Program program{{files, database, help}};
    FieldNames names{program.screens()};
};

class Stage {
  public:
    using Teller = std::function<void(const std::string&)>;

    // `home` stands for drive `c:`. What is printed goes to `output`, the sentence of a fatal
    // failure to `errors`, both in UTF-8, a line at a time.
    Stage(std::filesystem::path home, Teller output, Teller errors);

    // Plays the steps of a file. Throws Unmet, with the place before its sentence, at the first
    // that fails.
    void play(const std::vector<Step>& steps);

    // For the commands.
    void start();
    bool running() const { return running_ != nullptr; }
    Field& field(std::string_view path) const;
    std::filesystem::path host_path(std::string_view path) const;
    void print(const std::string& line) const { output_(line); }
    void expect_fatal();
    void expect_ended() const;

  private:
    struct Fatal {
        std::string place;
        std::string sentence;
    };

    void play(const Step& step);
    void refuse_if_too_early_or_late(const Step& step) const;
    void fail_for_fatal() const;

    std::filesystem::path home_;
    Teller output_;
    Teller errors_;
    std::unique_ptr<RunningProgram> running_;
    bool started_ = false;
    bool ended_ = false;
    std::optional<Fatal> fatal_;  // a fatal failure that no `fatal` has followed yet
};

}  // namespace brooklander::scenario
