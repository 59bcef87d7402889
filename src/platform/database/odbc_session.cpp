#include "platform/database/odbc_session.h"

#include <algorithm>
#include <array>

#include "platform/code_page.h"
#include "platform/database/odbc_text.h"
#include "platform/fatal_failure.h"

namespace brooklander {
namespace {

constexpr SQLULEN login_seconds = 10;

// Texts come in pieces of so many characters, less the zero that ends each.
constexpr std::size_t piece_length = 8192;

// A statement with the rows that answer it.
class Statement : public OdbcHandle {
  public:
    explicit Statement(SQLHANDLE connection) : OdbcHandle(SQL_HANDLE_STMT, connection) {
        // Braces are plain text in a statement. A driver that cannot be told so says so.
        SQLSetStmtAttr(get(), SQL_ATTR_NOSCAN, attribute(SQL_NOSCAN_ON), SQL_IS_UINTEGER);
    }

    bool execute(OdbcText statement) {
        const SQLRETURN code = SQLExecDirect(get(), statement.data(), SQL_NTS);
        return SQL_SUCCEEDED(code) || code == SQL_NO_DATA;
    }

    // False when a call fails; complaint() has the reason then.
    bool read_columns(std::vector<std::string>& names);
    bool read_rows(std::size_t columns, std::vector<std::vector<std::string>>& rows);

  private:
    bool read_value(SQLUSMALLINT column, OdbcText& whole);
};

bool Statement::read_columns(std::vector<std::string>& names) {
    SQLSMALLINT columns = 0;
    if (!SQL_SUCCEEDED(SQLNumResultCols(get(), &columns))) return false;
    for (SQLSMALLINT column = 1; column <= columns; ++column) {
        std::array<SQLTCHAR, 1024> name{};
        SQLSMALLINT length = 0;
        const SQLRETURN code = SQLDescribeCol(get(), static_cast<SQLUSMALLINT>(column), name.data(),
                                              static_cast<SQLSMALLINT>(name.size()), &length,
                                              nullptr, nullptr, nullptr, nullptr);
        if (!SQL_SUCCEEDED(code)) return false;
        names.push_back(text_of_driver(name));
    }
    return true;
}

bool Statement::read_rows(std::size_t columns, std::vector<std::vector<std::string>>& rows) {
    OdbcText whole;
    for (;;) {
        const SQLRETURN code = SQLFetch(get());
        if (code == SQL_NO_DATA) return true;
        if (!SQL_SUCCEEDED(code)) return false;
        auto& row = rows.emplace_back(columns);
        for (std::size_t column = 0; column < columns; ++column) {
            if (!read_value(static_cast<SQLUSMALLINT>(column + 1), whole)) return false;
            row[column] = text_of_driver(whole);
        }
    }
}

// An absent value leaves the text empty. Each piece is read up to its zero rather than by the
// reported length, since drivers report the length of the whole, of the rest, or none at all. The
// pieces are put together before anything is made of them: one can end inside a character.
bool Statement::read_value(SQLUSMALLINT column, OdbcText& whole) {
    whole.clear();
    std::array<SQLTCHAR, piece_length> piece;
    for (;;) {
        SQLLEN length = 0;
        const SQLRETURN code =
            SQLGetData(get(), column, SQL_C_TCHAR, piece.data(), sizeof piece, &length);
        if (code == SQL_NO_DATA || (SQL_SUCCEEDED(code) && length == SQL_NULL_DATA)) return true;
        if (!SQL_SUCCEEDED(code)) return false;
        whole.insert(whole.end(), piece.begin(), std::find(piece.begin(), piece.end(), 0));
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
        OdbcText text = text_to_driver(expected, logon.connect_string);
        code = SQLDriverConnect(connection_.get(), nullptr, text.data(), SQL_NTS, nullptr, 0,
                                nullptr, SQL_DRIVER_NOPROMPT);
    } else {
        OdbcText source = text_to_driver(Server::other, logon.source);
        OdbcText user = text_to_driver(expected, logon.user);
        OdbcText password = text_to_driver(expected, logon.password);
        code = SQLConnect(connection_.get(), source.data(), SQL_NTS, user.data(), SQL_NTS,
                          password.data(), SQL_NTS);
    }
    if (!SQL_SUCCEEDED(code)) {
        fail("The data source \"" + source_ + "\" cannot be opened", connection_.complaint());
    }
    std::array<SQLTCHAR, 128> name{};
    SQLSMALLINT length = 0;
    SQLGetInfo(connection_.get(), SQL_DBMS_NAME, name.data(), static_cast<SQLSMALLINT>(sizeof name),
               &length);
    server_ = server_by_name(text_of_driver(name));
}

QueryResult OdbcSession::ask(const std::string& statement) {
    Statement cursor(connection_.get());
    QueryResult result;
    const bool answered =
        cursor.execute(text_to_driver(server_, statement)) && cursor.read_columns(result.columns) &&
        (result.columns.empty() || cursor.read_rows(result.columns.size(), result.rows));
    if (!answered) {
        fail("The data source \"" + source_ + "\" does not answer the statement \"" +
                 to_utf8(statement) + "\"",
             cursor.complaint());
    }
    return result;
}

void OdbcSession::fail(const std::string& what, const std::string& complaint) const {
    // A driver that repeats its connect string has the password in braces, perhaps.
    const std::string told =
        without(without(complaint, to_utf8(connect_value(password_))), to_utf8(password_));
    throw FatalFailure(what + ": " + told + ".");
}

}  // namespace brooklander
