#include "platform/desktop/layouts.h"

#include "platform/desktop/windows.h"

namespace brooklander::desktop {

void lay_out(Screens& screens, Screen& screen, ScreenWindow& window, Windows& windows) {
    Draw draw(window, windows);
    if (&screen == &screens.frmStart) {
        lay_out_start(screens.frmStart, draw);
    } else if (&screen == &screens.frmImportFileDisplay) {
        lay_out_import(screens.frmImportFileDisplay, draw);
    } else if (&screen == &screens.frmPreferences) {
        lay_out_manager(screens.frmPreferences, draw);
    } else if (&screen == &screens.frmConfigurationDisplay) {
        lay_out_display(screens.frmConfigurationDisplay, draw);
    } else if (&screen == &screens.frmPreferencesSettings) {
        lay_out_settings(screens.frmPreferencesSettings, screens.frmPreferences, draw);
    } else if (&screen == &screens.frmPreferencesSamples) {
        lay_out_samples(screens.frmPreferencesSamples, draw);
    } else if (&screen == &screens.frmPreferencesSampleOption) {
        lay_out_options(screens.frmPreferencesSampleOption, draw);
    } else {
        lay_out_plainly(screen, draw);
    }
}

}  // namespace brooklander::desktop
