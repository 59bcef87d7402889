#include "conversion/wiring.h"

#include "conversion/conversion_driver.h"

namespace brooklander {

void wire_conversion(Screens& screens, Platform& platform) {
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    display.cmdFormatConfirm.on_click = [&] { cmdFormatConfirm_Click(screens, platform.files); };
}  // namespace brooklander

}  // namespace brooklander
