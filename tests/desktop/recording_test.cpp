// What is recorded of a piece of work does the same work again: scenarios are played, their user's
// acts recorded, and the recordings played on the same files, undrawn and drawn.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iostream>
#include <random>
#include <set>

#include "desktop/recorded_play.h"
#include "platform/fatal_failure.h"
#include "scenario/scenario_error.h"
#include "support/workable_fields.h"

namespace brooklander {
namespace {

using test::lines_of;
using test::Outcome;
using test::Play;
using test::SourceLine;

const std::filesystem::path root = BROOKLANDER_ROOT;

// A piece of work: what was there before the program started, and then what its user did, and what
// was done to its files and fields from outside in between, which no recording holds.
struct Work {
    std::vector<SourceLine> before;
    std::vector<std::pair<std::size_t, SourceLine>> meanwhile;  // behind so many recorded lines
    std::string text;
    scenario::Variables values;
    Outcome outcome;
};

// Whether a line changes something that no user changes.
bool is_meddling(const std::string& verb) {
    static const std::set<std::string> verbs{"copy", "write", "remove",  "make",
                                             "open", "set",   "setcell", "add"};
    return verbs.contains(verb);
}

// Scenarios that end their program, by itself or in a failure, leave no fields to look at. What a
// step puts into the boxes of the logon nobody could type, and no recording holds.
bool can_be_repeated(const std::vector<SourceLine>& lines) {
    const bool sets_credentials = std::any_of(
        lines.begin(), lines.end(),
        [](const SourceLine& line) { return line.line.starts_with("set frmStart.txtOracle"); });
    const auto count = [&lines](const char* verb) {
        return std::count_if(lines.begin(), lines.end(),
                             [verb](const SourceLine& line) { return line.verb() == verb; });
    };
    return !sets_credentials && count("start") == 1 && count("fatal") == 0 && count("ended") == 0;
}

std::vector<std::string> recorded_lines(const std::string& text) {
    std::vector<std::string> lines;
    for (const std::string& line : lines_of(text)) {
        if (!line.empty() && !line.starts_with("# ") && line != "#" && line != "start") {
            lines.push_back(line);
        }
    }
    return lines;
}

// What was typed into the boxes and emptied again may be anything.
scenario::Variables values_of(const Play& play) {
    scenario::Variables values = play.recording().values();
    values.emplace("user", "anyone");
    values.emplace("password", "anything");
    return values;
}

// Plays lines, and keeps of them what no recording holds.
void play_recorded(const std::vector<SourceLine>& lines, Play& play, Work& work) {
    bool started = false;
    for (const SourceLine& line : lines) {
        const std::string verb = line.verb();
        if (!started && verb != "start" && verb != "") work.before.push_back(line);
        if (started && is_meddling(verb)) {
            work.meanwhile.emplace_back(recorded_lines(play.recording().text("lake.scn")).size(),
                                        line);
        }
        started = started || verb == "start";
        play.play(line);
    }
}

Work record(const std::vector<SourceLine>& lines, bool drawn) {
    Work work;
    Play play(drawn);
    play_recorded(lines, play, work);
    work.text = play.recording().text("lake.scn");
    work.values = values_of(play);
    work.outcome = play.outcome();
    return work;
}

Outcome repeated(const Work& work, bool drawn) {
    scenario::read_script_text(work.text, "lake.scn", work.values);  // it is a scenario as a whole
    Play play(drawn);
    for (const SourceLine& line : work.before) play.play(line);
    play.play({"start", {}});
    auto meanwhile = work.meanwhile.begin();
    std::size_t played = 0;
    const auto meddle = [&] {
        for (; meanwhile != work.meanwhile.end() && meanwhile->first == played; ++meanwhile) {
            play.play(meanwhile->second);
        }
    };
    meddle();
    for (const std::string& line : recorded_lines(work.text)) {
        play.play({line, {}}, work.values);
        ++played;
        meddle();
    }
    return play.outcome();
}

// What was typed as a password at any time, where it is long enough to be told from other words.
void expect_no_password(const Work& work, const std::string& name) {
    for (const auto& [variable, value] : work.values) {
        if (!variable.starts_with("password") || value.size() < 4) continue;
        for (const std::string& line : recorded_lines(work.text)) {
            const std::size_t behind_field = line.find(' ', line.find(' ') + 1);
            if (behind_field == std::string::npos) continue;
            std::string words = line.substr(behind_field);
            for (auto at = words.find("${password"); at != std::string::npos;
                 at = words.find("${password")) {
                words.erase(at, words.find('}', at) + 1 - at);
            }
            EXPECT_EQ(words.find(value), std::string::npos) << name << ": " << line;
        }
    }
}

void expect_repeatable(const std::filesystem::path& scenario, bool drawn) {
    const std::string name = std::filesystem::relative(scenario, root).string();
    std::string text;
    try {
        const Work work = record(test::source_lines(scenario), drawn);
        text = work.text;
        EXPECT_EQ(test::difference(work.outcome, repeated(work, false)), "") << name << "\n"
                                                                             << text;
        if (drawn) {
            EXPECT_EQ(test::difference(work.outcome, repeated(work, true)), "")
                << name << " drawn\n"
                << text;
        }
        expect_no_password(work, name);
    } catch (const std::exception& failure) {
        ADD_FAILURE() << name << ": " << failure.what() << "\n" << text;
    }
}

std::vector<std::filesystem::path> all_scenarios() {
    std::vector<std::filesystem::path> found{root / "samples/tour.scn",
                                             root / "samples/configuration.scn"};
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(root / "tests/scenarios")) {
        const auto& path = entry.path();
        if (path.extension() != ".scn" || path.parent_path().filename() == "road") continue;
        if (can_be_repeated(test::source_lines(path))) found.push_back(path);
    }
    std::sort(found.begin(), found.end());
    return found;
}

TEST(Recording, OfEveryScenarioDoesTheSameAgain) {
    const auto scenarios = all_scenarios();
    EXPECT_GT(scenarios.size(), 800U);
    for (const auto& scenario : scenarios) expect_repeatable(scenario, false);
}

// The one that docs/overnight.md shows, indented by four blanks behind its name.
TEST(Recording, InTheDocumentIsTheOneOfTheWorkThatItTells) {
    const Work work = record(test::source_lines(root / "tests/samples/lake_by_hand.scn"), true);
    std::ifstream file(root / "docs/overnight.md");
    const std::string document{std::istreambuf_iterator<char>(file), {}};
    std::string shown;
    for (const std::string& line : lines_of(work.text)) {
        shown += line.empty() ? "\n" : "    " + line + "\n";
    }
    const std::string name = "<!-- lake.scn -->\n\n";
    const std::size_t at = document.find(name);
    ASSERT_NE(at, std::string::npos);
    EXPECT_EQ(document.substr(at + name.size(), shown.size()), shown);
}

TEST(Recording, OfWorkAtTheWindowsDoesTheSameAgainUndrawnAndDrawn) {
    const std::set<std::string> always{"tour.scn", "configuration.scn", "keys_in_boxes.scn",
                                       "enter_in_boxes.scn", "keyboard_in_the_grids.scn"};
    constexpr std::size_t one_in = 25;
    const auto scenarios = all_scenarios();
    for (std::size_t at = 0; at < scenarios.size(); ++at) {
        if (at % one_in == 0 || always.contains(scenarios[at].filename().string())) {
            expect_repeatable(scenarios[at], true);
        }
    }
}

// Acts that a user could do, chosen at random.
class Wanderer {
  public:
    explicit Wanderer(unsigned seed) : random_(seed) {}

    // False when there is nothing to be done any more.
    bool step(Play& play) {
        std::vector<Field*> usable = test::workable_fields(play.screens());
        // Not out of the program.
        usable.erase(std::remove(usable.begin(), usable.end(), &play.screens().frmStart.cmdYes),
                     usable.end());
        if (usable.empty()) return false;
        work(play.front(), *usable[static_cast<std::size_t>(below(int(usable.size())))]);
        return play.running();
    }

  private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

    std::vector<Key> some_keys() {
        static constexpr std::array keys{
            Key::of('a'),          Key::of('{'),         Key::of('$'),
            Key::of('"'),          Key::of(' '),         Key{Key::Name::backspace},
            Key{Key::Name::erase}, Key{Key::Name::left}, Key{Key::Name::right},
            Key{Key::Name::up},    Key{Key::Name::down}, Key{Key::Name::enter}};
        std::vector<Key> chosen;
        for (int count = 1 + below(6); count > 0; --count) {
            chosen.push_back(keys[static_cast<std::size_t>(below(int(keys.size())))]);
        }
        return chosen;
    }

    void work(scenario::Front& front, Field& field) {
        if (auto* const list = dynamic_cast<EntryList*>(&field)) {
            front.click_entry(*list, static_cast<std::size_t>(below(int(list->count()))));
        } else if (auto* const grid = dynamic_cast<Grid*>(&field)) {
            if (below(2) == 0) {
                front.press_keys(field, some_keys());
            } else {
                front.click_cell(*grid, {below(grid->rows()), below(std::min(8, grid->columns()))});
            }
        } else if (auto* const box = dynamic_cast<TextBox*>(&field); box && below(4) > 0) {
            if (below(2) == 0) {
                front.press_keys(field, some_keys());
            } else {
                front.type(*box, std::string("lake.txt").substr(0, std::size_t(below(9))));
            }
        } else {
            front.click(field);
        }
    }

    std::mt19937 random_;
};

class RandomWork : public testing::TestWithParam<unsigned> {};

TEST_P(RandomWork, DoesTheSameAgain) {
    Wanderer wanderer(GetParam());
    const auto road =
        test::source_lines(root / "tests/scenarios/road" /
                           (GetParam() % 2 == 0 ? "lake_viewed.scn" : "lake_columns.scn"));
    Work work;
    Play play(false);
    play_recorded(road, play, work);
    // What ends the program leaves nothing to save; the walk is looked at as far as before it.
    std::size_t steps = 0;
    try {
        for (; steps < 120; ++steps) {
            work.text = play.recording().text("lake.scn");
            work.values = values_of(play);
            work.outcome = play.outcome();
            if (!wanderer.step(play)) break;
        }
    } catch (const FatalFailure&) {
    }
    ASSERT_GT(steps, 0U);
    EXPECT_EQ(test::difference(work.outcome, repeated(work, false)), "") << work.text;
    EXPECT_EQ(test::difference(work.outcome, repeated(work, true)), "") << work.text;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWork, testing::Range(1U, 25U));

}  // namespace
}  // namespace brooklander
