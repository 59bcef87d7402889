#include "desktop/logger_roads.h"

#include <utility>

#include "desktop/road_answers.h"
#include "loggers/logger_selection.h"

namespace brooklander::test {
namespace {

// The columns of a statement that its grid shows, by their position in it from 0.
using Values = std::vector<std::pair<std::size_t, std::string>>;

QueryResult rows_of(std::size_t columns, const std::vector<Values>& rows) {
    QueryResult result;
    for (std::size_t column = 0; column < columns; ++column) {
        result.columns.push_back("COLUMN_" + std::to_string(column));
    }
    for (const Values& values : rows) {
        std::vector<std::string>& row = result.rows.emplace_back(columns);
        for (const auto& [column, value] : values) row.at(column) = value;
    }
    return result;
}

const std::vector<AnswerTable>& tables() {
    static const std::vector<AnswerTable> all{
        {"smpl_frac_type_nm",
         rows_of(19, {{{7, "FEN-01         "}, {17, "Temperature, water"}, {8, "deg C     "}},
                      {{7, "FEN-02         "},
                       {17, "Oxygen, dissolved, by an optical probe at the foot of the mooring"},
                       {8, "mg/l      "},
                       {9, "Dissolved      "}}})},
        {"tsrccga",
         rows_of(19, {{{7, "FEN-01         "}, {18, "Temperature, water"}, {8, "deg C     "}},
                      {{7, "FEN-02         "},
                       {18, "Oxygen, dissolved, by an optical probe at the foot of the mooring"},
                       {8, "mg/l      "}}})},
        {"log_file_name", rows_of(9, {{{4, "FEN0401.TXT"}, {7, "2021-04-01"}, {8, "2021-04-30"}},
                                      {{4, "MOORING OF THE NORTHERN BASIN, SPRING.TXT"},
                                       {7, "2021-05-01 00:00:00"},
                                       {8, "2021-05-31 23:45:00"}}})},
        {"From tsradl Where",
         rows_of(5, {{{1, "MOOR-1         "}, {2, "4711"}, {3, "M2"}, {4, "Reed"}},
                     {{1, "MOOR-NORTHEAST "},
                      {2, "00012-00034-00056"},
                      {3, "Mooring with a chain of nine sensors"},
                      {4, "Reed and Sedge Instruments"}}})},
        {"Select tsrchgrp_org_id, id_code",
         rows_of(4, {{{1, "MOORING "}, {2, "All sensors of a mooring, from the surface down"}},
                     {{1, "STAGE   "}, {2, "Stage"}}})},
        {"From tsrchgrp",
         rows_of(5, {{{2, "MOORING "}, {3, "All sensors of a mooring, from the surface down"}},
                     {{2, "STAGE   "}, {3, "Stage"}}})},
        two_organizations(),
    };
    return all;
}

// As the first path has them, and as the second.
constexpr const char* records =
    "61401\t0930\t12.4\t7.9\r\n61401\t945\t12.5\t\r\n061501\t101530\t12.6\t8\r\n";
constexpr const char* spelled_records =
    "6/14/2001\t9:30:15 AM\t12.4\t7.9\r\n14-Jun-01\t9:45 PM\t12.5\r\n";

void log_on_to_the_fens(DrawnProgram& drawn) {
    drawn.database.answers = answer_of_two_fens;
    drawn.log_on();
}

void open_logger(DrawnProgram& drawn) {
    log_on_to_the_fens(drawn);
    drawn.folder.write("data/mooring of the northern basin.txt", records);
    drawn.act([&] {
        drawn.start_screen().mnuImport.choose();
        DrawnProgram::select(drawn.start_screen().Dir1, "data");
        drawn.start_screen().lstImportFileBox.click_entry(0);
        open_logger_file(drawn.screens(), drawn.files);
    });
}

void list_organizations(DrawnProgram& drawn) {
    open_logger(drawn);
    drawn.act([&] { drawn.screens().frmLogger.cmdYes.press(); });
}

void choose_log_file(DrawnProgram& drawn) {
    list_organizations(drawn);
    FrmLogger& logger = drawn.screens().frmLogger;
    drawn.act([&] { logger.MSHFlexOrganization.click_cell({1, 0}); });
    drawn.act([&] { logger.MSHFlexADL.click_cell({2, 0}); });
    drawn.act([&] { logger.MSHFlexLogFile.click_cell({2, 0}); });
}

void list_groups(DrawnProgram& drawn) {
    choose_log_file(drawn);
    drawn.act([&] { drawn.screens().frmLogger.cmdContinue.press(); });
}

void choose_group(DrawnProgram& drawn) {
    list_groups(drawn);
    drawn.act([&] { drawn.screens().frmLoggerResults.MSHFlexCharGroup.click_cell({1, 0}); });
}

void type_installation(DrawnProgram& drawn) {
    choose_fen(drawn, 1);
    drawn.act([&] {
        drawn.screens().frmDataLogger.txtInstallationID.type("MOOR-1");
        drawn.screens().frmDataLogger.txtOperatingPeriod.type("FEN0401.TXT");
    });
}

void set_up(DrawnProgram& drawn) {
    type_installation(drawn);
    FrmDataLogger& logger = drawn.screens().frmDataLogger;
    drawn.act([&] { logger.cmdCharContinue.press(); });
    drawn.act([&] { logger.MSHFlexGroups.click_cell({1, 0}); });
}

void display_results(DrawnProgram& drawn) {
    drawn.folder.write("data/mooring of the northern basin.txt", spelled_records);
    set_up(drawn);
    FrmDataLoggerResults& results = drawn.screens().frmDataLoggerResults;
    drawn.act([&] { drawn.screens().frmDataLogger.cmdConvertContinue.press(); });
    drawn.act([&] {
        DrawnProgram::select(results.dirLoggerFile, "c:\\");
        DrawnProgram::select(results.dirLoggerFile, "data");
    });
    drawn.act([&] { results.fileLogger.click_entry(0); });
    drawn.act([&] { results.cmdView.press(); });
}

void label_lines(DrawnProgram& drawn, const char* lines) {
    open_portable(drawn);
    FrmPortableDataLogger& portable = drawn.screens().frmPortableDataLogger;
    drawn.act([&] {
        portable.txtLines.type(lines);
        portable.cmdContinue.press();
    });
}

void enter_results(DrawnProgram& drawn) {
    label_lines(drawn, "30");
    FrmPortableDataLogger& portable = drawn.screens().frmPortableDataLogger;
    drawn.act([&] { portable.cmdLinesContinue.press(); });
    drawn.act([&] {
        portable.MSHFlexResults.set_cell(0, 2, "FEN-01");
        portable.MSHFlexResults.set_cell(1, 1, "Below the surface, half a metre down");
        portable.MSHFlexResults.press_key(Key::of('9'));
    });
}

void open_taxa(DrawnProgram& drawn, bool with_names = true) {
    log_on_to_the_fens(drawn);
    FrmSubjectTaxon& taxon = drawn.screens().frmSubjectTaxon;
    drawn.act([&] {
        for (const char* const name : {"mayfly", "Water flea of the open water, egg-bearing"}) {
            if (with_names) taxon.MSFlexChar.add_row(name);
        }
        drawn.start_screen().hide();
        taxon.show();
    });
}

void search_taxon(DrawnProgram& drawn, int matches) {
    open_taxa(drawn);
    drawn.database.answers = {};
    drawn.database.answer = {{"search_name", "display_name", "d_scr_type_cd"}, {}};
    for (int match = 0; match < matches; ++match) {
        const std::string name = "Baetis " + std::to_string(match);
        drawn.database.answer.rows.push_back({name, name, "TAXA"});
    }
    FrmSubjectTaxon& taxon = drawn.screens().frmSubjectTaxon;
    drawn.act([&] { taxon.MSFlexChar.click_cell({0, 0}); });
    drawn.act([&] { taxon.cmdDisplay.press(); });
}

}  // namespace

QueryResult answer_of_two_fens(const Query& query) { return answer_from(tables(), query); }

void open_setup(DrawnProgram& drawn) {
    log_on_to_the_fens(drawn);
    drawn.act([&] {
        drawn.start_screen().mnuLogger.show();
        drawn.start_screen().mnuLogger.enable();
        drawn.start_screen().mnuLogger.choose();
    });
}

void choose_fen(DrawnProgram& drawn, int row) {
    open_setup(drawn);
    FrmDataLogger& logger = drawn.screens().frmDataLogger;
    drawn.act([&] { logger.MSHFlexOrganization.click_cell({row, 0}); });
    drawn.act([&] { logger.cmdLoggerNext.press(); });
}

void open_portable(DrawnProgram& drawn) {
    log_on_to_the_fens(drawn);
    drawn.act([&] {
        drawn.start_screen().hide();
        drawn.screens().frmPortableDataLogger.show();
    });
}

Roads logger_roads() {
    return {
        {"logger 1 question", open_logger},
        {"logger 2 organizations", list_organizations},
        {"logger 3 chosen", choose_log_file},
        {"logger 4 no installation",
         [](DrawnProgram& drawn) {
             list_organizations(drawn);
             drawn.act([&] { drawn.screens().frmLogger.MSHFlexOrganization.click_cell({2, 0}); });
         }},
        {"logger 5 back",
         [](DrawnProgram& drawn) {
             choose_log_file(drawn);
             drawn.act([&] { drawn.screens().frmLogger.cmdBack.press(); });
         }},
        {"logger results 1 groups", list_groups},
        {"logger results 2 group", choose_group},
        {"logger results 3 converted",
         [](DrawnProgram& drawn) {
             choose_group(drawn);
             drawn.act([&] { drawn.screens().frmLoggerResults.cmdConvert.press(); });
         }},
        {"data logger 1 organizations", open_setup},
        {"data logger 2 installation", [](DrawnProgram& drawn) { choose_fen(drawn, 1); }},
        {"data logger 3 groups",
         [](DrawnProgram& drawn) {
             type_installation(drawn);
             drawn.act([&] { drawn.screens().frmDataLogger.cmdCharContinue.press(); });
         }},
        {"data logger 4 group", set_up},
        {"data logger 5 no group",
         [](DrawnProgram& drawn) {
             choose_fen(drawn, 2);
             drawn.act([&] { drawn.screens().frmDataLogger.frameCharacteristicGroup.show(); });
         }},
        {"data results 1 files",
         [](DrawnProgram& drawn) {
             set_up(drawn);
             drawn.act([&] { drawn.screens().frmDataLogger.cmdConvertContinue.press(); });
         }},
        {"data results 2 displayed", display_results},
        {"data results 3 converted",
         [](DrawnProgram& drawn) {
             display_results(drawn);
             drawn.act([&] { drawn.screens().frmDataLoggerResults.cmdConvert.press(); });
         }},
        {"portable 1 lines", open_portable},
        {"portable 2 labels", [](DrawnProgram& drawn) { label_lines(drawn, "30"); }},
        {"portable 3 no lines", [](DrawnProgram& drawn) { label_lines(drawn, "some"); }},
        {"portable 4 results", enter_results},
        {"portable 5 saved",
         [](DrawnProgram& drawn) {
             enter_results(drawn);
             drawn.act([&] { drawn.screens().frmPortableDataLogger.cmdSave.press(); });
         }},
        {"portable 6 no name",
         [](DrawnProgram& drawn) {
             enter_results(drawn);
             drawn.act([&] { drawn.screens().frmPortableDataLogger.txtFileName.type(""); });
         }},
        {"taxon 1 no names", [](DrawnProgram& drawn) { open_taxa(drawn, false); }},
        {"taxon 2 names", [](DrawnProgram& drawn) { open_taxa(drawn); }},
        {"taxon 3 no match", [](DrawnProgram& drawn) { search_taxon(drawn, 0); }},
        {"taxon 4 accept",
         [](DrawnProgram& drawn) {
             search_taxon(drawn, 30);
             drawn.act([&] {
                 drawn.screens().frmSubjectTaxon.cmbCharacteristics.click_entry(1);
                 drawn.screens().frmSubjectTaxon.cmdChange.press();
             });
         }},
    };
}

}  // namespace brooklander::test
