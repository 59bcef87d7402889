// How each screen is laid out in its window.
#pragma once

#include "platform/desktop/draw.h"
#include "screens.h"

namespace brooklander::desktop {

// Lays a screen's fields out, by its own layout or, where it has none, by the plain one.
void lay_out(Screens& screens, Screen& screen, ScreenWindow& window, Windows& windows);

void lay_out_start(FrmStart& start, Draw& draw);
void lay_out_import(FrmImportFileDisplay& display, Draw& draw);
void lay_out_manager(FrmPreferences& manager, Draw& draw);
void lay_out_display(FrmConfigurationDisplay& display, Draw& draw);

// The steps of a configuration that is made or edited. What kind of activity is chosen stands on
// the manager.
void lay_out_settings(FrmPreferencesSettings& settings, FrmPreferences& manager, Draw& draw);
void lay_out_samples(FrmPreferencesSamples& samples, Draw& draw);
void lay_out_options(FrmPreferencesSampleOption& options, Draw& draw);

// One card a panel, one field below the other, in the order in which the screen has them.
void lay_out_plainly(Screen& screen, Draw& draw);

}  // namespace brooklander::desktop
