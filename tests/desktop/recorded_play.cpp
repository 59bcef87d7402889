#include "desktop/recorded_play.h"

#include <fstream>
#include <sstream>
#include <utility>

#include "platform/desktop/drawn_front.h"
#include "scenario/commands.h"
#include "scenario/undrawn_front.h"

namespace brooklander::test {

using scenario::Front;

std::string SourceLine::verb() const {
    std::istringstream words(line);
    std::string first;
    words >> first;
    return first.starts_with('#') ? std::string() : first;
}

std::vector<std::string> lines_of(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

std::vector<SourceLine> source_lines(const std::filesystem::path& scenario) {
    std::vector<SourceLine> lines;
    std::ifstream file(scenario, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    for (const std::string& line : lines_of(text)) {
        const SourceLine source{line, scenario};
        if (source.verb() != "include") {
            lines.push_back(source);
            continue;
        }
        const std::string included = scenario::words_of(line, {}).at(1);
        for (SourceLine& inner : source_lines(scenario.parent_path() / included)) {
            lines.push_back(std::move(inner));
        }
    }
    return lines;
}

std::string difference(const Outcome& one, const Outcome& other) {
    if (one.fields.size() != other.fields.size()) return "One of them has ended.";
    for (std::size_t at = 0; at < one.fields.size(); ++at) {
        if (one.fields[at] != other.fields[at]) {
            return one.fields[at].substr(0, 400) + "\nthen\n" + other.fields[at].substr(0, 400);
        }
    }
    for (const auto& [name, bytes] : one.files) {
        const auto found = other.files.find(name);
        if (found == other.files.end()) return name + " is missing.";
        if (found->second != bytes) return name + ":\n" + bytes + "\nthen\n" + found->second;
    }
    return one.files.size() == other.files.size() ? "" : "There is a further file.";
}

// A front that has a recorder watch its program from the start on.
class Play::WatchedFront : public Front {
  public:
    WatchedFront(std::unique_ptr<Front> front, Play& play)
        : front_(std::move(front)), play_(play) {}

    Help& help() override { return front_->help(); }
    void start(Program& program) override {
        play_.screens_ = &program.screens();
        play_.recorder_ = std::make_unique<scenario::Recorder>(program.screens());
        front_->start(program);
    }
    void end() override {
        play_.recorder_.reset();
        front_->end();
    }
    void click(Field& field) override { front_->click(field); }
    void type(TextBox& box, const std::string& text) override { front_->type(box, text); }
    void click_entry(EntryList& list, std::size_t index) override {
        front_->click_entry(list, index);
    }
    void click_cell(Grid& grid, GridCell cell) override { front_->click_cell(grid, cell); }
    void press_keys(Field& field, const std::vector<Key>& keys) override {
        front_->press_keys(field, keys);
    }
    void check() override { front_->check(); }
    void take_picture(const std::string& /*name*/) override {}

  private:
    std::unique_ptr<Front> front_;
    Play& play_;
};

scenario::FrontMaker Play::front_maker(bool drawn) {
    return [this, drawn](const Files& files) -> std::unique_ptr<Front> {
        std::unique_ptr<Front> front;
        if (drawn) {
            front = desktop::drawn_front(files, {});
        } else {
            front = std::make_unique<scenario::UndrawnFront>();
        }
        return std::make_unique<WatchedFront>(std::move(front), *this);
    };
}

Play::Play(bool drawn)
    : stage_(
          folder_.path(), front_maker(drawn),
          [this](const std::string& line) { printed_.push_back(line); },
          [](const std::string&) {}) {}

void Play::play(const SourceLine& line, const scenario::Variables& variables) {
    stage_.play(scenario::read_script_text(line.line, line.file, variables));
}

Outcome Play::outcome() {
    Outcome outcome;
    if (running()) {
        printed_.clear();
        for (const Screen* const screen : screens_->desk.screens()) {
            play({"print " + screen->name(), {}});
        }
        outcome.fields = printed_;
    }
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.path())) {
        const auto name = std::filesystem::relative(entry.path(), folder_.path());
        outcome.files[name.string()] = entry.is_regular_file() ? folder_.read(name) : "a folder";
    }
    return outcome;
}

}  // namespace brooklander::test
