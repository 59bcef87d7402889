#include "configuration/time_zones.h"

namespace brooklander {

void fill_time_zones(FrmPreferencesSettings& settings) {
    settings.lstTimeZone.set_entries({
        "GMT Greenwich Mean Time",
        "AST Atlantic or Alaska Standard Time",
        "EST Eastern Standard Time",
        "CST Central Standard Time",
        "MST Mountain Standard Time",
        "PST Pacific Standard Time",
        "ADT Atlantic Daylight Time",
        "EDT Eastern Daylight Time",
        "CDT Central Daylight Time",
        "MDT Mountain Daylight Time",
        "PDT Pacific Daylight Time",
        "AK  Alaska Standard Time",
        "GU  Guam Standard Time",
        "HI  Hawaii Standard Time",
    });
}

}  // namespace brooklander
