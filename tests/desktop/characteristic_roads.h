// How a user comes to the states of the three screens of characteristics.
#pragma once

#include <string>

#include "characteristics/source_selection.h"
#include "desktop/drawn_program.h"

namespace brooklander::test {

// From the logon to the choice of a sample file, of which one lies in its folder.
inline void choose_sample(DrawnProgram& drawn) {
    drawn.folder.write("data/lake.txt",
                       "Station\tDate\tTime\tTemperature\tpH\tOxygen, dissolved\tSecchi depth\r\n"
                       "LL-01\t05/04/2021\t915\t11.0\t7.2\t9.8\t4.1\r\n");
    for (const char* const list :
         {"samplefraction.txt", "statistictype.txt", "duration.txt", "temperature.txt"}) {
        drawn.folder.write(std::filesystem::path("brooklander") / list, "Total\r\nDissolved\r\n");
    }
    FrmCharSource& source = drawn.screens().frmCharSource;
    drawn.log_on();
    drawn.act([&] {
        drawn.screens().frmPreferencesSampleOption.chkChar.set_ticked(true);
        drawn.screens().frmCharacteristicDetails.cmdSave.enable();
        for (Label* const file : {&source.lblFile, &drawn.screens().frmCharacteristics.lblFile,
                                  &drawn.screens().frmCharacteristicDetails.lblFileName}) {
            file->set_text("lake monthly.txt");
        }
        drawn.start_screen().hide();
        offer_sample_files(source);
    });
    drawn.act([&] {
        DrawnProgram::select(source.Dir1, "c:\\");
        DrawnProgram::select(source.Dir1, "data");
        source.lstImportFileBox.click_entry(0);
    });
}

// On to the names of its columns.
inline void translate(DrawnProgram& drawn) {
    choose_sample(drawn);
    drawn.act([&] { drawn.screens().frmCharSource.cmdView.press(); });
    drawn.act([&] {
        drawn.import_screen().cmdCharYes.press();
        drawn.table().click_cell({0, 3});
        drawn.import_screen().cmdCharContinue.press();
    });
}

// On to the search for a name's matches, of which there are as many as told.
inline void search(DrawnProgram& drawn, int row, int matches) {
    drawn.database.answer = {{"search_name", "display_name", "d_scr_type_cd"}, {}};
    for (int match = 0; match < matches; ++match) {
        const std::string name =
            "Oxygen, dissolved" + (match == 0 ? "" : " " + std::to_string(match));
        drawn.database.answer.rows.push_back({name, name, "PHYS"});
    }
    FrmCharacteristics& translation = drawn.screens().frmCharacteristics;
    drawn.act([&] { translation.MSFlexChar.click_cell({row, 0}); });
    drawn.act([&] { translation.cmdDisplay.press(); });
}

// On to the details, for which the database has something or nothing.
inline void detail(DrawnProgram& drawn, bool with_rows = true) {
    translate(drawn);
    search(drawn, 2, 3);
    drawn.database.answer = {{"code", "name", "id_code"}, {}};
    if (with_rows) {
        drawn.database.answer.rows = {{"BROOK", "P-100", "Titration at the shore"},
                                      {"HILL", "P-210", "Probe, lowered from a boat"}};
    }
    drawn.act([&] { drawn.screens().frmCharacteristics.cmdNext.press(); });
}

inline void open(DrawnProgram& drawn, TickBox FrmCharacteristicDetails::*box) {
    detail(drawn);
    drawn.act([&] { (drawn.screens().frmCharacteristicDetails.*box).turn_over(); });
}

// A table that has lost its names cannot be saved.
inline void save_unnamed(DrawnProgram& drawn) {
    FrmCharacteristicDetails& details = drawn.screens().frmCharacteristicDetails;
    drawn.act([&] {
        details.MSFlexDetails.clear();
        details.cmdSave.press();
    });
}

inline Roads characteristic_roads() {
    using Details = FrmCharacteristicDetails;
    return {
        {"source 1 files", choose_sample},
        {"translation 1 names", translate},
        {"translation 2 filter",
         [](DrawnProgram& drawn) {
             translate(drawn);
             drawn.act([&] { drawn.screens().frmCharacteristics.chkNoTaxa.turn_over(); });
         }},
        {"translation 3 row",
         [](DrawnProgram& drawn) {
             translate(drawn);
             drawn.act([&] { drawn.screens().frmCharacteristics.MSFlexChar.click_cell({3, 0}); });
         }},
        {"translation 4 no match",
         [](DrawnProgram& drawn) {
             translate(drawn);
             search(drawn, 3, 0);
         }},
        {"translation 5 accept",
         [](DrawnProgram& drawn) {
             translate(drawn);
             search(drawn, 3, 30);
             drawn.act([&] {
                 drawn.screens().frmCharacteristics.cmbCharacteristics.click_entry(1);
                 drawn.screens().frmCharacteristics.cmdChange.press();
             });
         }},
        {"translation 6 automatic",
         [](DrawnProgram& drawn) {
             translate(drawn);
             search(drawn, 2, 3);
         }},
        {"details 1 choices", [](DrawnProgram& drawn) { detail(drawn); }},
        {"details 2 sources", [](DrawnProgram& drawn) { open(drawn, &Details::chkProc); }},
        {"details 3 procedures",
         [](DrawnProgram& drawn) {
             open(drawn, &Details::chkProc);
             drawn.act([&] {
                 drawn.screens().frmCharacteristicDetails.MSHFlexSource.click_cell({1, 0});
                 drawn.screens().frmCharacteristicDetails.MSHFlexProc.click_cell({1, 1});
             });
         }},
        {"details 4 no procedure",
         [](DrawnProgram& drawn) {
             open(drawn, &Details::chkProc);
             Details& details = drawn.screens().frmCharacteristicDetails;
             drawn.act([&] { details.MSHFlexSource.click_cell({1, 0}); });
             drawn.database.answer.rows.clear();
             drawn.act([&] {
                 details.chkProcId.turn_over();
                 details.txtSearch.type("Q");
                 details.cmdProcSearch.press();
             });
         }},
        {"details 5 units",
         [](DrawnProgram& drawn) {
             open(drawn, &Details::chkUOM);
             drawn.act([&] {
                 drawn.screens().frmCharacteristicDetails.txtUOM.type("%");
                 drawn.screens().frmCharacteristicDetails.MSHFlexUOM.click_cell({1, 0});
             });
         }},
        {"details 6 fraction", [](DrawnProgram& drawn) { open(drawn, &Details::chkFraction); }},
        {"details 7 value type", [](DrawnProgram& drawn) { open(drawn, &Details::chkValue); }},
        {"details 8 weight", [](DrawnProgram& drawn) { open(drawn, &Details::chkWeight); }},
        {"details 9 no laboratory",
         [](DrawnProgram& drawn) {
             detail(drawn, false);
             drawn.act([&] { drawn.screens().frmCharacteristicDetails.chkLab.turn_over(); });
         }},
        {"details a confirm",
         [](DrawnProgram& drawn) {
             open(drawn, &Details::chkProc);
             drawn.act([&] {
                 drawn.screens().frmCharacteristicDetails.MSHFlexSource.click_cell({1, 0});
                 drawn.screens().frmCharacteristicDetails.cmdSave.press();
             });
         }},
        {"details b error",
         [](DrawnProgram& drawn) {
             open(drawn, &Details::chkUOM);
             save_unnamed(drawn);
         }},
        {"details c error beside value type",
         [](DrawnProgram& drawn) {
             open(drawn, &Details::chkValue);
             save_unnamed(drawn);
         }},
        {"details d error beside weight",
         [](DrawnProgram& drawn) {
             open(drawn, &Details::chkWeight);
             save_unnamed(drawn);
         }},
        {"details e error beside procedures",
         [](DrawnProgram& drawn) {
             open(drawn, &Details::chkProc);
             drawn.act([&] {
                 drawn.screens().frmCharacteristicDetails.MSHFlexSource.click_cell({1, 0});
             });
             save_unnamed(drawn);
         }},
    };
}

}  // namespace brooklander::test
