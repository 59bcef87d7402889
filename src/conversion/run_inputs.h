// What a conversion reads from the screens: which column holds what, and the values that all lines
// share.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "screens.h"

namespace brooklander {

// Columns and rows from 0.
struct Assignment {
    int station;
    int date;
    std::optional<int> time;
    std::optional<int> sample;
    std::optional<int> depth;
    std::optional<int> comments;
    std::optional<int> person;
    int first_result;
    int first_row;
};

Assignment assignment_of(const FrmImportFileDisplay& display);

// The configuration's values, each trimmed but for the trip. Under a configuration of the import
// module all but the trip and the depth's unit are empty, since the module adds them itself.
struct ActivityDefaults {
    std::string trip;
    std::string time_zone;
    std::string category;
    std::string type;
    std::string medium;
    std::string collection_procedure;
    std::string gear;
    std::string gear_configuration;
    std::string transport;
    std::string project;
    std::string depth_unit;
};

ActivityDefaults activity_defaults_of(const Screens& screens);

}  // namespace brooklander
