#include "sample_configuration.h"

#include <array>
#include <fstream>
#include <string>
#include <string_view>

#include "characteristics/defaults_layout.h"
#include "shared/tab_stops.h"

namespace brooklander::bench {
namespace {

constexpr std::string_view activity_values =
    "organization       =21BROOK\r\n"
    "organizationname   =Brook County Laboratory\r\n"
    "activitytype       =Sample\r\n"
    "activitycategory   =Routine Sample\r\n"
    "medium             =Water\r\n"
    "samplecollectionid =GRAB1\r\n"
    "sampletransport    =ICE\r\n"
    "fieldgearid        =BUCKET\r\n"
    "geartype           =Water Sampler\r\n"
    "depthunit          =m\r\n"
    "projectid          =LAKES\r\n"
    "projectname        =Lake Survey\r\n"
    "person             =Doe Jane\r\n"
    "timezone           =EST\r\n";

constexpr std::array<std::string_view, 12> details{"BCL",      "4500-P-E", "mg/l", "Dissolved",
                                                   "Actual",   "Mean",     "Dry",  "20 Deg C",
                                                   "24 Hours", "LAB-1",    "0.01", "mg/l"};

}  // namespace

void write_sample_configuration(const std::filesystem::path& home, int characteristics) {
    const std::filesystem::path root = home / "brooklander";
    std::filesystem::create_directories(root / "preferences");
    std::filesystem::create_directories(root / "characteristics");
    std::ofstream(root / "preferences/bench.txt", std::ios::binary) << activity_values;
    TabStopWriter writer;
    for (int number = 1; number <= characteristics; ++number) {
        writer.put("Characteristic " + std::to_string(number));
        for (std::size_t field = 0; field < details.size(); ++field) {
            writer.tab_to(defaults_fields.at(field + 1).stop);
            writer.put(details.at(field));
        }
        writer.end_line();
    }
    std::ofstream(root / "characteristics/bench.txt", std::ios::binary) << writer.text();
}

}  // namespace brooklander::bench
