// The program without windows: the user's acts go to the fields.
#pragma once

#include "scenario/front.h"

namespace brooklander::scenario {

class UndrawnFront : public Front {
  public:
    Help& help() override { return help_; }
    void start(Program& program) override { program.start(); }
    void click(Field& field) override;
    void type(TextBox& box, const std::string& text) override { box.type(text); }
    void click_entry(EntryList& list, std::size_t index) override { list.click_entry(index); }
    void click_cell(Grid& grid, GridCell cell) override { grid.click_cell(cell); }
    void press_keys(Field& field, const std::vector<Key>& keys) override;
    void check() override {}
    void take_picture(const std::string& /*name*/) override {}

  private:
    // Files of help that were asked for are shown to nobody.
    class NoHelp : public Help {
      public:
        void show(std::string_view /*path*/) override {}
    };

    NoHelp help_;
};

}  // namespace brooklander::scenario
