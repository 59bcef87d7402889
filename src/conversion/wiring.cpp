#include "conversion/wiring.h"

#include "conversion/conversion_driver.h"
#include "conversion/end_of_run.h"
#include "conversion/file_management.h"

namespace brooklander {

void wire_conversion(Screens& screens, Platform& platform) {
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
}  // namespace brooklander

}  // namespace brooklander
