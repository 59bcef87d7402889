#include "platform/desktop/layouts.h"

#include "platform/desktop/windows.h"

namespace brooklander::desktop {

void lay_out(Screens& screens, Screen& screen, ScreenWindow& window, Windows& windows) {
    Draw draw(window, windows);
    const auto by = [&screen, &draw](auto& own, const auto& lay_out_own) {
        const bool is_it = &screen == &own;
        if (is_it) lay_out_own(own, draw);
        return is_it;
    };
    const auto settings = [&screens](FrmPreferencesSettings& own, Draw& drawn) {
        lay_out_settings(own, screens.frmPreferences, drawn);
    };
    const bool has_own_layout =
        by(screens.frmStart, lay_out_start) || by(screens.frmImportFileDisplay, lay_out_import) ||
        by(screens.frmPreferences, lay_out_manager) ||
        by(screens.frmConfigurationDisplay, lay_out_display) ||
        by(screens.frmPreferencesSettings, settings) ||
        by(screens.frmPreferencesSamples, lay_out_samples) ||
        by(screens.frmPreferencesSampleOption, lay_out_options) ||
        by(screens.frmCharSource, lay_out_source) ||
        by(screens.frmCharacteristics, lay_out_translation) ||
        by(screens.frmCharacteristicDetails, lay_out_details) ||
        by(screens.frmSubjectTaxon, lay_out_taxon) || by(screens.frmLogger, lay_out_logger) ||
        by(screens.frmLoggerResults, lay_out_logger_results) ||
        by(screens.frmDataLogger, lay_out_data_logger) ||
        by(screens.frmDataLoggerResults, lay_out_data_logger_results) ||
        by(screens.frmPortableDataLogger, lay_out_portable);
    if (!has_own_layout) lay_out_plainly(screen, draw);
}

}  // namespace brooklander::desktop
