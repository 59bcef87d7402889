#include "scenario/arguments.h"
#include "scenario/scenario_error.h"
#include "scenario/stage.h"
#include "scenario/user_words.h"
#include "shared/data_source.h"
#include "shared/place_lists.h"

namespace brooklander::scenario {
namespace {

using enum FieldKind;

void set_field(Field& field, const std::string& text) {
    switch (field.kind()) {
        case tick_box: static_cast<TickBox&>(field).set_ticked(text == "1"); break;
        case option: static_cast<Option&>(field).set_on(text == "1"); break;
        default: field.set_text(text); break;
    }
}

std::function<void(Stage&)> open_act(const Arguments& arguments) {
    arguments.want(1);
    return [path = arguments.field(0, {screen})](Stage& stage) {
        auto& opened = static_cast<Screen&>(stage.field(path));
        opened.show();
        opened.bring_forward();
    };
}

std::function<void(Stage&)> set_act(const Arguments& arguments) {
    arguments.want(2);
    const std::string path = arguments.field(0, {panel, label, text_box, button, tick_box, option,
                                                 pick_list, folder_list, menu_entry, data_source});
    const std::string& text = arguments.text(1);
    const FieldKind kind = kind_of(path);
    if ((kind == tick_box || kind == option) && text != "0" && text != "1") {
        throw WrongLine(path + " is set to 0 or 1.");
    }
    return [path, text](Stage& stage) { set_field(stage.field(path), text); };
}

std::function<void(Stage&)> add_act(const Arguments& arguments) {
    arguments.want(2);
    return [path = arguments.field(0, {list, pick_list, grid}),
            text = arguments.text(1)](Stage& stage) {
        Field& field = stage.field(path);
        if (field.kind() == grid) {
            static_cast<Grid&>(field).add_row(text);
        } else {
            static_cast<EntryList&>(field).add(text);
        }
    };
}

std::function<void(Stage&)> setcell_act(const Arguments& arguments) {
    arguments.want(4);
    const GridCell cell{arguments.number(1, "row"), arguments.number(2, "column")};
    return [path = arguments.field(0, {grid}), cell, text = arguments.text(3)](Stage& stage) {
        auto& table = static_cast<Grid&>(stage.field(path));
        want_cell(table, cell);
        table.set_cell(cell.row, cell.column, text);
    };
}

std::function<void(Stage&)> act_of(const std::string& verb, const Arguments& arguments) {
    if (verb == "open") return open_act(arguments);
    if (verb == "set") return set_act(arguments);
    if (verb == "add") return add_act(arguments);
    return setcell_act(arguments);
}

}  // namespace

Step program_step(const std::string& verb, const Arguments& arguments) {
    return {{}, Works::while_running, false, act_of(verb, arguments)};
}

}  // namespace brooklander::scenario
