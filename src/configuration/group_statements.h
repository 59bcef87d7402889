// What the database is asked for the characteristics of a configuration's group. The organization
// and the group's code stand in the texts as they are; no quote in them is escaped.
#pragma once

#include <string>
#include <string_view>

namespace brooklander {

// A group that the database defines for all its users.
std::string system_group_statement(std::string_view organization, std::string_view group);

// A group that its users define.
std::string user_group_statement(std::string_view organization, std::string_view group);

// Any other group, and none: the statement finds nothing for an empty code.
std::string characteristic_group_statement(std::string_view organization, std::string_view group);

}  // namespace brooklander
