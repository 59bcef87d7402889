// Every file operation of every road, made to fail in turn.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <ostream>

#include "failures/outcomes.h"
#include "failures/user_acts.h"
#include "platform/code_page.h"
#include "platform/fatal_failure.h"

namespace brooklander::test {

void PrintTo(const RoadOutcomes& road, std::ostream* to) { *to << road.road.name; }

namespace {

namespace fs = std::filesystem;

// All of a home: files with what is in them, and folders, whose names end in a slash.
using Snapshot = std::map<std::string, std::string>;

Snapshot snapshot_of(const TemporaryFolder& home) {
    Snapshot snapshot;
    for (const auto& entry : fs::recursive_directory_iterator(home.path())) {
        const std::string name = entry.path().lexically_relative(home.path()).string();
        if (entry.is_directory()) {
            snapshot[name + "/"];
        } else {
            snapshot[name] = home.read(name);
        }
    }
    return snapshot;
}

// What differs, in words that do not repeat a file of a megabyte.
std::string difference(const Snapshot& expected, const Snapshot& found) {
    std::string words;
    for (const auto& [name, text] : expected) {
        const auto other = found.find(name);
        if (other == found.end()) {
            words += name + " is missing. ";
        } else if (other->second != text) {
            words += name + " holds " + std::to_string(other->second.size()) +
                     " bytes instead of " + std::to_string(text.size()) + ": " +
                     other->second.substr(0, 200) + ". ";
        }
    }
    for (const auto& [name, text] : found) {
        if (!expected.contains(name)) words += name + " should not be there. ";
    }
    return words;
}

// A path of the program as snapshots name it.
std::string key_of(const std::string& path) {
    if (path.empty()) return {};
    const fs::path home("/nonexistent");
    std::string key = HostFiles(home).host_path(path).lexically_relative(home).string();
    if (key.starts_with("BrookLander")) key.replace(0, 11, "brooklander");
    return key;
}

bool ends_a_line(std::string_view text) { return text.empty() || text.ends_with("\r\n"); }

struct Passage {
    Ending ending = Ending::goes_on;
    std::string told;  // the sentence, or the field
    std::vector<FileOperation> log;
    std::vector<Snapshot> before;  // each operation, and after the last; in runs that take pictures
};

enum class Pictures { none, taken };

Passage take(const Road& road, const TemporaryFolder& home, std::set<std::size_t> failing = {},
             Pictures pictures = Pictures::none) {
    RoadProgram program(home.path());
    Passage passage;
    program.files.fail(std::move(failing));
    if (pictures == Pictures::taken) {
        program.files.on_operation = [&] { passage.before.push_back(snapshot_of(home)); };
    }
    try {
        road.take(program);
    } catch (const FatalFailure& failure) {
        passage.ending = Ending::fatal;
        passage.told = failure.what();
    } catch (const Stuck& stuck) {
        passage.ending = Ending::waits;
        passage.told = stuck.field;
    }
    passage.log = program.files.log();
    if (pictures == Pictures::taken) passage.before.push_back(snapshot_of(home));
    return passage;
}

bool same(const FileOperation& one, const FileOperation& other) {
    return one.operation == other.operation && one.path == other.path;
}

class FailingRoad : public testing::TestWithParam<RoadOutcomes> {
  protected:
    FailingRoad() {
        TemporaryFolder home;
        road_.prepare(home);
        undisturbed_ = take(road_, home, {}, Pictures::taken);
    }

    const Snapshot& start() const { return undisturbed_.before.front(); }
    const Snapshot& end() const { return undisturbed_.before.back(); }

    // The outcome of the operation at this place of the undisturbed run.
    const Outcome* outcome_of(std::size_t at) {
        const FileOperation& operation = undisturbed_.log[at];
        int occurrence = 0;
        for (std::size_t i = 0; i <= at; ++i) {
            if (same(undisturbed_.log[i], operation)) ++occurrence;
        }
        const auto fits = [&](const Outcome& outcome) {
            return outcome.operation == operation.operation && outcome.path == operation.path &&
                   (outcome.occurrence == 0 || outcome.occurrence == occurrence);
        };
        const auto& own = GetParam().outcomes;
        if (const auto found = std::find_if(own.begin(), own.end(), fits); found != own.end()) {
            used_.insert(static_cast<std::size_t>(found - own.begin()));
            return &*found;
        }
        const auto& general = outcomes_of_every_road();
        const auto found = std::find_if(general.begin(), general.end(), fits);
        return found == general.end() ? nullptr : &*found;
    }

    // What an undisturbed run leaves when a file is another from the start.
    Snapshot end_with(const std::string& file, const std::optional<std::string>& text) const {
        TemporaryFolder home;
        road_.prepare(home);
        fs::remove(home.path() / file);
        if (text) home.write(file, *text);
        take(road_, home);
        Snapshot snapshot = snapshot_of(home);
        snapshot[file] = start().at(file);
        return snapshot;
    }

    // What has to be there after the run, but for texts that may be written in part: those are
    // looked at here, and taken over.
    Snapshot expected_home(std::size_t at, const Outcome& outcome, const Passage& failing,
                           const Snapshot& found) const {
        const FileOperation& failed = undisturbed_.log[at];
        Snapshot expected = outcome.ending == Ending::goes_on ? end() : reached(at, failing);
        if (failed.operation == Operation::make_folder && !failed.path.empty()) {
            leave_out_folder(expected, failed.path);
        }
        const std::string file = key_of(outcome.file.empty() ? outcome.path : outcome.file);
        const std::string text = found.contains(file) ? found.at(file) : std::string();
        switch (outcome.left) {
            case Left::as_without_failure: break;
            case Left::part_written:
            case Left::lines_written: {
                const std::string& whole = end().at(file);
                EXPECT_LT(text.size(), whole.size());
                EXPECT_TRUE(whole.starts_with(text));
                if (outcome.ending == Ending::fatal) {
                    const bool cut_back = outcome.left == Left::lines_written;
                    EXPECT_GE(text.size() + (cut_back ? longest_line(whole) : 0),
                              expected.at(file).size());
                }
                EXPECT_TRUE(outcome.left == Left::part_written || ends_a_line(text));
                expected[file] = text;
                break;
            }
            case Left::written_anew: {
                const std::string& whole = end().at(file);
                EXPECT_TRUE(text.ends_with(whole));
                const std::string first = text.substr(0, text.size() - whole.size());
                EXPECT_TRUE(whole.starts_with(first));
                EXPECT_TRUE(ends_a_line(first));
                expected[file] = text;
                break;
            }
            case Left::as_at_the_start:
                expected.erase(file);
                if (start().contains(file)) expected[file] = start().at(file);
                break;
            case Left::nothing_in_it: expected[file].clear(); break;
            case Left::as_if_cut_in_half:
                return end_with(file, start().at(file).substr(0, start().at(file).size() / 2));
            case Left::as_if_not_there: return end_with(file, std::nullopt);
        }
        return expected;
    }

    // What the home held where a run ended early. A program that waits has written nothing since
    // the failure. One that has ended did what the undisturbed one did up to there; cutting a file
    // back belongs to the write before it.
    const Snapshot& reached(std::size_t at, const Passage& failing) const {
        std::vector<FileOperation> log = failing.log;
        if (failing.ending == Ending::waits) {
            for (std::size_t i = at + 1; i < log.size(); ++i) EXPECT_FALSE(changes(log[i]));
            return undisturbed_.before[at];
        }
        if (log.back().operation == Operation::cut_back) log.pop_back();
        EXPECT_TRUE(log.size() <= undisturbed_.log.size() &&
                    std::equal(log.begin(), log.end(), undisturbed_.log.begin(), same));
        return undisturbed_.before[log.size() - 1];
    }

    static bool changes(const FileOperation& operation) {
        constexpr std::array harmless{Operation::open_to_read, Operation::read,
                                      Operation::list_folders, Operation::list_files};
        return std::find(harmless.begin(), harmless.end(), operation.operation) == harmless.end();
    }

    void leave_out_folder(Snapshot& expected, const std::string& path) const {
        std::string key = path.starts_with("c:") ? key_of(path) : "brooklander/" + path;
        if (!key.ends_with('/')) key += '/';
        if (start().contains(key)) return;
        std::erase_if(expected, [&](const auto& entry) { return entry.first.starts_with(key); });
    }

    static std::size_t longest_line(std::string_view text) {
        std::size_t longest = 0;
        while (!text.empty()) {
            const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
            longest = std::max(longest, length);
            text.remove_prefix(length);
        }
        return longest;
    }

    void check(std::size_t at) {
        const FileOperation& failed = undisturbed_.log[at];
        SCOPED_TRACE(std::to_string(at + 1) + ": " + std::string(name_of(failed.operation)) + " " +
                     failed.path);
        const Outcome* const outcome = outcome_of(at);
        ASSERT_NE(outcome, nullptr) << "no outcome is told";

        TemporaryFolder home;
        road_.prepare(home);
        const Passage failing = take(road_, home, {at + 1});
        ASSERT_EQ(failing.ending, outcome->ending) << failing.told;
        const std::string told = outcome->told.empty() ? outcome->path : outcome->told;
        if (failing.ending == Ending::fatal) {
            EXPECT_NE(failing.told.find("\"" + to_utf8(told) + "\""), std::string::npos)
                << failing.told;
        }
        if (failing.ending == Ending::waits) {
            EXPECT_EQ(failing.told, told);
        }
        const Snapshot found = snapshot_of(home);
        EXPECT_EQ(difference(expected_home(at, *outcome, failing, found), found), "");

        const Passage again = take(road_, home);
        if (!outcome->mends) return;
        EXPECT_EQ(again.ending, Ending::goes_on) << again.told;
        Snapshot mended = end();
        if (const std::string& appended = GetParam().appended; !appended.empty()) {
            const std::string file = key_of(appended);
            if (found.contains(file)) mended[file].insert(0, found.at(file));
        }
        EXPECT_EQ(difference(mended, snapshot_of(home)), "");
    }

    const Road& road_ = GetParam().road;
    Passage undisturbed_;
    std::set<std::size_t> used_;
};

TEST_P(FailingRoad, EveryOperationThatFailsHasTheOutcomeThatIsTold) {
    ASSERT_EQ(undisturbed_.ending, Ending::goes_on) << undisturbed_.told;
    for (std::size_t at = 0; at < undisturbed_.log.size(); ++at) check(at);
    for (std::size_t i = 0; i < GetParam().outcomes.size(); ++i) {
        const Outcome& outcome = GetParam().outcomes[i];
        EXPECT_TRUE(used_.contains(i))
            << name_of(outcome.operation) << " " << outcome.path << " never comes up";
    }
}

// A load file that can neither be written nor cut back ends where the write did.
TEST_P(FailingRoad, AWriteWhoseFileCannotBeCutBackTouchesNoOtherFile) {
    for (std::size_t at = 0; at < undisturbed_.log.size(); ++at) {
        const FileOperation& failed = undisturbed_.log[at];
        if (failed.operation != Operation::write || failed.path != road_files::load_file) continue;
        SCOPED_TRACE(at + 1);
        TemporaryFolder home;
        road_.prepare(home);
        const Passage failing = take(road_, home, {at + 1, at + 2});
        EXPECT_EQ(failing.log.at(at + 1).operation, Operation::cut_back);
        Snapshot found = snapshot_of(home);
        Snapshot expected = failing.ending == Ending::fatal ? undisturbed_.before[at] : end();
        const std::string file = key_of(failed.path);
        if (failing.ending == Ending::fatal) {
            EXPECT_TRUE(end().at(file).starts_with(found.at(file)));
        } else {
            EXPECT_TRUE(found.at(file).ends_with(end().at(file)));
        }
        found.erase(file);
        expected.erase(file);
        EXPECT_EQ(difference(expected, found), "");
    }
}

std::string test_name(const testing::TestParamInfo<RoadOutcomes>& info) {
    std::string name = info.param.road.name;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Roads, FailingRoad, testing::ValuesIn(all_roads()), test_name);

}  // namespace
}  // namespace brooklander::test
