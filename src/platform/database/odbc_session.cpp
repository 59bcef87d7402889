#include "platform/database/odbc_session.h"

#include <array>
#include <cstring>

#include "platform/code_page.h"
#include "platform/fatal_failure.h"

namespace brooklander {
namespace {

constexpr SQLULEN login_seconds = 10;

// Texts come in pieces of this size, less the zero byte that ends each.
constexpr std::size_t piece_bytes = 8192;
using Piece = std::array<char, piece_bytes>;

// The API asks for writable texts, and writes none of these.
SQLCHAR* text_of(const std::string& text) {
    return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text.c_str()));
}

// A statement with the rows that answer it.
class Statement : public OdbcHandle {
  public:
    explicit Statement(SQLHANDLE connection) : OdbcHandle(SQL_HANDLE_STMT, connection) {
        // Braces are plain text in a statement. A driver that cannot be told so says so.
        SQLSetStmtAttr(get(), SQL_ATTR_NOSCAN, attribute(SQL_NOSCAN_ON), SQL_IS_UINTEGER);
    }

    bool execute(const std::string& statement) {
        const SQLRETURN code = SQLExecDirect(get(), text_of(statement), SQL_NTS);
        return SQL_SUCCEEDED(code) || code == SQL_NO_DATA;
    }

    // False when a call fails; complaint() has the reason then.
    bool read_columns(std::vector<std::string>& names);
    bool read_rows(std::size_t columns, std::vector<std::vector<std::string>>& rows);

  private:
    bool read_value(SQLUSMALLINT column, Piece& piece, std::string& value);
};

bool Statement::read_columns(std::vector<std::string>& names) {
    SQLSMALLINT columns = 0;
    if (!SQL_SUCCEEDED(SQLNumResultCols(get(), &columns))) return false;
    for (SQLSMALLINT column = 1; column <= columns; ++column) {
        std::array<SQLCHAR, 1024> name{};
        SQLSMALLINT length = 0;
        const SQLRETURN code = SQLDescribeCol(get(), static_cast<SQLUSMALLINT>(column), name.data(),
                                              static_cast<SQLSMALLINT>(name.size()), &length,
                                              nullptr, nullptr, nullptr, nullptr);
        if (!SQL_SUCCEEDED(code)) return false;
        names.emplace_back(reinterpret_cast<const char*>(name.data()));
    }
    return true;
}

bool Statement::read_rows(std::size_t columns, std::vector<std::vector<std::string>>& rows) {
    Piece piece{};
    for (;;) {
        const SQLRETURN code = SQLFetch(get());
        if (code == SQL_NO_DATA) return true;
        if (!SQL_SUCCEEDED(code)) return false;
        auto& row = rows.emplace_back(columns);
        for (std::size_t column = 0; column < columns; ++column) {
            if (!read_value(static_cast<SQLUSMALLINT>(column + 1), piece, row[column])) {
                return false;
            }
        }
    }
}

// An absent value leaves the text empty. Each piece is read up to its zero byte rather than by the
// reported length, since drivers report the length of the whole, of the rest, or none at all.
bool Statement::read_value(SQLUSMALLINT column, Piece& piece, std::string& value) {
    for (;;) {
        SQLLEN length = 0;
        const SQLRETURN code =
            SQLGetData(get(), column, SQL_C_CHAR, piece.data(), piece_bytes, &length);
        if (code == SQL_NO_DATA || (SQL_SUCCEEDED(code) && length == SQL_NULL_DATA)) return true;
        if (!SQL_SUCCEEDED(code)) return false;
        value.append(piece.data(), strnlen(piece.data(), piece_bytes));
        if (code == SQL_SUCCESS) return true;
    }
}

std::string without(std::string text, const std::string& secret) {
    if (secret.empty()) return text;
    constexpr std::string_view cover = "***";
    for (auto at = text.find(secret); at != std::string::npos;
         at = text.find(secret, at + cover.size())) {
        text.replace(at, secret.size(), cover);
    }
    return text;
}

}  // namespace

OdbcSession::OdbcSession(const Logon& logon) : source_(logon.source), password_(logon.password) {
    SQLSetConnectAttr(connection_.get(), SQL_ATTR_ACCESS_MODE, attribute(SQL_MODE_READ_ONLY), 0);
    SQLSetConnectAttr(connection_.get(), SQL_ATTR_LOGIN_TIMEOUT, attribute(login_seconds), 0);
    open(logon);
    prepare_session(server_, [this](const std::string& statement) { return ask(statement); });
}

// The two bridged servers take user and password one by one: their drivers do not read the quotes
// of a connect string, so that a password could name them another file there, and a user id with a
// semicolon could not log on. Neither do they want the name of the database, which replaces the
// data source's own. Any other driver gets the connect string.
void OdbcSession::open(const Logon& logon) {
    const Server expected = server_by_driver(environment_.driver_of(logon.source));
    SQLRETURN code = SQL_ERROR;
    if (expected == Server::other) {
        code = SQLDriverConnect(connection_.get(), nullptr, text_of(logon.connect_string), SQL_NTS,
                                nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
    } else {
        const std::string user = text_for(expected, logon.user);
        const std::string password = text_for(expected, logon.password);
        code = SQLConnect(connection_.get(), text_of(logon.source), SQL_NTS, text_of(user), SQL_NTS,
                          text_of(password), SQL_NTS);
    }
    if (!SQL_SUCCEEDED(code)) {
        fail("The data source \"" + source_ + "\" cannot be opened", connection_.complaint());
    }
    std::array<char, 128> name{};
    SQLSMALLINT length = 0;
    SQLGetInfo(connection_.get(), SQL_DBMS_NAME, name.data(), static_cast<SQLSMALLINT>(name.size()),
               &length);
    server_ = server_by_name(name.data());
}

QueryResult OdbcSession::ask(const std::string& statement) {
    const auto sentence = [&] {
        const std::string utf8 = server_ == Server::other ? to_utf8(statement) : statement;
        return "The data source \"" + source_ + "\" does not answer the statement \"" + utf8 + "\"";
    };
    Statement cursor(connection_.get());
    QueryResult result;
    const bool answered =
        cursor.execute(statement) && cursor.read_columns(result.columns) &&
        (result.columns.empty() || cursor.read_rows(result.columns.size(), result.rows));
    if (!answered) fail(sentence(), cursor.complaint());
    return result;
}

void OdbcSession::fail(const std::string& what, const std::string& complaint) const {
    // A driver that repeats its connect string has the password in braces, perhaps.
    const std::string told =
        without(without(complaint, to_utf8(connect_value(password_))), to_utf8(password_));
    throw FatalFailure(what + ": " + told + ".");
}

}  // namespace brooklander
