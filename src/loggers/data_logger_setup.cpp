#include "loggers/data_logger_setup.h"

#include <string>

#include "shared/text.h"
#include "sweeps/keldar.h"

namespace brooklander {
namespace {

// The ids of these statements fill their columns, whether the database compares with the padding or
// without.
constexpr std::size_t id_width = 8;

std::string padded(std::string_view id) {
    std::string text(left(trim(id), id_width));
    text.resize(id_width, ' ');
    return text;
}

std::string_view clicked(const Grid& grid, int column) {
    return grid.cell(grid.current().row, column);
}

void ask(DataSource& source, const FrmStart& start, std::string_view statement,
         Database& database) {
    connect_to_keldar_by_name(source, start);
    source.set_record_source(statement);
    source.refresh(database);
}

std::string contents_of(const std::string& organization, const std::string& group) {
    return "SELECT tsrccga.tsrchgrp_is_number, tsrccga.tsrchar_is_number, "
           "tsrccga.tsrccga_is_number, tsrccga.tsrccga_org_id, tsrccga.sequence_number, "
           "tsrchdef.tsrccga_is_number, tsrchdef.tsrchdef_is_number, tsrchdef.row_id, "
           "tsrchdef.uom_name, tsrchdef.smpl_frac_type_nm, tsrchdef.tsrchdef_org_id, "
           "tsrchgrp.tsrchgrp_is_number, tsrchgrp.id_code, tsrchgrp.tsrchgrp_org_id, "
           "tsrchgrp.fld_act_type_nm, tsrchgrp.medium_type_name, tsrchar.tsrchar_is_number, "
           "tsrchar.display_name, tsrchar.d_scr_type_cd FROM tsrccga, tsrchdef, tsrchgrp, tsrchar "
           "WHERE tsrchgrp.tsrchgrp_org_id = '" +
           organization +
           "' And tsrchgrp.tsrchgrp_org_id = tsrchdef.tsrchdef_org_id And "
           "tsrchgrp.tsrchgrp_org_id = tsrccga.tsrccga_org_id AND tsrchgrp.tsrchgrp_is_number = "
           "tsrccga.tsrchgrp_is_number AND tsrchar.tsrchar_is_number = tsrccga.tsrchar_is_number "
           "AND tsrccga.tsrccga_is_number = tsrchdef.tsrccga_is_number AND tsrchgrp.id_code = '" +
           group + "' AND tsrchdef.row_id > ' ' ORDER BY tsrccga.sequence_number ";
}

}  // namespace

void MSHFlexOrganization_Click(FrmDataLogger& logger) {
    logger.lblOrganizationSelect.set_text(trim(clicked(logger.MSHFlexOrganization, 0)));
    logger.lblOrgName.set_text(trim(clicked(logger.MSHFlexOrganization, 1)));
    logger.cmdLoggerNext.enable();
    logger.frameInstallation.hide();
    logger.frameCharacteristicGroup.hide();
    logger.lblGroupName.clear_text();
    logger.cmdConvertContinue.disable();
}

// A blank stands behind the organization in the statement of the groups.
void cmdLoggerNext_Click(Screens& screens, FrmDataLogger& logger, Database& database) {
    const FrmStart& start = screens.frmStart;
    logger.frameInstallation.show();
    const std::string organization = padded(logger.lblOrganizationSelect.text());
    ask(logger.AdodcLogger, start,
        "Select tsradl_org_id, tsradl_is_number, id_code, tsmstatn_org_id, tsmstatn_is_number, "
        "model FROM tsradl Where tsradl_org_id = '" +
            organization + "'",
        database);
    connect_to_keldar_by_name(logger.AdodcOperatingPeriod, start);
    ask(logger.AdodcGroups, start,
        "Select tsrchgrp_org_id, id_code, name, fld_act_type_nm From tsrchgrp Where "
        "fld_act_type_nm = 'Data Logger' And tsrchgrp_org_id= '" +
            organization + " '",
        database);
    logger.cmdLoggerNext.disable();
}

void installation_Change(FrmDataLogger& logger) {
    const bool complete = !logger.txtInstallationID.empty() && !logger.txtOperatingPeriod.empty();
    logger.cmdCharContinue.set_visible(complete);
    logger.cmdCharContinue.set_enabled(complete);
}

void MSHFlexGroups_Click(Screens& screens, FrmDataLogger& logger, Database& database) {
    logger.lblGroupName.set_text(clicked(logger.MSHFlexGroups, 0));
    ask(logger.AdodcChars, screens.frmStart,
        contents_of(padded(logger.lblOrganizationSelect.text()),
                    padded(logger.lblGroupName.text())),
        database);
    const Grid& contents = logger.MSHFlexContents;
    logger.MSHFlexContents.show();
    logger.lstFinalOut.clear();
    for (int row = 0; row < contents.rows(); ++row) {
        logger.lstFinalOut.add(contents.cell(row, 0));
    }
    logger.cmdConvertContinue.enable();
}

void cmdConvertContinue_Click(Screens& screens, FrmDataLogger& logger) {
    FrmDataLoggerResults& results = screens.frmDataLoggerResults;
    results.lblInstallationIDConvert.set_text(logger.txtInstallationID.text());
    results.lblOperatingPeriodLogConvert.set_text(logger.txtOperatingPeriod.text());
    logger.hide();
    results.show();
}

}  // namespace brooklander
