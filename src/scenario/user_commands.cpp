#include <algorithm>

#include "platform/code_page.h"
#include "scenario/arguments.h"
#include "scenario/scenario_error.h"
#include "scenario/stage.h"
#include "scenario/undrawn_front.h"
#include "scenario/user_words.h"
#include "shared/place_lists.h"

namespace brooklander::scenario {
namespace {

using enum FieldKind;

// What a user does to a field: `check` finds what it is done to and throws Unmet when that is not
// there; `act` does it.
struct UserAct {
    std::string field;
    std::function<void(Field&)> check;
    std::function<void(Front&, Field&)> act;
};

UserAct click_act(const Arguments& arguments) {
    arguments.want(1);
    return {arguments.field(0, {button, menu_entry, option, tick_box, text_box}), [](Field&) {},
            [](Front& front, Field& field) { front.click(field); }};
}

UserAct type_act(const Arguments& arguments) {
    arguments.want(2);
    const std::string& text = arguments.text(1);
    if (!std::all_of(text.begin(), text.end(), can_be_typed)) {
        throw WrongLine("A character that no key types stands in the text.");
    }
    return {arguments.field(0, {text_box}), [](Field&) {},
            [text](Front& front, Field& field) { front.type(static_cast<TextBox&>(field), text); }};
}

UserAct select_act(const Arguments& arguments) {
    const bool counts = arguments.count() == 3;
    if (!counts) arguments.want(2);
    const std::string& entry = arguments.text(1);
    const int which = counts ? arguments.number(2, "place among entries of that text") : 1;
    if (which < 1) throw WrongLine("Entries of one text are counted from 1.");
    return {arguments.field(0, {list, pick_list, drive_list, folder_list, file_list}),
            [=](Field& field) { entry_index(static_cast<EntryList&>(field), entry, which); },
            [=](Front& front, Field& field) {
                auto& entries = static_cast<EntryList&>(field);
                front.click_entry(entries, entry_index(entries, entry, which));
            }};
}

UserAct cell_act(const Arguments& arguments) {
    arguments.want(3);
    const GridCell cell{arguments.number(1, "row"), arguments.number(2, "column")};
    return {
        arguments.field(0, {grid}),
        [cell](Field& field) { want_cell(static_cast<Grid&>(field), cell); },
        [cell](Front& front, Field& field) { front.click_cell(static_cast<Grid&>(field), cell); }};
}

UserAct keys_act(const Arguments& arguments) {
    arguments.want(2);
    return {arguments.field(0, {grid, text_box}), [](Field&) {},
            [keys = keys_in(arguments.text(1))](Front& front, Field& field) {
                front.press_keys(field, keys);
            }};
}

UserAct act_of(const std::string& verb, const Arguments& arguments) {
    if (verb == "click") return click_act(arguments);
    if (verb == "type") return type_act(arguments);
    if (verb == "select") return select_act(arguments);
    if (verb == "cell") return cell_act(arguments);
    if (verb == "keys") return keys_act(arguments);
    arguments.fail();
}

// The command behind `refused` and `force`.
UserAct inner_act(const Arguments& arguments, const std::string& usage) {
    if (arguments.count() == 0) arguments.fail();
    const auto& words = arguments.words();
    return act_of(words.front(),
                  Arguments({words.begin() + 1, words.end()}, arguments.folder(),
                            usage + " click FIELD, type FIELD TEXT, select FIELD ENTRY [WHICH], "
                                    "cell FIELD ROW COLUMN, keys FIELD KEYS"));
}

// Why a user could not act on a field that is not usable.
std::string obstacle(const Field& field) {
    for (const Field* holder = &field; holder != nullptr; holder = holder->container()) {
        if (!holder->visible()) return holder->path() + " is hidden";
        if (!holder->enabled()) return holder->path() + " is disabled";
    }
    return {};
}

Step while_running(std::function<void(Stage&)> act) {
    return {{}, Works::while_running, false, std::move(act)};
}

}  // namespace

Step user_step(const std::string& verb, const Arguments& arguments) {
    return while_running([user = act_of(verb, arguments)](Stage& stage) {
        Field& field = stage.field(user.field);
        user.check(field);
        if (!field.usable()) {
            throw Unmet("A user cannot do that to " + field.path() + ": " + obstacle(field) + ".");
        }
        user.act(stage.front(), field);
    });
}

Step refused_step(const Arguments& arguments) {
    return while_running([user = inner_act(arguments, "refused")](Stage& stage) {
        Field& field = stage.field(user.field);
        user.check(field);
        if (field.usable()) throw Unmet("A user can do that to " + field.path() + ".");
    });
}

Step force_step(const Arguments& arguments) {
    return while_running([user = inner_act(arguments, "force")](Stage& stage) {
        Field& field = stage.field(user.field);
        user.check(field);
        UndrawnFront on_the_field_itself;
        user.act(on_the_field_itself, field);
    });
}

}  // namespace brooklander::scenario
