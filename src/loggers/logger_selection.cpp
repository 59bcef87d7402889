#include "loggers/logger_selection.h"

#include "conversion/batch_update.h"
#include "loggers/logger_records.h"
#include "shared/text.h"
#include "shared/workspace.h"
#include "sweeps/keldar.h"
#include "sweeps/reset_screens.h"

namespace brooklander {
namespace {

void show_question(FrmLogger& logger, bool visible) {
    logger.frameImport.set_visible(visible);
    logger.lstDetails.set_visible(visible);
    logger.lblLoggerDetails.set_visible(visible);
}

void show_details(FrmLogger& logger, bool visible) {
    logger.frameDetails.set_visible(visible);
    logger.FrameDetailsDisplay.set_visible(visible);
}

std::string organization_of(const FrmLogger& logger) {
    return std::string(trim(logger.lblOrganization.text()));
}

std::string_view clicked(const Grid& grid, int column) {
    return grid.cell(grid.current().row, column);
}

}  // namespace

std::string logger_output_path(const FrmStart& start) {
    return std::string(workspace::logger_files) + start.lblSelectedFile.text();
}

void open_logger_file(Screens& screens, const Files& files) {
    FrmStart& start = screens.frmStart;
    FrmLogger& logger = screens.frmLogger;
    start.hide();
    logger.lblSelectedFile.set_text(start.lstImportFileBox.path() + "\\" +
                                    start.lblSelectedFile.text());
    read_reference_list(files, logger.lblSelectedFile.text(), ReferenceItems::lines,
                        logger.lstDetails);
    show_question(logger, true);
    show_details(logger, false);
    for (Grid* const table :
         {&logger.MSHFlexOrganization, &logger.MSHFlexADL, &logger.MSHFlexLogFile}) {
        table->clear();
    }
    forget_details(logger);
    logger.show();
}

void forget_details(FrmLogger& logger) {
    for (Label* const label : {&logger.lblOrganization, &logger.lblOrganizationName,
                               &logger.lblInstallationID, &logger.lblLogFile}) {
        label->clear_text();
    }
}

void cmdNo_Click(Screens& screens, FrmLogger& logger) {
    logger.hide();
    screens.frmStart.show();
    clear_logger_options(screens.frmStart);
}

void cmdYes_Click(Screens& screens, FrmLogger& logger, Platform& platform) {
    show_question(logger, false);
    load_logger_file(screens.frmLoggerResults.MSFlexLog,
                     platform.files.read(logger.lblSelectedFile.text()));
    show_details(logger, true);
    ask_keldar(logger.AdodcOrganization, screens.frmStart, organizations_by_id, platform.database);
}

void MSHFlexOrganization_Click(Screens& screens, FrmLogger& logger, Database& database) {
    logger.lblOrganization.set_text(clicked(logger.MSHFlexOrganization, 0));
    logger.lblOrganizationName.set_text(clicked(logger.MSHFlexOrganization, 1));
    ask_keldar(logger.AdodcADL, screens.frmStart,
               "Select tsradl_org_id, id_code, serial_number, model, make From tsradl Where "
               "tsradl_org_id = '" +
                   organization_of(logger) + "'",
               database);
    logger.lblInstallationLabel.show();
    logger.lblLogFileLabel.hide();
    logger.MSHFlexLogFile.clear();
}

void MSHFlexADL_Click(Screens& screens, FrmLogger& logger, Database& database) {
    logger.lblInstallationID.set_text(clicked(logger.MSHFlexADL, 0));
    ask_keldar(logger.AdodcLogFile, screens.frmStart,
               "Select tsradl.tsradl_is_number, tsradl.tsradl_org_id, tsropprd.tsropprd_org_id, "
               "tsropprd.tsropprd_is_number, tsropprd.log_file_name, tsropprd.tsradl_is_number, "
               "tsropprd.tsradl_org_id, tsropprd.start_date, tsropprd.stop_date From tsradl, "
               "tsropprd Where tsradl.tsradl_org_id = tsropprd.tsradl_org_id AND "
               "tsradl.tsradl_is_number = tsropprd.tsradl_is_number And tsropprd.tsropprd_org_id "
               "= '" +
                   organization_of(logger) + "'",
               database);
    logger.lblLogFileLabel.show();
}

void MSHFlexLogFile_Click(FrmLogger& logger) {
    logger.lblLogFile.set_text(clicked(logger.MSHFlexLogFile, 0));
    logger.cmdContinue.enable();
}

void cmdBack_Click(FrmLogger& logger) {
    show_details(logger, false);
    show_question(logger, true);
}

void cmdContinue_Click(Screens& screens, FrmLogger& logger, Platform& platform) {
    BatchUpdateText text(batch_update::logger);
    text.put_heading(logger.lblOrganization.text(), logger.lblInstallationID.text(),
                     logger.lblLogFile.text());
    write_anew(platform.files, logger_output_path(screens.frmStart), text);
    ask_keldar(screens.frmLoggerResults.AdodcCharGroup, screens.frmStart,
               "Select tsrchgrp_org_id, tsrchgrp_is_number, id_code, name, fld_act_type_nm From "
               "tsrchgrp Where fld_act_type_nm = 'Data Logger' And tsrchgrp_org_id = '" +
                   organization_of(logger) + "'",
               platform.database);
    logger.hide();
    screens.frmLoggerResults.show();
}

}  // namespace brooklander
