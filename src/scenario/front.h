// What a scenario works: the program as its user has it, with windows or without.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/help.h"
#include "program.h"
#include "shared/grid.h"

namespace brooklander::scenario {

// One front serves one program, from its start to its end. The user's acts are done to fields that
// a user could work; a failure that ends the program leaves them as a FatalFailure, and what a user
// of windows could not do after all is an Unmet.
class Front {
  public:
    Front() = default;
    Front(const Front&) = delete;
    Front& operator=(const Front&) = delete;
    virtual ~Front() = default;

    // The program's help viewer.
    virtual Help& help() = 0;

    virtual void start(Program& program) = 0;

    // Lets the program go, before its fields do.
    virtual void end() {}

    // A button, menu entry, option, tick box or text box.
    virtual void click(Field& field) = 0;
    virtual void type(TextBox& box, const std::string& text) = 0;
    virtual void click_entry(EntryList& list, std::size_t index) = 0;
    virtual void click_cell(Grid& grid, GridCell cell) = 0;

    // Into a text box or the current cell of a grid; keys behind a Tab, or behind a key that has
    // hidden or disabled the field, do not reach it.
    virtual void press_keys(Field& field, const std::vector<Key>& keys) = 0;

    // After every command: throws Unmet where what is shown is not what the fields hold.
    virtual void check() = 0;

    // Saves a picture of the foremost window, where there are windows. Throws Unmet.
    virtual void take_picture(const std::string& name) = 0;
};

// Makes the front for one program on these files.
using FrontMaker = std::function<std::unique_ptr<Front>(const Files& files)>;

}  // namespace brooklander::scenario
