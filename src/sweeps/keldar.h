// How the program asks for the database KELDAR: as the user who is logged on, whose id and password
// stand in the two boxes of the start screen.
#pragma once

#include <string>
#include <string_view>

#include "platform/database.h"
#include "screens.h"

namespace brooklander {

// The organizations to choose from, without the dummy one.
inline constexpr std::string_view organizations_by_id =
    "Select org_id, name From tsmorgan Where org_id < 'ZZZZZZZZ' or org_id > 'ZZZZZZZZ' "
    "Order By org_id";

// Gives a data source its connection `DSN=keldar`, its user and its password.
void connect_to_keldar(DataSource& source, const FrmStart& start);

// The same, without blanks around the two: one search has always given them so.
void connect_to_keldar_trimmed(DataSource& source, const FrmStart& start);

// The same under the bare name `keldar`, which the set-up of automatic data loggers gives.
void connect_to_keldar_by_name(DataSource& source, const FrmStart& start);

// Connects a data source, gives it a statement and refreshes it. A FatalFailure when the statement
// fails.
void ask_keldar(DataSource& source, const FrmStart& start, std::string_view statement,
                Database& database);

// The connect string of the steps that only try whether the database lets the user in.
std::string keldar_connect_string(const FrmStart& start);

// A query of such a step.
Query keldar_query(const FrmStart& start, std::string_view statement);

}  // namespace brooklander
