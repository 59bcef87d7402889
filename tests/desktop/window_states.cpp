#include "desktop/window_states.h"

#include <stdexcept>

#include "desktop/characteristic_roads.h"
#include "desktop/logger_roads.h"
#include "desktop/wizard_roads.h"

namespace brooklander::test {
namespace {

constexpr const char* sample_table =
    "Station\tDate\tTime\tSample\tDepth\tCrew\tRemarks\tTemperature\tpH\tOxygen\n"
    "LL-01\t05/04/2021\t915\tLL21-001\t0.5\tRoe Richard\t\t11.0\t7.2\t9.8\r\n"
    "LL-02\t05/04/2021\t0945\t\t2.5\tDoe Jane\twind from the west, waves\t10.2\t<7.3\t\r\n";

void choose_file(DrawnProgram& drawn) {
    drawn.log_on();
    drawn.folder.write("data/lake survey of a rather long name.txt", sample_table);
    drawn.act([&] {
        drawn.start_screen().mnuImport.choose();
        DrawnProgram::select(drawn.start_screen().Dir1, "data");
        drawn.start_screen().lstImportFileBox.click_entry(0);
    });
}

void view_file(DrawnProgram& drawn) {
    choose_file(drawn);
    drawn.act([&] { drawn.start_screen().cmdView.press(); });
}

void name_output(DrawnProgram& drawn) {
    view_file(drawn);
    drawn.act([&] {
        drawn.import_screen().cmdYes.press();
        drawn.screens().frmPreferences.optVox.choose();
    });
}

void choose_columns(DrawnProgram& drawn) {
    name_output(drawn);
    drawn.act([&] {
        drawn.import_screen().cmdSave.press();
        drawn.import_screen().cmdActivitySkip.press();
        drawn.assign_station_date_and_results();
        drawn.import_screen().cmdTime.press();
    });
}

void ask_for_characteristics(DrawnProgram& drawn) {
    choose_file(drawn);
    drawn.act([&] {
        drawn.start_screen().chkPreferences.set_ticked(true);
        drawn.screens().frmPreferencesSampleOption.chkChar.set_ticked(true);
        drawn.start_screen().cmdView.press();
    });
}

Roads all_roads() {
    Roads all{
        {"start 1 logon", [](DrawnProgram&) {}},
        {"start 2 typed",
         [](DrawnProgram& drawn) {
             drawn.act([&] {
                 drawn.start_screen().txtOracleID.type("jdoe");
                 drawn.start_screen().txtOraclePassWord.type("secret");
             });
         }},
        {"start 3 refused",
         [](DrawnProgram& drawn) {
             drawn.database.refuses = true;
             drawn.log_on();
         }},
        {"start 4 logged on", &DrawnProgram::log_on},
        {"start 5 exit and about",
         [](DrawnProgram& drawn) {
             drawn.log_on();
             drawn.act([&] {
                 drawn.start_screen().mnuExit.choose();
                 drawn.start_screen().mnuAbout.choose();
             });
         }},
        {"start 6 files", choose_file},
        {"import 1 view", view_file},
        {"import 2 output", name_output},
        {"import 3 filler",
         [](DrawnProgram& drawn) {
             name_output(drawn);
             drawn.act([&] {
                 drawn.import_screen().cmdSave.press();
                 drawn.import_screen().txtActivityID.type("LAKE");
             });
         }},
        {"import 4 columns", choose_columns},
        {"import 5 kept columns",
         [](DrawnProgram& drawn) {
             choose_columns(drawn);
             drawn.act([&] { drawn.import_screen().frameSameSelections.show(); });
         }},
        {"import 6 first row",
         [](DrawnProgram& drawn) {
             choose_columns(drawn);
             drawn.act([&] {
                 drawn.import_screen().cmdContinue.press();
                 drawn.table().click_cell({1, 0});
             });
         }},
        {"import 7 converted",
         [](DrawnProgram& drawn) {
             choose_columns(drawn);
             drawn.act([&] { drawn.convert(1); });
         }},
        {"import 8 characteristics", ask_for_characteristics},
        {"import 9 characteristic column",
         [](DrawnProgram& drawn) {
             ask_for_characteristics(drawn);
             drawn.act([&] { drawn.import_screen().cmdCharYes.press(); });
         }},
    };
    for (Roads further : {wizard_roads(), characteristic_roads(), logger_roads()}) {
        all.merge(further);
        if (!further.empty()) throw std::logic_error("Two states are " + further.begin()->first);
    }
    return all;
}

}  // namespace

const Roads& roads() {
    static const Roads all = all_roads();
    return all;
}

}  // namespace brooklander::test
