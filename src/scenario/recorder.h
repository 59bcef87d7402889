// Records what a user does, as a scenario that does it again.
//
// What is recorded is acts, not keys and clicks: the fields tell of each act that they take from a
// user, however it came about, and of nothing that a step of the program does. Played from the same
// files, undrawn or drawn, the lines leave the same files and the same fields.
//
// - A window closed by its frame is its screen's Exit, forced where the Exit's menu is disabled.
// - A list's entry goes by its text; which of several with that text is said where it is not the
//   first. Of selections in the start screen's list of files that follow each other directly, as
//   arrow keys make them, the last one stands for all: each takes the other's place whole.
// - Where a grid's current cell alone has moved, nothing is written before that matters: a click
//   goes to its cell by itself, Enter is a click, and before any other act `keys` lead to the cell.
//   In grids that are typed into, or that notice the way, all keys are written in their order.
// - What the user id and the password were is never written; scenario/recording.h says how.
//   Attempts to log on that failed are left out when the next thing was to try again, since a
//   scenario that is given the right password cannot fail.
// - That a text box got the keyboard is no act, nor is what was done to the help or to this
//   recorder's own menu. The frames of screens without an Exit are not recorded: no menu leads to
//   them.
#pragma once

#include <optional>
#include <vector>

#include "scenario/edit_lines.h"
#include "scenario/recorded_line.h"
#include "scenario/recording.h"
#include "screens.h"

namespace brooklander::scenario {

class Recorder {
  public:
    // Records from now on, which is before the program starts. The screens must live as long as the
    // recorder, and it as long as users work them.
    explicit Recorder(Screens& screens);
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;
    ~Recorder();

    // What has been done until now.
    Recording recording() const;

  private:
    struct BoxRun {
        TextBox* box;
        bool forced;
        std::vector<Edit> edits;
    };
    struct GridMove {
        Grid* grid;
        GridCell from;
    };

    void take(Field& field, const UserAct& act);
    void take_click(Field& field);
    void take_edit(TextBox& box, const Edited& edited);
    void take_entry(EntryList& list, std::size_t index);
    void take_cell(Grid& grid, GridCell cell);
    void take_key(Grid& grid, Key key);
    void take_move(Grid& grid, GridCell cell);
    void take_keys(Grid& grid, const PressedKeys& keys);
    void add(RecordedLine line);

    // Of what still waits to be seen whole: the lines that it would be now.
    std::vector<RecordedLine> waiting_lines() const;
    std::vector<RecordedLine> lines_of(const BoxRun& run) const;
    void write_what_waits();

    void note_credentials();
    void forget_failed_logon();
    bool is_credential(const Field& field) const;

    Screens& screens_;
    std::vector<RecordedLine> lines_;
    std::optional<BoxRun> run_;
    std::optional<GridMove> move_;
    std::vector<std::string> user_ids_;   // that a logon was tried with
    std::vector<std::string> passwords_;  // the same
};

}  // namespace brooklander::scenario
