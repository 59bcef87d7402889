#include "characteristics/name_translation.h"

#include "platform/code_page.h"
#include "shared/text.h"
#include "sweeps/keldar.h"

namespace brooklander {

std::string take_clicked_name(NameTranslation& translation) {
    translation.frameMatch.hide();
    translation.frameTranslate.hide();
    translation.frameAutoTranslate.hide();
    Grid& names = translation.MSFlexChar;
    names.make_current({names.current().row, 0});
    std::string name(trim(names.current_text()));
    translation.txtCharacteristic.set_text(name);
    translation.lblSelectedCharacteristic.set_text(name);
    begin_search(translation);
    translation.lblChange.clear_text();
    translation.cmbCharacteristics.clear_text();
    return name;
}

void begin_search(NameTranslation& translation) {
    translation.frameOptions.show();
    translation.cmdDisplay.enable();
}

void search(NameTranslation& translation, const FrmStart& start,
            std::string_view statement_before_pattern, Database& database) {
    Screen& screen = translation.MSFlexChar.screen();
    translation.cmdChange.disable();
    screen.set_pointer(Pointer::busy);
    connect_to_keldar_trimmed(translation.AdodcCharacteristics, start);
    std::string statement(statement_before_pattern);
    statement.append("%").append(upper(trim(translation.txtCharacteristic.text()))).append("%'");
    translation.AdodcCharacteristics.set_record_source(statement);
    translation.AdodcCharacteristics.refresh(database);
    translation.cmbCharacteristics.show();
    screen.set_pointer(Pointer::normal);
}

bool names_itself(const NameTranslation& translation) {
    const std::string_view found = trim(translation.cmbCharacteristics.text());
    return !found.empty() && found == trim(translation.lblSelectedCharacteristic.text());
}

void offer_of_itself(NameTranslation& translation) {
    translation.lblChange.set_text(translation.cmbCharacteristics.text());
    translation.frameMatch.hide();
    translation.frameTranslate.hide();
    translation.frameAutoTranslate.show();
}

void put_translation(NameTranslation& translation, std::string_view name) {
    const std::string offered = translation.lblChange.text();
    const std::string translated = trim(offered) == acidity
                                       ? offered
                                       : std::string(trim(translation.cmbCharacteristics.text()));
    Grid& names = translation.MSFlexChar;
    for (int row = 0; row < names.rows(); ++row) {
        if (trim(names.cell(row, 0)) == name) names.set_cell(row, 1, translated);
    }
    translation.cmdNext.enable();
    translation.cmdYes.disable();
    translation.cmdNo.disable();
}

void cmbCharacteristics_Click(NameTranslation& translation) {
    translation.lblChange.set_text(translation.cmbCharacteristics.text());
    translation.cmdChange.enable();
    translation.frameTranslate.show();
}

void cmdChange_Click(NameTranslation& translation) {
    translation.cmdYes.enable();
    translation.cmdNo.enable();
    translation.cmdChange.disable();
}

void cmdNo_Click(NameTranslation& translation) {
    translation.cmdYes.disable();
    translation.cmdNo.disable();
    translation.cmdChange.enable();
}

}  // namespace brooklander
