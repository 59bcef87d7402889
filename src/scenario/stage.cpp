#include "scenario/stage.h"

#include <new>
#include <utility>

#include "platform/fatal_failure.h"
#include "scenario/scenario_error.h"

namespace brooklander::scenario {

Stage::Stage(std::filesystem::path home, FrontMaker make_front, Teller output, Teller errors)
    : home_(std::move(home)),
      make_front_(std::move(make_front)),
      output_(std::move(output)),
      errors_(std::move(errors)) {}

void Stage::play(const std::vector<Step>& steps) {
    for (const Step& step : steps) play(step);
    if (fatal_) fail_for_fatal();
}

void Stage::play(const Step& step) {
    if (fatal_ && !step.is_fatal_check) fail_for_fatal();
    try {
        refuse_if_too_early_or_late(step);
        step.act(*this);
        if (running_ && running_->program.ended()) {
            running_.reset();
            ended_ = true;
        }
        if (running_) running_->front->check();
    } catch (const FatalFailure& failure) {
        running_.reset();
        fatal_ = {step.place, failure.what()};
        errors_(failure.what());
    } catch (const std::bad_alloc&) {
        running_.reset();
        fatal_ = {step.place, "The memory is exhausted."};
        errors_(fatal_->sentence);
    } catch (const Unmet& unmet) {
        throw Unmet(step.place + ": " + unmet.what());
    }
}

void Stage::refuse_if_too_early_or_late(const Step& step) const {
    if (step.works == Works::always) return;
    if (!started_) throw Unmet("The program has not been started.");
    if (step.works == Works::while_running && !running()) throw Unmet("The program has ended.");
}

void Stage::fail_for_fatal() const {
    throw Unmet(fatal_->place + ": The program ended in a fatal failure: " + fatal_->sentence);
}

void Stage::start() {
    if (running()) throw Unmet("The program is running already.");
    started_ = true;
    ended_ = false;
    running_ = std::make_unique<RunningProgram>(home_, make_front_);
    running_->front->start(running_->program);
}

Field& Stage::field(std::string_view path) const { return *running_->names.find(path); }

std::filesystem::path Stage::host_path(std::string_view path) const {
    try {
        return HostFiles(home_).host_path(path);
    } catch (const FatalFailure& failure) {
        throw Unmet(failure.what());
    }
}

void Stage::expect_fatal() {
    if (!fatal_) throw Unmet("The command before it did not end in a fatal failure.");
    fatal_.reset();
}

void Stage::expect_ended() const {
    if (!ended_) throw Unmet("The program has not ended by its own exit.");
}

}  // namespace brooklander::scenario
