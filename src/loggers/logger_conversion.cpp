#include "loggers/logger_conversion.h"

#include <string>

#include "conversion/batch_update.h"
#include "loggers/logger_records.h"
#include "loggers/logger_selection.h"
#include "shared/text.h"
#include "sweeps/keldar.h"
#include "sweeps/reset_screens.h"

namespace brooklander {
namespace {

// No blank stands before the last condition.
std::string characteristics_of(const std::string& organization, const std::string& group) {
    return "Select tsrchgrp.tsrchgrp_is_number, tsrchgrp.tsrchgrp_org_id, tsrchgrp.id_code, "
           "tsrchgrp.name, tsrchgrp.fld_act_type_nm, tsrchdef.tsrchdef_is_number, "
           "tsrchdef.tsrchdef_org_id, tsrchdef.row_id, tsrchdef.uom_name, "
           "tsrchdef.tsrccga_is_number, tsrchdef.tsrccga_org_id, tsrccga.tsrccga_is_number, "
           "tsrccga.tsrccga_org_id, tsrccga.sequence_number, tsrccga.tsrchar_is_number, "
           "tsrccga.tsrchgrp_is_number, tsrccga.tsrchgrp_org_id, tsrchar.tsrchar_is_number, "
           "tsrchar.display_name From tsrchgrp, tsrchdef, tsrccga, tsrchar Where "
           "tsrchgrp.fld_act_type_nm = 'Data Logger' And tsrchgrp.tsrchgrp_org_id = "
           "tsrchdef.tsrchdef_org_id And tsrchgrp.tsrchgrp_org_id = tsrccga.tsrchgrp_org_id And "
           "tsrchdef.tsrccga_is_number = tsrccga.tsrccga_is_number And "
           "tsrchgrp.tsrchgrp_is_number = tsrccga.tsrchgrp_is_number And "
           "tsrccga.tsrchar_is_number = tsrchar.tsrchar_is_number And tsrchgrp.tsrchgrp_org_id='" +
           organization + "' And tsrchgrp.id_code = '" + group +
           "'And tsrchdef.tsrchdef_org_id= '" + organization + "' Order By tsrccga.sequence_number";
}

// The row line, as it then stands in the table's first column, piece by piece.
void complete_row_ids(Grid& characteristics) {
    for (int row = 0; row < characteristics.rows(); ++row) {
        std::string text(characteristics.cell(row, 0));
        if (row == 0) text.insert(0, std::string(batch_update::logger.row_label) + ",");
        characteristics.set_cell(row, 0, text + ",");
    }
}

void forget_file(Screens& screens) {
    FrmLogger& logger = screens.frmLogger;
    logger.lblSelectedFile.clear_text();
    forget_details(logger);
    logger.cmdContinue.disable();
    FrmStart& start = screens.frmStart;
    start.lblSelectedFile.clear_text();
    start.cmdView.disable();
    start.frameLog.hide();
    clear_logger_options(start);
}

}  // namespace

void MSHFlexCharGroup_Click(Screens& screens, FrmLoggerResults& results, Database& database) {
    results.MSHFlexChars.clear();
    const Grid& groups = results.MSHFlexCharGroup;
    results.lblCharGroup.set_text(groups.cell(groups.current().row, 0));
    ask_keldar(results.AdodcChars, screens.frmStart,
               characteristics_of(std::string(trim(screens.frmLogger.lblOrganization.text())),
                                  std::string(trim(results.lblCharGroup.text()))),
               database);
}

void cmdConvert_Click(Screens& screens, FrmLoggerResults& results, Files& files) {
    Grid& characteristics = results.MSHFlexChars;
    complete_row_ids(characteristics);
    BatchUpdateText text(batch_update::logger);
    text.put_group(results.lblCharGroup.text());
    for (int row = 0; row < characteristics.rows(); ++row) text.put(characteristics.cell(row, 0));
    text.end_line();
    put_logger_records(results.MSFlexLog, text);
    text.put_end();
    const std::string path = logger_output_path(screens.frmStart);
    write_behind(files, path, text);
    results.frameConverted.show();
    results.lblConvertedFile.set_text(path);
}

void cmdContinue_Click(Screens& screens, FrmLoggerResults& results) {
    if (!results.chkYes.ticked() && !results.chkNo.ticked()) return;
    results.cmdContinue.disable();
    results.frameConverted.hide();
    forget_file(screens);
    if (results.chkNo.ticked()) screens.frmStart.frameFiles.hide();
    results.hide();
    screens.frmStart.show();
}

}  // namespace brooklander
