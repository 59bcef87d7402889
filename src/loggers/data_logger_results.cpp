#include "loggers/data_logger_results.h"

#include <initializer_list>
#include <string>

#include "loggers/date_pictures.h"
#include "shared/text.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

void forget_selection(FrmDataLoggerResults& results) {
    results.lblSelectedFile.clear_text();
    results.cmdView.disable();
}

void reset_setup(FrmDataLogger& logger) {
    for (Field* const field : std::initializer_list<Field*>{
             &logger.lblOrganizationSelect, &logger.lblOrgName, &logger.lblGroupName,
             &logger.txtInstallationID, &logger.txtOperatingPeriod}) {
        field->clear_text();
    }
    logger.cmdLoggerNext.disable();
    logger.cmdConvertContinue.disable();
    logger.frameInstallation.hide();
    logger.frameCharacteristicGroup.hide();
    logger.lstFinalOut.clear();
}

void put_header(const FrmDataLogger& logger, const FrmDataLoggerResults& results,
                BatchUpdateText& text) {
    text.put_heading(logger.lblOrganizationSelect.text(), results.lblInstallationIDConvert.text(),
                     results.lblOperatingPeriodLogConvert.text());
    text.put_group(logger.lblGroupName.text());
    text.begin_rows();
    for (const std::string& row_id : logger.lstFinalOut.entries()) text.put_value(trim(row_id));
    text.end_line();
}

void put_row(Grid& log, int row, BatchUpdateText& text) {
    RowCells cells;
    log.read_row(row, cells);
    const std::string date = by_date_picture(cells[0]);
    const std::string time = by_time_picture(cells[1]);
    cells.set(0, date);
    cells.set(1, time);
    text.put_record_date(date);
    text.begin_result();
    text.put_value(time);
    for (int column = FrmDataLoggerResults::first_result_column; column < log.columns(); ++column) {
        if (!cells[column].empty()) text.put_value(trim(cells[column]));
    }
    text.end_line();
    log.write_row(row, cells);
}

}  // namespace

void Drive1_Change(FrmDataLoggerResults& results) {
    results.dirLoggerFile.set_path(results.Drive1.text());
    forget_selection(results);
}

void dirLoggerFile_Change(FrmDataLoggerResults& results) {
    results.fileLogger.set_path(results.dirLoggerFile.path());
    forget_selection(results);
}

void dirLoggerFile_Click(FrmDataLoggerResults& results) { results.dirLoggerFile.open_selected(); }

void fileLogger_Click(FrmDataLoggerResults& results) {
    const std::string name(trim(results.fileLogger.text()));
    results.lblSelectedFile.set_text(results.fileLogger.path() + "\\" + name);
    results.lblSelectedFileConverted.set_text(std::string(workspace::logger_files) + name);
    results.cmdView.enable();
    results.lstLoggerFile.clear();
}

void cmdView_Click(FrmDataLoggerResults& results, const Files& files) {
    read_reference_list(files, trim(results.lblSelectedFile.text()), ReferenceItems::lines,
                        results.lstLoggerFile);
    results.cmdConvert.enable();
}

void put_results(Grid& log, BatchUpdateText& text) {
    for (int row = 0; row < log.rows(); ++row) put_row(log, row, text);
    log.refreshed();
}

void cmdConvert_Click(Screens& screens, FrmDataLoggerResults& results, Files& files) {
    results.MSFlexLog.clear();
    results.set_pointer(Pointer::busy);
    for (Label* const label :
         {&results.lblRowId, &results.lblDisplayName, &results.lblUnits, &results.lblResult}) {
        label->hide();
    }
    results.lblSelectedFileConverted.show();
    results.lblConvertedFile.show();
    results.MSFlexLog.set_rows(0);
    results.MSFlexLog.load(files.read(trim(results.lblSelectedFile.text())));
    results.frameEnterMoreData.show();

    BatchUpdateText text(batch_update::data_logger);
    put_header(screens.frmDataLogger, results, text);
    put_results(results.MSFlexLog, text);
    text.put_end();
    write_anew(files, results.lblSelectedFileConverted.text(), text);
    results.cmdConvert.disable();
    results.cmdView.disable();
    results.set_pointer(Pointer::normal);
}

void end_run(Screens& screens, FrmDataLoggerResults& results) {
    results.cmdView.disable();
    results.cmdConvert.disable();
    for (Label* const label : {&results.lblSelectedFile, &results.lblInstallationIDConvert,
                               &results.lblOperatingPeriodLogConvert, &results.lblStartDateTime,
                               &results.lblStopDateTime, &results.lblSelectedFileConverted}) {
        label->clear_text();
    }
    results.lstLoggerFile.clear();
    results.frameEnterMoreData.hide();
    reset_setup(screens.frmDataLogger);
    results.hide();
    screens.frmStart.show();
}

void mnuExit_Click(Screens& screens, FrmDataLoggerResults& results) {
    results.MSFlexLog.clear();
    results.hide();
    screens.frmDataLogger.show();
}

}  // namespace brooklander
