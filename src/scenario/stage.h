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
#include "scenario/front.h"
#include "scenario/script.h"

namespace brooklander::scenario {

// A program that runs, with the machine that it runs on.
struct RunningProgram {
    RunningProgram(const std::filesystem::path& home, const FrontMaker& make_front)
        : files(home), front(make_front(files)) {}
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram() { front->end(); }

    HostFiles files;
    OdbcDatabase database;
    std::unique_ptr<Front> front;
    Program program{{files, database, front->help()}};
    FieldNames names{program.screens()};
};

class Stage {
  public:
    using Teller = std::function<void(const std::string&)>;

    // `home` stands for drive `c:`. What is printed goes to `output`, the sentence of a fatal
    // failure to `errors`, both in UTF-8, a line at a time.
    Stage(std::filesystem::path home, FrontMaker make_front, Teller output, Teller errors);

    // Plays the steps of a file. Throws Unmet, with the place before its sentence, at the first
    // that fails.
    void play(const std::vector<Step>& steps);

    // For the commands.
    void start();
    bool running() const { return running_ != nullptr; }
    Field& field(std::string_view path) const;
    Front& front() const { return *running_->front; }
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
    FrontMaker make_front_;
    Teller output_;
    Teller errors_;
    std::unique_ptr<RunningProgram> running_;
    bool started_ = false;
    bool ended_ = false;
    std::optional<Fatal> fatal_;  // a fatal failure that no `fatal` has followed yet
};

}  // namespace brooklander::scenario
