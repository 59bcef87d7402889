// Thousands of random acts that a user could do, at the fields alone and at the windows: after
// each, both programs must hold the same, the windows must show it, and nothing may have failed but
// what has to.

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <random>

#include "platform/desktop/drawn_front.h"
#include "platform/fatal_failure.h"
#include "platform/files/host_files.h"
#include "scenario/scenario_error.h"
#include "scenario/undrawn_front.h"
#include "shared/place_lists.h"
#include "support/temporary_folder.h"
#include "support/workable_fields.h"

namespace brooklander {
namespace {

using scenario::Front;
using scenario::Unmet;

// Lets everyone in and answers every statement with two rows of as many columns as any of them has.
class SmallDatabase : public Database {
  public:
    void try_connect(std::string_view /*connect_string*/) override {}
    QueryResult run(const Query& /*query*/) override {
        return {
            {"org_id", "name", "name", "number", "type"},
            {{"LAKES", "L1", "Lake Watch", "1", ""}, {"RIVERS", "R1", "River Watch", "2", "Net"}}};
    }
};

// A program on a folder of its own.
class Run {
  public:
    explicit Run(bool drawn) {
        folder_.write("brooklander/voxoutfiles/old.txt", "an old output\r\n");
        folder_.write("data/lake.txt",
                      "Station\tDate\tTime\tpH\tOxygen\r\nLL-01\t05/04/2021\t915\t7.2\t<1\r\n"
                      "LL-02\t05/05/2021\t\tND\t9.8\r\n");
        folder_.write("data/pond.txt", "Station\tpH\r\n\r\nP-1\t6.9\r\n");
        folder_.write("data/empty.txt", "");
        folder_.write("brooklander/preferences/lake.txt",
                      "organization       =LAKES\r\nactivitytype       =Sample\r\n"
                      "medium             =Water\r\nprojectid          =P1/P2\r\n");
        folder_.write("brooklander/preferences/new.txt", "");
        folder_.write("brooklander/characteristics/lake.txt", "pH\r\nOxygen\tdissolved\r\n");
        for (const char* const list :
             {"samplefraction.txt", "statistictype.txt", "duration.txt", "temperature.txt"}) {
            folder_.write(std::filesystem::path("brooklander") / list, "One\r\nTwo\r\n");
        }
        front_ =
            drawn ? desktop::drawn_front(files_, {}) : std::make_unique<scenario::UndrawnFront>();
        program_ = std::make_unique<Program>(Platform{files_, database_, front_->help()});
        front_->start(*program_);
    }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;
    ~Run() { front_->end(); }

    Front& front() { return *front_; }
    Screens& screens() { return program_->screens(); }
    bool ended() const { return program_->ended(); }

    // The counterpart of another program's field.
    Field& counterpart(const Field& field) {
        for (Screen* const screen : screens().desk.screens()) {
            if (screen->name() != field.screen().name()) continue;
            for (Field* const own : screen->fields()) {
                if (own->name() == field.name()) return *own;
            }
        }
        throw Unmet("There is no " + field.path() + " in the other program.");
    }

  private:
    test::TemporaryFolder folder_;
    HostFiles files_{folder_.path()};
    SmallDatabase database_;
    std::unique_ptr<Front> front_;
    std::unique_ptr<Program> program_;
};

// All that a field holds, as a text to compare.
std::string state_of(const Field& field) {
    std::string state = field.path() + (field.visible() ? " visible" : " hidden") +
                        (field.enabled() ? " enabled" : " disabled") +
                        (field.focused() ? " focused" : "") + " \"" + field.text() + "\"";
    if (const auto* const box = dynamic_cast<const TickBox*>(&field)) {
        state += " " + std::to_string(box->value());
    } else if (const auto* const option = dynamic_cast<const Option*>(&field)) {
        state += " " + std::to_string(option->value());
    } else if (const auto* const list = dynamic_cast<const EntryList*>(&field)) {
        state += " selected " + (list->selected() ? std::to_string(*list->selected()) : "none");
        for (const std::string& entry : list->entries()) state += " " + entry;
    } else if (const auto* const grid = dynamic_cast<const Grid*>(&field)) {
        state += " at " + std::to_string(grid->current().row) + " " +
                 std::to_string(grid->current().column);
        for (int row = 0; row < grid->rows(); ++row) {
            state += "\n";
            for (int column = 0; column < 6; ++column) {
                state += std::string(grid->cell(row, column)) + "|";
            }
        }
    }
    return state;
}

std::string difference(Screens& undrawn, Screens& drawn) {
    const auto& screens = undrawn.desk.screens();
    for (std::size_t at = 0; at < screens.size(); ++at) {
        Screen& one = *screens[at];
        Screen& other = *drawn.desk.screens()[at];
        if (one.visible() != other.visible() || one.pointer() != other.pointer() ||
            one.text() != other.text()) {
            return one.name();
        }
        for (std::size_t field = 0; field < one.fields().size(); ++field) {
            const std::string here = state_of(*one.fields()[field]);
            const std::string there = state_of(*other.fields()[field]);
            if (here != there) return here + "\nbut drawn\n" + there;
        }
    }
    return {};
}

// What failures have to end the program: files that cannot be made, opened or deleted.
bool is_required(const std::string& sentence) {
    for (const char* const told :
         {"cannot be opened", "cannot be created", "cannot be deleted", "cannot be removed",
          "cannot be written", "The table has no cell"}) {
        if (sentence.find(told) != std::string::npos) return true;
    }
    return false;
}

class Walk {
  public:
    explicit Walk(unsigned seed) : random_(seed) {}

    // One act, on both programs; afresh after an end.
    void step() {
        constexpr int most_of_a_walk = 150;
        if (!undrawn_ || undrawn_->ended() || ++length_ > most_of_a_walk) begin();
        Field* const field = some_field();
        if (field == nullptr) return;
        const Act act = some_act(*field);
        told_ = act.told;
        const std::string here = outcome(*undrawn_, *field, act);
        const std::string there = outcome(*drawn_, drawn_->counterpart(*field), act);
        ASSERT_EQ(here, there) << told_;
        if (!here.empty()) {
            ASSERT_TRUE(is_required(here)) << told_ << ": " << here;
            ++failures;
            undrawn_.reset();
            return;
        }
        if (undrawn_->ended()) return;
        ASSERT_EQ(difference(undrawn_->screens(), drawn_->screens()), "") << told_;
        if (undrawn_->screens().frmImportFileDisplay.frameConverted.seen()) ++conversions;
    }

    int conversions = 0;
    int failures = 0;

  private:
    struct Act {
        std::string told;
        std::function<void(Front&, Field&)> act;
    };

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

    void begin() {
        length_ = 0;
        undrawn_.reset();
        drawn_.reset();
        undrawn_ = std::make_unique<Run>(false);
        drawn_ = std::make_unique<Run>(true);
        for (Run* const run : {undrawn_.get(), drawn_.get()}) {
            FrmStart& start = run->screens().frmStart;
            run->front().type(start.txtOracleID, "jdoe");
            run->front().type(start.txtOraclePassWord, "secret");
            run->front().click(start.cmdUIDok);
        }
        const int length = below(7);
        for (Run* const run : {undrawn_.get(), drawn_.get()}) go_ahead(*run, length);
    }

    // Some walks begin further down a road: 1 at a file's table, 2 at its columns, 3 behind its
    // conversion, 4 at the sample options of a new configuration, 5 at one that is edited, 6 at one
    // that a file is attached to.
    static void go_ahead_with_configurations(Run& run, int length) {
        FrmPreferences& manager = run.screens().frmPreferences;
        FrmPreferencesSettings& settings = run.screens().frmPreferencesSettings;
        FrmPreferencesSamples& samples = run.screens().frmPreferencesSamples;
        Front& front = run.front();
        front.click(run.screens().frmStart.mnuPreferences);
        if (length == 5) {
            front.click(manager.optBrookLanderEdit);
            front.click_entry(manager.filePreferences, 0);
            front.click(manager.cmdOpen);
            return;
        }
        front.click(manager.optBrooklanderNew);
        front.type(manager.txtFileName, "brook");
        front.click(manager.cmdNewFileSave);
        front.click_cell(settings.MSHFlexOrganization, {1, 0});
        front.click(settings.chkSample);
        front.click(settings.chkAir);
        front.click(settings.cmdSave);
        front.click_cell(samples.MSHFlexSampleCollection, {1, 0});
        front.click(samples.cmdContinue);
    }

    static void go_ahead(Run& run, int length) {
        FrmStart& start = run.screens().frmStart;
        FrmImportFileDisplay& display = run.screens().frmImportFileDisplay;
        Front& front = run.front();
        if (length == 0) return;
        if (length == 4 || length == 5) {
            go_ahead_with_configurations(run, length);
            return;
        }
        front.click(start.mnuImport);
        front.click_entry(start.Dir1, start.Dir1.find("data").value());
        front.click_entry(start.lstImportFileBox, start.lstImportFileBox.find("lake.txt").value());
        front.click(start.cmdView);
        if (length == 1) return;
        if (length == 6) {
            front.click(display.cmdYes);
            front.click(run.screens().frmPreferences.optUseConfig);
            return;
        }
        for (Field* const field :
             std::initializer_list<Field*>{&display.cmdYes, &run.screens().frmPreferences.optVox,
                                           &display.cmdSave, &display.cmdActivitySkip}) {
            front.click(*field);
        }
        if (length == 2) return;
        for (auto [category, column] :
             {std::pair{&display.cmdStation, 0}, {&display.cmdDate, 1}, {&display.cmdResults, 3}}) {
            front.click(*category);
            front.click_cell(display.MSFlexKeldarIN, {0, column});
        }
        front.click(display.cmdContinue);
        front.click_cell(display.MSFlexKeldarIN, {1, 0});
        front.click(display.cmdRowContinue);
        front.click(display.cmdFormatConfirm);
    }

    // A field of a visible screen that a user can work; leaving the program is rare.
    Field* some_field() {
        std::vector<Field*> usable = test::workable_fields(undrawn_->screens());
        const auto leaves =
            std::find(usable.begin(), usable.end(), &undrawn_->screens().frmStart.cmdYes);
        if (leaves != usable.end() && below(10) > 0) usable.erase(leaves);
        return usable.empty() ? nullptr
                              : usable[static_cast<std::size_t>(below(int(usable.size())))];
    }

    Act some_act(const Field& field) {
        if (const auto* const list = dynamic_cast<const EntryList*>(&field)) {
            const int entry = below(static_cast<int>(list->count()));
            return {"select " + field.path() + " " + std::to_string(entry),
                    [entry](Front& front, Field& own) {
                        front.click_entry(static_cast<EntryList&>(own),
                                          static_cast<std::size_t>(entry));
                    }};
        }
        if (const auto* const grid = dynamic_cast<const Grid*>(&field)) {
            const GridCell cell{below(grid->rows()), below(std::min(8, grid->columns()))};
            if (below(3) == 0) return keys_act(field);
            return {"cell " + field.path() + " " + std::to_string(cell.row) + " " +
                        std::to_string(cell.column),
                    [cell](Front& front, Field& own) {
                        front.click_cell(static_cast<Grid&>(own), cell);
                    }};
        }
        if (field.kind() == FieldKind::text_box && below(3) > 0) {
            if (below(2) == 0) return keys_act(field);
            const std::string text = std::string("LAKE\xE4 7").substr(0, std::size_t(below(8)));
            return {"type " + field.path() + " " + text, [text](Front& front, Field& own) {
                        front.type(static_cast<TextBox&>(own), text);
                    }};
        }
        return {"click " + field.path(), [](Front& front, Field& own) { front.click(own); }};
    }

    Act keys_act(const Field& field) {
        static const std::vector<Key> all{
            {Key::Name::enter}, {Key::Name::erase}, {Key::Name::backspace}, {Key::Name::up},
            {Key::Name::down},  {Key::Name::left},  {Key::Name::right},     {Key::Name::tab},
            Key::of(' '),       Key::of('x'),       {Key::Name::escape},
        };
        std::vector<Key> keys;
        for (int count = 1 + below(4); count > 0; --count) {
            keys.push_back(all[static_cast<std::size_t>(below(static_cast<int>(all.size())))]);
        }
        return {"keys " + field.path(),
                [keys](Front& front, Field& own) { front.press_keys(own, keys); }};
    }

    // The sentence of a failure, or nothing.
    std::string outcome(Run& run, Field& field, const Act& act) {
        try {
            act.act(run.front(), field);
            if (!run.ended()) run.front().check();
            return {};
        } catch (const FatalFailure& failure) {
            return failure.what();
        } catch (const Unmet& unmet) {
            return std::string("unmet: ") + unmet.what();
        }
    }

    std::mt19937 random_;
    std::unique_ptr<Run> undrawn_;
    std::unique_ptr<Run> drawn_;
    std::string told_;
    int length_ = 0;
};

class RandomWalk : public testing::TestWithParam<unsigned> {};

TEST_P(RandomWalk, LeavesBothProgramsTheSame) {
    constexpr int steps = 1500;
    Walk walk(GetParam());
    for (int step = 0; step < steps && !HasFatalFailure(); ++step) walk.step();
    std::cout << walk.conversions << " steps after a conversion, " << walk.failures
              << " failures that had to be\n";
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalk, testing::Range(1U, 9U));

}  // namespace
}  // namespace brooklander
