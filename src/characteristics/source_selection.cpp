#include "characteristics/source_selection.h"

#include <initializer_list>
#include <string>

#include "import/import_table.h"
#include "import/output_choice.h"

namespace brooklander {
namespace {

void forget_kind(FrmCharSource& source) {
    source.optLogYes.set_on(false);
    source.optLogNo.set_on(false);
    source.frameLog.hide();
}

void empty_import_screen(FrmImportFileDisplay& display) {
    display.frameCharColumn.hide();
    display.cmdCharContinue.disable();
    Grid& table = display.MSFlexKeldarIN;
    if (table.rows() > 0) table.make_current({0, 0});
    table.clear();
}

void forget_columns(FrmImportFileDisplay& display) {
    for (Label* const label :
         {&display.lblColumnVis, &display.lblCommentsVis, &display.lblDateVis, &display.lblDepthVis,
          &display.lblPersonVis, &display.lblRowVis, &display.lblSampleVis, &display.lblStationVis,
          &display.lblTimeVis}) {
        label->clear_text();
    }
}

}  // namespace

void offer_sample_files(FrmCharSource& source) {
    source.framChar.show();
    source.frameFile.show();
    source.frameFiles.show();
    source.frameFiles.set_text("Select File");
    source.cmdView.disable();
    source.lblSelectedFile.clear_text();
    source.show();
}

void Drive1_Change(FrmCharSource& source) {
    source.Dir1.set_path(source.Drive1.text());
    forget_kind(source);
    source.lblSelectedFile.clear_text();
    source.cmdView.disable();
}

void Dir1_Change(FrmCharSource& source) {
    source.lstImportFileBox.set_path(source.Dir1.path());
    forget_kind(source);
    source.lblSelectedFile.clear_text();
}

void Dir1_Click(FrmCharSource& source) {
    source.lblAvailableFiles.show();
    source.lstImportFileBox.show();
    source.Dir1.open_selected();
}

void lstImportFileBox_Click(Screens& screens, FrmCharSource& source) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    const std::string name = source.lstImportFileBox.text();
    source.lblSelectedFile.set_text(name);
    display.MSFlexKeldarIN.clear();
    display.lblSelectedFile.set_text(name);
    screens.frmPreferences.lblFileConverted.set_text(name);
    forget_kind(source);
    source.cmdView.enable();
}

void cmdView_Click(Screens& screens, FrmCharSource& source, const Files& files) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    source.cmdView.disable();
    source.chkNew.set_ticked(true);
    FrmCharacteristics& translation = screens.frmCharacteristics;
    translation.frameAutoTranslate.hide();
    translation.frameMatch.hide();
    translation.frameTranslate.hide();

    empty_import_screen(display);
    source.hide();
    display.show();
    forget_columns(display);
    display.cmdSave.disable();
    display.frameImportedFile.show();
    ask_what_file_is_for(screens);
    const std::string path = source.lstImportFileBox.path() + "\\" + source.lblSelectedFile.text();
    display.lblSelectedFile.set_text(path);
    load_import_table(screens, files, path);
}

void mnuExit_Click(Screens& screens, FrmCharSource& source) {
    source.hide();
    screens.frmPreferencesSampleOption.show();
}

}  // namespace brooklander
