#include "platform/database/open_database.h"

#include "platform/fatal_failure.h"

namespace brooklander {

void OpenDatabase::try_connect(std::string_view /*connect_string*/) {}

QueryResult OpenDatabase::run(const Query& query) {
    throw FatalFailure("There is no database to answer the statement \"" + query.statement +
                       "\": this machine has no data source.");
}

}  // namespace brooklander
