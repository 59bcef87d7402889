#include "shared/keldar.h"

namespace brooklander {
namespace {

constexpr std::string_view connection = "DSN=keldar";

}  // namespace

void connect_to_keldar(DataSource& source, const TextBox& user, const TextBox& password) {
    source.connect(connection, user.text(), password.text());
}

std::string keldar_connect_string(const TextBox& user, const TextBox& password) {
    return "ODBC;DATABASE=KELDAR2;UID=" + user.text() + ";" + "PWD=" + password.text() +
           ";DSN=keldar";
}

Query keldar_query(const TextBox& user, const TextBox& password, std::string_view statement) {
    return {std::string(connection), user.text(), password.text(), std::string(statement)};
}

}  // namespace brooklander
