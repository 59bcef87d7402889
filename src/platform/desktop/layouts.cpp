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
    } else if (&screen == &screens.frmCharSource) {
        lay_out_source(screens.frmCharSource, draw);
    } else if (&screen == &screens.frmCharacteristics) {
        lay_out_translation(screens.frmCharacteristics, draw);
    } else if (&screen == &screens.frmCharacteristicDetails) {
        lay_out_details(screens.frmCharacteristicDetails, draw);
    } else if (&screen == &screens.frmSubjectTaxon) {
        lay_out_taxon(screens.frmSubjectTaxon, draw);
    } else if (&screen == &screens.frmLogger) {
        lay_out_logger(screens.frmLogger, draw);
    } else if (&screen == &screens.frmLoggerResults) {
        lay_out_logger_results(screens.frmLoggerResults, draw);
    } else if (&screen == &screens.frmDataLogger) {
        lay_out_data_logger(screens.frmDataLogger, draw);
    } else if (&screen == &screens.frmDataLoggerResults) {
        lay_out_data_logger_results(screens.frmDataLoggerResults, draw);
    } else if (&screen == &screens.frmPortableDataLogger) {
        lay_out_portable(screens.frmPortableDataLogger, draw);
    } else {
        lay_out_plainly(screen, draw);
    }
}

}  // namespace brooklander::desktop
