#include "platform/database/odbc_handles.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "platform/code_page.h"
#include "platform/database/odbc_text.h"
#include "platform/fatal_failure.h"

namespace brooklander {
namespace {

constexpr std::size_t longest_name = 256;
constexpr std::size_t longest_description = 4096;
constexpr std::size_t longest_message = 4096;

template <std::size_t size>
struct Buffer {
    SQLTCHAR* data() { return characters.data(); }
    static SQLSMALLINT length() { return static_cast<SQLSMALLINT>(size); }
    std::string text() const { return text_of_driver(characters); }

    std::array<SQLTCHAR, size> characters{};
};

// A message without the `[vendor][part]` in front, and on one line.
std::string one_line(std::string_view message) {
    while (message.substr(0, 1) == "[") {
        const std::size_t end = message.find(']');
        if (end == std::string_view::npos) break;
        message.remove_prefix(end + 1);
    }
    constexpr std::string_view blanks = " \t\r\n";
    std::string line;
    for (const char byte : message) {
        const bool line_end = byte == '\r' || byte == '\n';
        if (!line_end) {
            line += byte;
        } else if (line.empty() || line.back() != ' ') {
            line += ' ';
        }
    }
    const std::size_t first = line.find_first_not_of(blanks);
    if (first == std::string::npos) return "";
    return line.substr(first, line.find_last_not_of(blanks) + 1 - first);
}

std::string as_utf8(const std::string& text) { return is_utf8(text) ? text : to_utf8(text); }

}  // namespace

OdbcHandle::OdbcHandle(SQLSMALLINT kind, SQLHANDLE parent) : kind_(kind) {
    if (!SQL_SUCCEEDED(SQLAllocHandle(kind, parent, &handle_))) {
        throw FatalFailure("The database cannot be opened: there is no memory for a connection.");
    }
}

std::string OdbcHandle::complaint() const {
    std::string all;
    for (SQLSMALLINT record = 1;; ++record) {
        Buffer<SQL_SQLSTATE_SIZE + 1> state;
        Buffer<longest_message> message;
        SQLINTEGER native = 0;
        SQLSMALLINT length = 0;
        if (!SQL_SUCCEEDED(SQLGetDiagRec(kind_, handle_, record, state.data(), &native,
                                         message.data(), message.length(), &length))) {
            break;
        }
        if (!all.empty()) all += "; ";
        all += as_utf8(one_line(message.text())) + " (SQLSTATE " + state.text() + ")";
    }
    return all.empty() ? "the driver does not say why" : all;
}

OdbcEnvironment::OdbcEnvironment() : OdbcHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE) {
    SQLSetEnvAttr(get(), SQL_ATTR_ODBC_VERSION, attribute(SQL_OV_ODBC3), 0);
}

std::string OdbcEnvironment::driver_of(const std::string& source) const {
    Buffer<longest_name> name;
    Buffer<longest_description> driver;
    SQLSMALLINT name_length = 0;
    SQLSMALLINT driver_length = 0;
    for (SQLUSMALLINT direction = SQL_FETCH_FIRST;
         SQL_SUCCEEDED(SQLDataSources(get(), direction, name.data(), name.length(), &name_length,
                                      driver.data(), driver.length(), &driver_length));
         direction = SQL_FETCH_NEXT) {
        if (same_but_for_case(name.text(), source)) {
            const std::string library = library_of(driver.text());
            return library.empty() ? driver.text() : library;
        }
    }
    return "";
}

// A driver's name can be anything; the library that is registered under it tells more. Empty when
// no driver of that name is registered: the name is a library's path then.
std::string OdbcEnvironment::library_of(const std::string& driver) const {
    Buffer<longest_name> name;
    Buffer<longest_description> attributes;
    SQLSMALLINT name_length = 0;
    SQLSMALLINT attributes_length = 0;
    for (SQLUSMALLINT direction = SQL_FETCH_FIRST;
         SQL_SUCCEEDED(SQLDrivers(get(), direction, name.data(), name.length(), &name_length,
                                  attributes.data(), attributes.length(), &attributes_length));
         direction = SQL_FETCH_NEXT) {
        if (!same_but_for_case(name.text(), driver)) continue;
        // `key=value` texts, each ended by a zero, and one more zero behind the last.
        constexpr std::string_view key = "Driver=";
        std::span<const SQLTCHAR> rest = attributes.characters;
        while (!rest.empty() && rest.front() != 0) {
            const std::string attribute = text_of_driver(rest);
            if (attribute.starts_with(key)) return attribute.substr(key.size());
            const auto end = std::find(rest.begin(), rest.end() - 1, SQLTCHAR{0});
            rest = rest.subspan(static_cast<std::size_t>(end - rest.begin()) + 1);
        }
    }
    return "";
}

SQLPOINTER attribute(SQLULEN value) {
    return reinterpret_cast<SQLPOINTER>(value);  // NOLINT(performance-no-int-to-ptr): the API's way
}

}  // namespace brooklander
