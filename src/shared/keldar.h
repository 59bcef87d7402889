// How the program asks for the database KELDAR: by the logged-on user's id and password, which
// stand in the two boxes of the start screen.
#pragma once

#include <string>
#include <string_view>

#include "shared/data_source.h"

namespace brooklander {

// Gives a data source its connection `DSN=keldar`, its user and its password.
void connect_to_keldar(DataSource& source, const TextBox& user, const TextBox& password);

// The connect string of the steps that only try whether the database lets the user in.
std::string keldar_connect_string(const TextBox& user, const TextBox& password);

// A query of such a step.
Query keldar_query(const TextBox& user, const TextBox& password, std::string_view statement);

}  // namespace brooklander
