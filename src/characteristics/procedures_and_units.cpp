#include "characteristics/procedures_and_units.h"

#include <string>

#include "platform/code_page.h"
#include "shared/text.h"
#include "sweeps/keldar.h"

namespace brooklander {
namespace {

// A pattern that finds a text anywhere.
std::string anywhere(std::string_view text) { return "%" + std::string(text) + "%"; }

// The text with its first letter in upper case, and blanks around it kept.
std::string capitalised(std::string_view text) {
    return upper(left(text, 1)) + std::string(text.substr(std::min<std::size_t>(1, text.size())));
}

std::string trimmed(const Field& field) { return std::string(trim(field.text())); }

std::string procedures_of(const std::string& source) {
    return "Select source_acr, procedure_id, name From tsranlpr Where source_acr = '" + source +
           "'";
}

constexpr std::string_view in_order_of_id = " Order By procedure_id";

void show_procedures(Screens& screens, std::string_view condition, Database& database) {
    FrmCharacteristicDetails& details = screens.frmCharacteristicDetails;
    std::string statement = procedures_of(trimmed(details.lblSource));
    statement.append(condition).append(in_order_of_id);
    details.AdodcProc.set_record_source(statement);
    details.AdodcProc.refresh(database);
}

// Column 0 of the clicked row.
std::string_view take_first_cell(Grid& grid) {
    grid.make_current({grid.current().row, 0});
    return grid.current_text();
}

void take_source(FrmCharacteristicDetails& details, std::string_view source) {
    details.lblSource.set_text(source);
    details.lblProcSource.set_text(source);
}

void offer_search(FrmCharacteristicDetails& details) {
    const bool by_something = details.chkProcId.ticked() || details.chkProcName.ticked();
    details.cmdProcSearch.set_enabled(by_something && !details.txtSearch.empty());
}

void end_search(FrmCharacteristicDetails& details) {
    details.chkProcId.set_ticked(false);
    details.chkProcName.set_ticked(false);
    details.cmdProcSearch.disable();
}

}  // namespace

void MSHFlexSource_Click(Screens& screens, Database& database) {
    FrmCharacteristicDetails& details = screens.frmCharacteristicDetails;
    take_source(details, trim(take_first_cell(details.MSHFlexSource)));
    show_procedures(screens, {}, database);
    details.MSHFlexProc.show();
    details.frameProc.hide();
    details.frameProcedure.show();
    details.frameNoMatch.hide();
}

void MSHFlexProc_Click(FrmCharacteristicDetails& details) {
    if (details.MSHFlexProc.current_text().empty()) return;
    const std::string procedure(take_first_cell(details.MSHFlexProc));
    if (procedure.empty()) return;
    details.lblProc.set_text(trim(procedure));
    details.cmdProcAll.enable();
    end_search(details);
}

void chkProcId_Click(FrmCharacteristicDetails& details) {
    if (details.chkProcId.ticked()) details.chkProcName.set_ticked(false);
    offer_search(details);
}

void chkProcName_Click(FrmCharacteristicDetails& details) {
    if (details.chkProcName.ticked()) details.chkProcId.set_ticked(false);
    offer_search(details);
}

void txtSearch_Change(FrmCharacteristicDetails& details) {
    details.lblProc.clear_text();
    offer_search(details);
}

void cmdProcSearch_Click(Screens& screens, Database& database) {
    FrmCharacteristicDetails& details = screens.frmCharacteristicDetails;
    const std::string& typed = details.txtSearch.text();
    const std::string text(trim(typed));
    const std::string a = anywhere(capitalised(typed));
    connect_to_keldar(details.AdodcProc, screens.frmStart);
    const std::string by_id = " And (procedure_id LIKE '" + a + "' Or procedure_id LIKE '" +
                              anywhere(text) + "' Or procedure_id LIKE '" + anywhere(upper(text)) +
                              "')";
    const std::string by_name = " And name LIKE '" + a + "'";
    show_procedures(screens, details.chkProcName.ticked() ? by_name : by_id, database);
    const bool found = !details.MSHFlexProc.current_text().empty();
    details.MSHFlexProc.set_visible(found);
    details.frameNoMatch.set_visible(!found);
}

void cmdReset_Click(Screens& screens, Database& database) {
    FrmCharacteristicDetails& details = screens.frmCharacteristicDetails;
    details.frameNoMatch.hide();
    const Grid& sources = details.MSHFlexSource;
    take_source(details, trim(sources.cell(sources.current().row, 0)));
    show_procedures(screens, {}, database);
    details.frameProcedure.show();
    details.MSHFlexProc.show();
    details.lblProc.clear_text();
    details.txtSearch.clear_text();
    end_search(details);
}

void cmdSourceBack_Click(FrmCharacteristicDetails& details) {
    details.frameProcedure.hide();
    details.frameProc.show();
    details.lblSource.clear_text();
    details.lblProcSource.clear_text();
    details.lblProc.clear_text();
    details.txtSearch.clear_text();
    end_search(details);
}

void cmdUOMSearch_Click(Screens& screens, Database& database) {
    FrmCharacteristicDetails& details = screens.frmCharacteristicDetails;
    const std::string& typed = details.txtUOM.text();
    connect_to_keldar(details.AdodcUOM, screens.frmStart);
    details.AdodcUOM.set_record_source(
        "Select Distinct short_form_name, description_text From tsruom Where short_form_name Like "
        "'" +
        anywhere(capitalised(typed)) + "' Or short_form_name Like '" + anywhere(trim(typed)) + "'");
    details.AdodcUOM.refresh(database);
}

void cmdRefresh_Click(FrmCharacteristicDetails& details, Database& database) {
    details.AdodcUOM.refresh(database);
}

void MSHFlexUOM_Click(FrmCharacteristicDetails& details) {
    details.lblUom.set_text(take_first_cell(details.MSHFlexUOM));
    details.cmdUOMAll.enable();
}

}  // namespace brooklander
