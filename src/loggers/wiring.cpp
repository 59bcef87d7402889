#include "loggers/wiring.h"

#include "loggers/answer_boxes.h"
#include "loggers/data_logger_results.h"
#include "loggers/data_logger_setup.h"
#include "loggers/logger_conversion.h"
#include "loggers/logger_selection.h"
#include "loggers/portable_entry.h"
#include "shared/grid_typing.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

constexpr int line_label_width = 2500;

void wire_logger(Screens& screens, Platform& platform) {
    FrmLogger& logger = screens.frmLogger;
    logger.cmdNo.on_click = [&] { cmdNo_Click(screens, logger); };
    logger.cmdYes.on_click = [&] { cmdYes_Click(screens, logger, platform); };
    logger.MSHFlexOrganization.on_click = [&] {
        MSHFlexOrganization_Click(screens, logger, platform.database);
    };
    logger.MSHFlexADL.on_click = [&] { MSHFlexADL_Click(screens, logger, platform.database); };
    logger.MSHFlexLogFile.on_click = [&] { MSHFlexLogFile_Click(logger); };
    logger.cmdBack.on_click = [&] { cmdBack_Click(logger); };
    logger.cmdContinue.on_click = [&] { cmdContinue_Click(screens, logger, platform); };
}

void wire_logger_results(Screens& screens, Platform& platform) {
    FrmLoggerResults& results = screens.frmLoggerResults;
    results.MSHFlexCharGroup.on_click = [&] {
        MSHFlexCharGroup_Click(screens, results, platform.database);
    };
    results.cmdConvert.on_click = [&] { cmdConvert_Click(screens, results, platform.files); };
    results.chkYes.on_click = [&] {
        take_answer(results.chkYes, results.chkNo, results.cmdContinue);
    };
    results.chkNo.on_click = [&] {
        take_answer(results.chkNo, results.chkYes, results.cmdContinue);
    };
    results.cmdContinue.on_click = [&] { cmdContinue_Click(screens, results); };
}

void wire_data_logger(Screens& screens, Database& database) {
    FrmDataLogger& logger = screens.frmDataLogger;
    logger.MSHFlexOrganization.on_click = [&] { MSHFlexOrganization_Click(logger); };
    logger.cmdLoggerNext.on_click = [&] { cmdLoggerNext_Click(screens, logger, database); };
    logger.txtInstallationID.on_change = [&] { installation_Change(logger); };
    logger.txtOperatingPeriod.on_change = [&] { installation_Change(logger); };
    logger.cmdCharContinue.on_click = [&] { logger.frameCharacteristicGroup.show(); };
    logger.MSHFlexGroups.on_click = [&] { MSHFlexGroups_Click(screens, logger, database); };
    logger.cmdConvertContinue.on_click = [&] { cmdConvertContinue_Click(screens, logger); };
    logger.mnuExit.on_click = [&] {
        logger.hide();
        screens.frmStart.show();
    };
}

void wire_data_logger_results(Screens& screens, Platform& platform) {
    FrmDataLoggerResults& results = screens.frmDataLoggerResults;
    results.Drive1.on_click = [&] { Drive1_Change(results); };
    results.dirLoggerFile.on_change = [&] { dirLoggerFile_Change(results); };
    results.dirLoggerFile.on_click = [&] { dirLoggerFile_Click(results); };
    results.fileLogger.on_click = [&] { fileLogger_Click(results); };
    results.cmdView.on_click = [&] { cmdView_Click(results, platform.files); };
    results.cmdConvert.on_click = [&] { cmdConvert_Click(screens, results, platform.files); };
    results.cmdEnterMoreDataYes.on_click = [&] { end_run(screens, results); };
    results.cmdEnterMoreDataNo.on_click = [&] { end_run(screens, results); };
    results.mnuExit.on_click = [&] { mnuExit_Click(screens, results); };
    results.mnuHelp.on_click = [&] { platform.help.show(workspace::older_help_file); };
}

void wire_portable_grids(FrmPortableDataLogger& portable) {
    for (Grid* const grid : {&portable.MSHFlexLabels, &portable.MSHFlexResults}) {
        grid->on_key = [grid](Key key) { return type_into_current_cell(*grid, key); };
        grid->on_enter = [grid](GridCell cell) { enter_cell(*grid, cell); };
        grid->on_leave = [grid](GridCell cell) { leave_cell(*grid, cell); };
    }
    portable.MSHFlexLabels.on_leave = [&](GridCell cell) {
        leave_cell(portable.MSHFlexLabels, cell);
        leave_label(portable, cell);
    };
}

void wire_portable(FrmPortableDataLogger& portable, Platform& platform) {
    portable.on_load = [&] {
        portable.MSHFlexLabels.set_column_width(FrmPortableDataLogger::label_column,
                                                line_label_width);
    };
    portable.mnuHelp.on_click = [&] { platform.help.show(workspace::older_help_file); };
    portable.txtLines.on_change = [&] {
        portable.cmdContinue.set_enabled(!portable.txtLines.empty());
    };
    portable.cmdContinue.on_click = [&] { cmdContinue_Click(portable); };
    portable.cmdLinesContinue.on_click = [&] { cmdLinesContinue_Click(portable); };
    portable.cmdBack.on_click = [&] { cmdBack_Click(portable); };
    portable.txtFileName.on_change = [&] {
        portable.cmdSave.set_enabled(is_file_name(portable.txtFileName.text()));
    };
    portable.cmdSave.on_click = [&] { cmdSave_Click(portable, platform.files); };
    portable.chkDataYes.on_click = [&] { chkDataYes_Click(portable); };
    portable.chkDataNo.on_click = [&] { chkDataNo_Click(portable); };
    portable.chkStationYes.on_click = [&] { chkStationYes_Click(portable); };
    wire_portable_grids(portable);
}

}  // namespace

void wire_loggers(Screens& screens, Platform& platform) {
    wire_logger(screens, platform);
    wire_logger_results(screens, platform);
    wire_data_logger(screens, platform.database);
    wire_data_logger_results(screens, platform);
    wire_portable(screens.frmPortableDataLogger, platform);
}

}  // namespace brooklander
