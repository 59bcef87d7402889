#include "configuration/import_notice.h"

#include <array>
#include <string_view>

#include "shared/tab_stops.h"

namespace brooklander {
namespace {

constexpr std::string_view before_names =
    "This is the suggested format for creating the VOX Configuration Format that will be\r\n"
    "used to Import data converted with Brooklander Defaults File:\r\n"
    "\r\n";

constexpr std::string_view instructions =
    "\r\n"
    "Always set delimiter to tilda ~\r\n"
    "\r\n"
    "If you do not select a 'Trip ID' in your configuration file do the following:\r\n"
    "\r\n"
    "** For 'Trip ID' click 'Instructions' tab in VOX then select either\r\n"
    "'Create one trip per month' or 'Create one trip per year.'\r\n"
    "\r\n"
    "** For 'Station Visit Number' also click 'Instructions' tab in VOX then select\r\n"
    "'Create one visit per date and time.\r\n"
    "\r\n"
    "For 'Activity Start Date' select the format 'MM/DD/YYYY'\r\n"
    "\r\n"
    "For 'Activity Start Time select the format 'HH24MI'\r\n"
    "\r\n"
    "Organization = ";

constexpr std::size_t hyphens = 80;
constexpr std::size_t position_stop = 35;

struct Column {
    std::string_view name;
    std::string_view position;
};

constexpr std::array<Column, 19> columns{{
    {"Column Name", "Position"},
    {"Trip ID", "1"},
    {"Station ID", "2"},
    {"Station Visit Number", "3"},
    {"Activity Start Date", "4"},
    {"Activity Start Time", "5"},
    {"Activity Start Time Zone", "6"},
    {"Activity ID", "7"},
    {"Visit Comments", "8"},
    {"Activity Category", "9"},
    {"Activity Type", "10"},
    {"Medium", "11"},
    {"Sample Collection Procedure", "12"},
    {"Gear ID", "13"},
    {"Gear Configuration ID", "14"},
    {"Sample Preservation Transport", "15"},
    {"Personnel", "16"},
    {"Project ID", "17"},
    {"Result Value", "20"},
}};

std::string column_table() {
    TabStopWriter table;
    for (const Column& column : columns) {
        table.put(column.name);
        table.tab_to(position_stop);
        table.put(column.position);
        table.end_line();
    }
    return table.text();
}

}  // namespace

std::string import_notice(const FrmPreferences& preferences) {
    std::string notice(before_names);
    const std::string& typed = preferences.txtFileName.text();
    if (!typed.empty()) notice.append(typed).append("\r\n");
    notice.append(preferences.lblSelectedFile.text()).append("\r\n");
    notice.append(instructions).append(preferences.lblOrganization.text()).append("\r\n\r\n");
    notice.append(hyphens, '-').append("\r\n");
    return notice + column_table();
}

}  // namespace brooklander
