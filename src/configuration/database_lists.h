// The lists of the central database that a configuration is chosen from.
#pragma once

#include <string>
#include <string_view>

#include "platform/database.h"
#include "screens.h"

namespace brooklander {

// The chosen organization as the statements want it: trimmed, in upper case.
std::string organization_id(const FrmPreferencesSettings& settings);

// Each fills the grid of its list, and gives it its column widths where it has any of its own. The
// values go into the statement as they come: nothing is trimmed, and a quote in one of them makes
// the statement fail. A FatalFailure when it does, or when the database cannot be reached.

// All organizations but the dummy one.
void list_organizations(Screens& screens, Database& database);

// Of an organization, by its id.
void list_trips(Screens& screens, std::string_view organization, Database& database);
void list_procedures(Screens& screens, std::string_view organization, Database& database);
void list_sample_transports(Screens& screens, std::string_view organization, Database& database);

// Those who still collect samples.
void list_persons(Screens& screens, std::string_view organization, Database& database);

// Those that a trip was made for; with an empty trip number, all.
void list_projects(Screens& screens, std::string_view organization, std::string_view trip_number,
                   Database& database);

// The gear of a type, which belongs to no organization, and how an organization sets a piece of
// gear up.
void list_gear(Screens& screens, std::string_view gear_type, Database& database);
void list_gear_configurations(Screens& screens, std::string_view organization,
                              std::string_view gear_id, Database& database);

}  // namespace brooklander
