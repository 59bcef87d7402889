// How each screen is laid out in its window.
#pragma once

#include "platform/desktop/draw.h"
#include "screens.h"

namespace brooklander::desktop {

// Lays a screen's fields out: by its own layout or, for the three that only hold what other screens
// write, by the plain one.
void lay_out(Screens& screens, Screen& screen, ScreenWindow& window, Windows& windows);

void lay_out_start(FrmStart& start, Draw& draw);
void lay_out_import(FrmImportFileDisplay& display, Draw& draw);
void lay_out_manager(FrmPreferences& manager, Draw& draw);
void lay_out_display(FrmConfigurationDisplay& display, Draw& draw);
void lay_out_source(FrmCharSource& source, Draw& draw);
void lay_out_translation(FrmCharacteristics& translation, Draw& draw);
void lay_out_details(FrmCharacteristicDetails& details, Draw& draw);

// The steps of a configuration that is made or edited. What kind of activity is chosen stands on
// the manager.
void lay_out_settings(FrmPreferencesSettings& settings, FrmPreferences& manager, Draw& draw);
void lay_out_samples(FrmPreferencesSamples& samples, Draw& draw);
void lay_out_options(FrmPreferencesSampleOption& options, Draw& draw);

void lay_out_taxon(FrmSubjectTaxon& taxon, Draw& draw);

// The two ways of a logger file, and the results that are typed in by hand.
void lay_out_logger(FrmLogger& logger, Draw& draw);
void lay_out_logger_results(FrmLoggerResults& results, Draw& draw);
void lay_out_data_logger(FrmDataLogger& logger, Draw& draw);
void lay_out_data_logger_results(FrmDataLoggerResults& results, Draw& draw);
void lay_out_portable(FrmPortableDataLogger& portable, Draw& draw);

// One card a panel, one field below the other, in the order in which the screen has them. It is for
// frmImport, frmImportContinue and frmPreferencesCharacteristics: nobody works on these, but the
// first one is shown for a moment, and scenarios may open all three.
void lay_out_plainly(Screen& screen, Draw& draw);

}  // namespace brooklander::desktop
