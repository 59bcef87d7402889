#include "scenario/recorder.h"

#include <algorithm>
#include <utility>

#include "shared/place_lists.h"

namespace brooklander::scenario {
namespace {

// Lets an act be told apart by its type.
template <typename... Functions>
struct Cases : Functions... {
    using Functions::operator()...;
};
template <typename... Functions>
Cases(Functions...) -> Cases<Functions...>;

// Whether the way to a cell matters there, or the keys do more than lead to it.
bool notices_keys(const Grid& grid) { return grid.on_key || grid.on_enter || grid.on_leave; }

bool is_arrow(Key key) {
    return key.name == Key::Name::up || key.name == Key::Name::down ||
           key.name == Key::Name::left || key.name == Key::Name::right;
}

// The way that the arrow keys lead from one cell to another, across first.
PressedKeys arrows(const Grid& grid, GridCell from, GridCell to) {
    PressedKeys keys;
    const auto go = [&](Key::Name key, int rows_down, int columns_right) {
        const GridCell next = grid.step_from(from, rows_down, columns_right);
        if (next == from) return false;
        keys.push_back({key});
        from = next;
        return true;
    };
    while (from.column < to.column && go(Key::Name::right, 0, 1)) {
    }
    while (from.column > to.column && go(Key::Name::left, 0, -1)) {
    }
    while (from.row < to.row && go(Key::Name::down, 1, 0)) {
    }
    while (from.row > to.row && go(Key::Name::up, -1, 0)) {
    }
    return keys;
}

// An entry by what `select` finds it by.
SelectedEntry entry_of(const EntryList& list, std::size_t index) {
    const std::string text(list.entry(index));
    if (list.find(text) == index) return {text};
    if (list.kind() == FieldKind::folder_list) {
        const std::string path = static_cast<const FolderList&>(list).entry_path(index);
        if (list.find(path) == index) return {path};
    }
    const auto begin = list.entries().begin();
    const auto same_before = std::count(begin, begin + static_cast<std::ptrdiff_t>(index), text);
    return {text, static_cast<std::size_t>(same_before) + 1};
}

void add_once(std::vector<std::string>& values, const std::string& value) {
    if (value.empty()) return;
    std::erase(values, value);
    values.push_back(value);
}

}  // namespace

Recorder::Recorder(Screens& screens) : screens_(screens) {
    screens_.desk.on_user_act = [this](Field& field, const UserAct& act) { take(field, act); };
}

Recorder::~Recorder() { screens_.desk.on_user_act = nullptr; }

void Recorder::take(Field& field, const UserAct& act) {
    std::visit(
        Cases{[&](const Clicked&) { take_click(field); },
              [&](const Edited& edited) { take_edit(static_cast<TextBox&>(field), edited); },
              [&](const EntryClicked& entry) {
                  take_entry(static_cast<EntryList&>(field), entry.index);
              },
              [&](const CellClicked& click) { take_cell(static_cast<Grid&>(field), click.cell); },
              [&](const KeyPressed& press) { take_key(static_cast<Grid&>(field), press.key); },
              [&](const MovedTo& move) { take_move(static_cast<Grid&>(field), move.cell); }},
        act);
}

void Recorder::take_click(Field& field) {
    if (&field == &screens_.frmStart.cmdUIDok) {
        note_credentials();
        forget_failed_logon();
    }
    add({"click", &field, Nothing{}});
}

void Recorder::take_edit(TextBox& box, const Edited& edited) {
    const bool forced = !box.usable();
    const bool goes_on = run_ && run_->box == &box && run_->forced == forced &&
                         run_->edits.back().after == box.text();
    if (!goes_on) {
        write_what_waits();
        run_ = BoxRun{&box, forced, {}};
    }
    run_->edits.push_back({box.text(), edited.text});
}

void Recorder::take_entry(EntryList& list, std::size_t index) {
    write_what_waits();
    const bool takes_the_place = &list == &screens_.frmStart.lstImportFileBox && !lines_.empty() &&
                                 lines_.back().field == &list;
    if (takes_the_place) lines_.pop_back();
    add({"select", &list, entry_of(list, index)});
}

// In a heading it does nothing.
void Recorder::take_cell(Grid& grid, GridCell cell) {
    if (cell.row < grid.fixed_rows()) return;
    if (move_ && move_->grid == &grid) move_.reset();
    add({"cell", &grid, cell});
}

void Recorder::take_key(Grid& grid, Key key) {
    if (notices_keys(grid)) {
        take_keys(grid, {key});
    } else if (is_arrow(key)) {
        take_move(grid, grid.current());
    } else if (key.name == Key::Name::enter || key == Key::of(' ')) {
        if (grid.current().row < grid.rows()) take_cell(grid, grid.current());
    }
}

// Where it ends is seen when it matters.
void Recorder::take_move(Grid& grid, GridCell cell) {
    if (notices_keys(grid)) {
        take_keys(grid, arrows(grid, grid.current(), cell));
        return;
    }
    if (move_ && move_->grid == &grid) return;
    write_what_waits();
    move_ = GridMove{&grid, grid.current()};
}

void Recorder::take_keys(Grid& grid, const PressedKeys& keys) {
    write_what_waits();
    const bool goes_on =
        !lines_.empty() && lines_.back().field == &grid && lines_.back().verb == "keys";
    if (!goes_on) add({"keys", &grid, PressedKeys{}});
    auto& all = std::get<PressedKeys>(lines_.back().what);
    all.insert(all.end(), keys.begin(), keys.end());
}

void Recorder::add(RecordedLine line) {
    write_what_waits();
    line.forced = !line.field->usable();
    lines_.push_back(std::move(line));
}

std::vector<RecordedLine> Recorder::waiting_lines() const {
    if (move_) {
        const PressedKeys keys = arrows(*move_->grid, move_->from, move_->grid->current());
        if (keys.empty()) return {};
        return {{"keys", move_->grid, keys}};
    }
    if (!run_) return {};
    std::vector<RecordedLine> lines = lines_of(*run_);
    for (RecordedLine& line : lines) line.forced = run_->forced;
    return lines;
}

std::vector<RecordedLine> Recorder::lines_of(const BoxRun& run) const {
    if (!is_credential(*run.box)) return lines_for(*run.box, run.edits);
    if (run.edits.back().after.empty()) return {{"type", run.box, TypedText{}}};
    const bool is_user_id = run.box == &screens_.frmStart.txtOracleID;
    return {{"type", run.box, Credential{is_user_id ? user_variable : password_variable}}};
}

void Recorder::write_what_waits() {
    std::vector<RecordedLine> lines = waiting_lines();
    std::move(lines.begin(), lines.end(), std::back_inserter(lines_));
    run_.reset();
    move_.reset();
}

bool Recorder::is_credential(const Field& field) const {
    return &field == &screens_.frmStart.txtOracleID ||
           &field == &screens_.frmStart.txtOraclePassWord;
}

// The newest stand last.
void Recorder::note_credentials() {
    add_once(user_ids_, screens_.frmStart.txtOracleID.text());
    add_once(passwords_, screens_.frmStart.txtOraclePassWord.text());
}

// Takes the attempts before this one off the end: OK, the button of the failure's panel, and what
// went into the boxes until then.
void Recorder::forget_failed_logon() {
    write_what_waits();
    const FrmStart& start = screens_.frmStart;
    const auto newest = std::find_if(lines_.rbegin(), lines_.rend(),
                                     [&](const auto& line) { return !is_credential(*line.field); });
    if (newest == lines_.rend() || newest->field != &start.cmdOracleErrorOk) return;
    const auto first = std::find_if(newest, lines_.rend(), [&](const auto& line) {
        return !is_credential(*line.field) && line.field != &start.cmdOracleErrorOk &&
               line.field != &start.cmdUIDok;
    });
    lines_.erase(first.base(), newest.base());
}

Recording Recorder::recording() const {
    std::vector<RecordedLine> lines = lines_;
    std::vector<RecordedLine> waiting = waiting_lines();
    std::move(waiting.begin(), waiting.end(), std::back_inserter(lines));
    Credentials credentials{user_ids_, passwords_};
    add_once(credentials.user_ids, screens_.frmStart.txtOracleID.text());
    add_once(credentials.passwords, screens_.frmStart.txtOraclePassWord.text());
    return {screens_, std::move(lines), credentials};
}

}  // namespace brooklander::scenario
