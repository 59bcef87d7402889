#include "platform/database/connect_string.h"

#include "platform/code_page.h"
#include "platform/fatal_failure.h"

namespace brooklander {
namespace {

constexpr std::string_view odbc_mark = "ODBC;";  // the database engine's, not the driver manager's
constexpr std::string_view user_key = "UID=";
constexpr std::string_view password_key = ";PWD=";
constexpr std::string_view source_key = ";DSN=";

}  // namespace

Logon logon_of(std::string_view text) {
    if (text.substr(0, odbc_mark.size()) == odbc_mark) text.remove_prefix(odbc_mark.size());
    const std::size_t user = text.find(user_key);
    const std::size_t password = text.find(password_key);
    const std::size_t source = text.rfind(source_key);
    const bool whole = user != std::string_view::npos && password != std::string_view::npos &&
                       source != std::string_view::npos && user + user_key.size() <= password &&
                       password + password_key.size() <= source;
    if (!whole) {
        throw FatalFailure(
            "The database cannot be opened: its connect string lacks the user id, the password or "
            "the data source.");
    }
    const auto between = [text](std::size_t from, std::size_t to) {
        return std::string(text.substr(from, to - from));
    };
    Logon logon;
    logon.user = between(user + user_key.size(), password);
    logon.password = between(password + password_key.size(), source);
    logon.source = text.substr(source + source_key.size());
    logon.connect_string = between(0, user + user_key.size()) + connect_value(logon.user) +
                           std::string(password_key) + connect_value(logon.password) +
                           std::string(text.substr(source));
    return logon;
}

Logon logon_of(const Query& query) {
    constexpr std::string_view key = "DSN=";
    std::string_view source = query.connection;
    if (same_but_for_case(source.substr(0, key.size()), key)) source.remove_prefix(key.size());
    if (source.empty()) {
        throw FatalFailure("The database cannot be opened: no data source is named.");
    }
    return {std::string(source), query.user, query.password,
            "DSN=" + std::string(source) + ";UID=" + connect_value(query.user) +
                ";PWD=" + connect_value(query.password)};
}

std::string connect_value(std::string_view value) {
    const bool plain = value.find_first_of(";{}=") == std::string_view::npos &&
                       (value.empty() || (value.front() != ' ' && value.back() != ' '));
    if (plain) return std::string(value);
    std::string quoted = "{";
    for (const char byte : value) {
        quoted += byte;
        if (byte == '}') quoted += byte;
    }
    return quoted + "}";
}

}  // namespace brooklander
