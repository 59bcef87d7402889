// How the program asks for the database KELDAR: as the user who is logged on, whose id and password
// stand in the two boxes of the start screen.
#pragma once

#include <string>
#include <string_view>

#include "platform/database.h"
#include "screens.h"

namespace brooklander {

// Gives a data source its connection `DSN=keldar`, its user and its password.
void connect_to_keldar(DataSource& source, const FrmStart& start);

// The same, without blanks around the two: one search has always given them so.
void connect_to_keldar_trimmed(DataSource& source, const FrmStart& start);

// The connect string of the steps that only try whether the database lets the user in.
std::string keldar_connect_string(const FrmStart& start);

// A query of such a step.
Query keldar_query(const FrmStart& start, std::string_view statement);

}  // namespace brooklander
