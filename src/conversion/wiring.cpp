#include "conversion/wiring.h"

#include "conversion/configuration_details.h"
#include "conversion/conversion_driver.h"
#include "conversion/end_of_run.h"
#include "conversion/file_management.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

void wire_conversion_steps(Screens& screens, Platform& platform) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.cmdFormatConfirm.on_click = [&] { cmdFormatConfirm_Click(screens, platform.files); };

    display.optVox.on_click = [&] { optVox_Click(display); };
    display.optBatch.on_click = [&] { optBatch_Click(display); };
    display.fileConvertedFiles.on_click = [&] { fileConvertedFiles_Click(display); };
    display.cmdExistingFileDelete.on_click = [&] { cmdExistingFileDelete_Click(display); };
    display.cmdKillYes.on_click = [&] { cmdKillYes_Click(display, platform.files); };
    display.cmdKillNo.on_click = [&] { display.frameKillFileConfirm.hide(); };
    display.cmdOverwriteYes.on_click = [&] { display.frameKillFileConfirm.show(); };
    display.cmdOverwriteNo.on_click = [&] { cmdOverwriteNo_Click(display); };

    display.optAnotherFile.on_click = [&] { display.cmdConfirm.enable(); };
    display.optQuit.on_click = [&] { display.cmdConfirm.enable(); };
    display.cmdConfirm.on_click = [&] { cmdConfirm_Click(screens); };
}

void wire_configuration_display(Screens& screens, Platform& platform) {
    FrmConfigurationDisplay& details = screens.frmConfigurationDisplay;
    screens.frmImportFileDisplay.cmdDetails.on_click = [&] {
        cmdDetails_Click(screens, platform.files);
    };
    details.cmdReturn.on_click = [&] { details.hide(); };
    details.mnuExit.on_click = [&] {
        details.hide();
        screens.frmImportFileDisplay.show();
    };
    details.mnuHelp.on_click = [&] { platform.help.show(workspace::help_file); };
}

}  // namespace

void wire_conversion(Screens& screens, Platform& platform) {
    wire_conversion_steps(screens, platform);
    wire_configuration_display(screens, platform);
}

}  // namespace brooklander
