#include "configuration/time_zones.h"

#include <array>

#include "shared/text.h"

namespace brooklander {
namespace {

constexpr std::size_t code_length = 3;  // what follows is a blank and the name

constexpr std::array<std::string_view, 14> time_zones{
    "GMT Greenwich Mean Time",    "AST Atlantic or Alaska Standard Time",
    "EST Eastern Standard Time",  "CST Central Standard Time",
    "MST Mountain Standard Time", "PST Pacific Standard Time",
    "ADT Atlantic Daylight Time", "EDT Eastern Daylight Time",
    "CDT Central Daylight Time",  "MDT Mountain Daylight Time",
    "PDT Pacific Daylight Time",  "AK  Alaska Standard Time",
    "GU  Guam Standard Time",     "HI  Hawaii Standard Time",
};

}  // namespace

void fill_time_zones(FrmPreferencesSettings& settings) {
    settings.lstTimeZone.set_entries({time_zones.begin(), time_zones.end()});
}

std::string time_zone_code(std::string_view entry) {
    return std::string(trim(left(entry, code_length)));
}

}  // namespace brooklander
