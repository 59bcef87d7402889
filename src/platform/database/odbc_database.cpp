#include "platform/database/odbc_database.h"

#include "platform/code_page.h"
#include "platform/database/connect_string.h"
#include "platform/database/odbc_session.h"
#include "platform/database/statement_text.h"
#include "platform/fatal_failure.h"

namespace brooklander {
namespace {

void take_into_code_page(std::vector<std::string>& texts) {
    for (std::string& text : texts) text = from_utf8_or_bytes(text);
}

}  // namespace

void OdbcDatabase::try_connect(std::string_view connect_string) {
    const OdbcSession session(logon_of(connect_string));
}

QueryResult OdbcDatabase::run(const Query& query) {
    if (!is_query(query.statement)) {
        throw FatalFailure("The statement \"" + to_utf8(query.statement) +
                           "\" is not sent: the database is open for queries alone.");
    }
    OdbcSession session(logon_of(query));
    QueryResult result = session.ask(bridged_statement(session.server(), query.statement));
    take_into_code_page(result.columns);
    for (auto& row : result.rows) take_into_code_page(row);
    return result;
}

}  // namespace brooklander
