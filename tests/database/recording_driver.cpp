// An ODBC driver for a server that is none of those the program knows: it writes down what it is
// sent, byte for byte, and answers every statement alike.
//
// RECORDING_DRIVER_FILE names the file for what it gets. A statement that holds the word "refuse"
// fails, and so does a logon.

#include <sql.h>
#include <sqlext.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr auto complaint =
    "[Recorder][Driver][Recorder]\r\nORA-00942: table or view does not exist\r\n"
    "given UID=lake;PWD={a;b}}c};\xE9t\xE9\n";

// Answers are pieces that end in any place, of a length that nobody tells beforehand.
const std::vector<std::string>& answer() {
    static const std::vector<std::string> values{"\xC9t\xE9   ", std::string(20'000, '\x80'), ""};
    return values;
}

// One row of the values, the last of which is absent.
struct Cursor {
    bool fetched = false;
    std::vector<std::size_t> given = std::vector<std::size_t>(answer().size());
};

// Connections and environments have nothing to remember.
char anything;

std::string text(const SQLCHAR* bytes, SQLINTEGER length) {
    const auto* const start = reinterpret_cast<const char*>(bytes);
    return length == SQL_NTS ? std::string(start)
                             : std::string(start, static_cast<std::size_t>(length));
}

void record(const std::string& what) {
    std::ofstream(std::getenv("RECORDING_DRIVER_FILE"), std::ios::app | std::ios::binary)
        << what << "\n";
}

SQLRETURN give(const std::string& value, void* place, SQLSMALLINT size, SQLSMALLINT* length) {
    if (place != nullptr && size > 0) {
        const auto bytes = std::min(value.size(), static_cast<std::size_t>(size) - 1);
        std::memcpy(place, value.data(), bytes);
        static_cast<char*>(place)[bytes] = '\0';
    }
    if (length != nullptr) *length = static_cast<SQLSMALLINT>(value.size());
    return SQL_SUCCESS;
}

}  // namespace

extern "C" {

SQLRETURN SQL_API SQLAllocHandle(SQLSMALLINT kind, SQLHANDLE /*parent*/, SQLHANDLE* handle) {
    *handle = kind == SQL_HANDLE_STMT ? static_cast<SQLHANDLE>(new Cursor) : &anything;
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLFreeHandle(SQLSMALLINT kind, SQLHANDLE handle) {
    if (kind == SQL_HANDLE_STMT) delete static_cast<Cursor*>(handle);
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLFreeStmt(SQLHSTMT statement, SQLUSMALLINT option) {
    return option == SQL_DROP ? SQLFreeHandle(SQL_HANDLE_STMT, statement) : SQL_SUCCESS;
}

SQLRETURN SQL_API SQLSetEnvAttr(SQLHENV, SQLINTEGER, SQLPOINTER, SQLINTEGER) { return SQL_SUCCESS; }

SQLRETURN SQL_API SQLSetConnectAttr(SQLHDBC, SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER) {
    const auto number = reinterpret_cast<std::size_t>(value);
    if (attribute == SQL_ATTR_ACCESS_MODE) record("access mode " + std::to_string(number));
    if (attribute == SQL_ATTR_LOGIN_TIMEOUT) record("login timeout " + std::to_string(number));
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLSetStmtAttr(SQLHSTMT, SQLINTEGER, SQLPOINTER, SQLINTEGER) {
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetStmtAttr(SQLHSTMT statement, SQLINTEGER, SQLPOINTER value, SQLINTEGER,
                                 SQLINTEGER*) {
    *static_cast<SQLPOINTER*>(value) = statement;  // whoever asks wants descriptors, and uses none
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLDriverConnect(SQLHDBC, SQLHWND, SQLCHAR* in, SQLSMALLINT length, SQLCHAR* out,
                                   SQLSMALLINT size, SQLSMALLINT* out_length,
                                   SQLUSMALLINT completion) {
    const std::string given = text(in, length);
    record("connect " + given + (completion == SQL_DRIVER_NOPROMPT ? "" : " and prompt"));
    if (given.find("refuse") != std::string::npos) return SQL_ERROR;
    return give(given, out, size, out_length);
}

SQLRETURN SQL_API SQLDisconnect(SQLHDBC) {
    record("disconnect");
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetInfo(SQLHDBC, SQLUSMALLINT what, SQLPOINTER place, SQLSMALLINT size,
                             SQLSMALLINT* length) {
    if (what == SQL_DBMS_NAME) return give("Oracle", place, size, length);
    if (what == SQL_DRIVER_ODBC_VER) return give("03.00", place, size, length);
    if (size >= 4) std::memset(place, 0, 4);
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLExecDirect(SQLHSTMT, SQLCHAR* statement, SQLINTEGER length) {
    const std::string given = text(statement, length);
    record("statement " + given);
    return given.find("refuse") != std::string::npos ? SQL_ERROR : SQL_SUCCESS;
}

SQLRETURN SQL_API SQLNumResultCols(SQLHSTMT, SQLSMALLINT* columns) {
    *columns = static_cast<SQLSMALLINT>(answer().size());
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLDescribeCol(SQLHSTMT, SQLUSMALLINT column, SQLCHAR* name, SQLSMALLINT size,
                                 SQLSMALLINT* length, SQLSMALLINT*, SQLULEN*, SQLSMALLINT*,
                                 SQLSMALLINT*) {
    return give("COLUMN_" + std::to_string(column), name, size, length);
}

SQLRETURN SQL_API SQLFetch(SQLHSTMT statement) {
    auto& cursor = *static_cast<Cursor*>(statement);
    if (cursor.fetched) return SQL_NO_DATA;
    cursor.fetched = true;
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetData(SQLHSTMT statement, SQLUSMALLINT column, SQLSMALLINT /*type*/,
                             SQLPOINTER place, SQLLEN size, SQLLEN* length) {
    const std::size_t index = column - 1U;
    if (index + 1 == answer().size()) {
        *length = SQL_NULL_DATA;
        return SQL_SUCCESS;
    }
    std::size_t& given = static_cast<Cursor*>(statement)->given[index];
    const std::string rest = answer()[index].substr(given);
    if (given > 0 && rest.empty()) return SQL_NO_DATA;
    const auto bytes = std::min(rest.size(), static_cast<std::size_t>(size) - 1);
    std::memcpy(place, rest.data(), bytes);
    static_cast<char*>(place)[bytes] = '\0';
    given += bytes;
    *length = SQL_NO_TOTAL;
    return bytes < rest.size() ? SQL_SUCCESS_WITH_INFO : SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetDiagRec(SQLSMALLINT, SQLHANDLE, SQLSMALLINT number, SQLCHAR* state,
                                SQLINTEGER* native, SQLCHAR* place, SQLSMALLINT size,
                                SQLSMALLINT* length) {
    if (number > 1) return SQL_NO_DATA;
    std::memcpy(state, "42S02", 6);
    *native = 942;
    return give(complaint, place, size, length);
}

// The driver manager asks for records only where it could ask for fields, too.
SQLRETURN SQL_API SQLGetDiagField(SQLSMALLINT, SQLHANDLE, SQLSMALLINT, SQLSMALLINT, SQLPOINTER,
                                  SQLSMALLINT, SQLSMALLINT*) {
    return SQL_NO_DATA;
}

}  // extern "C"
