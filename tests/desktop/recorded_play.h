// A scenario that is played while what its user does is recorded, and the recording played in turn.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "scenario/recorder.h"
#include "scenario/stage.h"
#include "support/temporary_folder.h"

namespace brooklander::test {

// A line of a scenario, and the file that it stands in.
struct SourceLine {
    std::string line;
    std::filesystem::path file;

    // Its first word; empty for a remark.
    std::string verb() const;
};

// The lines of a scenario, with those of the files that it includes in their places.
std::vector<SourceLine> source_lines(const std::filesystem::path& scenario);

// What is left at the end: all that `print` says of all fields, and all files.
struct Outcome {
    std::vector<std::string> fields;
    std::map<std::string, std::string> files;

    bool operator==(const Outcome&) const = default;
};

// The first thing in which two outcomes differ; empty when there is none.
std::string difference(const Outcome& one, const Outcome& other);

// A program on an empty folder of its own, played line by line.
class Play {
  public:
    explicit Play(bool drawn);

    // Does what a line says. Throws Unmet, and WrongLine.
    void play(const SourceLine& line, const scenario::Variables& variables = {});

    // What has been recorded since the program started.
    scenario::Recording recording() const { return recorder_->recording(); }

    // What a user works it by, while it runs.
    scenario::Front& front() { return stage_.front(); }
    Screens& screens() { return *screens_; }
    bool running() const { return stage_.running(); }

    Outcome outcome();

  private:
    class WatchedFront;

    scenario::FrontMaker front_maker(bool drawn);

    TemporaryFolder folder_;
    std::unique_ptr<scenario::Recorder> recorder_;
    Screens* screens_ = nullptr;
    std::vector<std::string> printed_;
    scenario::Stage stage_;
};

// A text's lines, without their ends.
std::vector<std::string> lines_of(const std::string& text);

}  // namespace brooklander::test
