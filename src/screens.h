// Every screen's fields, in one place: the whole state of the program.
#pragma once

#include "characteristics/details_screen.h"
#include "characteristics/source_screen.h"
#include "characteristics/taxon_screen.h"
#include "characteristics/translation_screen.h"
#include "configuration/activity_settings_screen.h"
#include "configuration/characteristics_holder_screen.h"
#include "configuration/configuration_display_screen.h"
#include "configuration/manager_screen.h"
#include "configuration/sample_collection_screen.h"
#include "configuration/sample_options_screen.h"
#include "import/import_continue_screen.h"
#include "import/import_screen.h"
#include "import/import_values_screen.h"
#include "loggers/data_logger_results_screen.h"
#include "loggers/data_logger_screen.h"
#include "loggers/logger_results_screen.h"
#include "loggers/logger_screen.h"
#include "loggers/portable_logger_screen.h"
#include "logon/start_screen.h"

namespace brooklander {

struct Screens {
    // Both out of line: making and unmaking a thousand fields is much code for every source that
    // has screens.
    explicit Screens(Files& files);
    ~Screens();
    Screens(const Screens&) = delete;
    Screens& operator=(const Screens&) = delete;

    Desk desk;

    FrmStart frmStart{desk};
    FrmImportFileDisplay frmImportFileDisplay{desk};
    FrmImport frmImport{desk};
    FrmImportContinue frmImportContinue{desk};
    FrmPreferences frmPreferences{desk};
    FrmPreferencesSettings frmPreferencesSettings{desk};
    FrmPreferencesSamples frmPreferencesSamples{desk};
    FrmPreferencesSampleOption frmPreferencesSampleOption{desk};
    FrmPreferencesCharacteristics frmPreferencesCharacteristics{desk};
    FrmConfigurationDisplay frmConfigurationDisplay{desk};
    FrmCharSource frmCharSource{desk};
    FrmCharacteristics frmCharacteristics{desk};
    FrmCharacteristicDetails frmCharacteristicDetails{desk};
    FrmSubjectTaxon frmSubjectTaxon{desk};
    FrmLogger frmLogger{desk};
    FrmLoggerResults frmLoggerResults{desk};
    FrmDataLogger frmDataLogger{desk};
    FrmDataLoggerResults frmDataLoggerResults{desk};
    FrmPortableDataLogger frmPortableDataLogger{desk};

    // The program has ended by its own exit.
    bool ended = false;
};

}  // namespace brooklander
