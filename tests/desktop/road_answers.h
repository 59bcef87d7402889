// What the database holds for the roads to the states of the windows.
#pragma once

#include <string>
#include <vector>

#include "platform/database.h"

namespace brooklander::test {

struct AnswerTable {
    const char* mark;  // stands in the statements for it, and in none before them in the list
    QueryResult answer;
};

// Two organizations. The first has lists with names of all lengths, the second has none of them.
inline AnswerTable two_organizations() {
    return {"From tsmorgan",
            {{"ORG_ID", "NAME"},
             {{"MERES   ", "Meres and Tarns Conservancy"},
              {"NORTHFEN", "North Fen Bureau of Rivers, Reservoirs and Drinking Water Wells"}}}};
}

// The answer of the table that a statement asks for: without rows where the statement names the
// second organization, and without anything where it asks for no table.
inline QueryResult answer_from(const std::vector<AnswerTable>& tables, const Query& query) {
    const bool of_the_second = query.statement.find("'NORTHFEN") != std::string::npos;
    for (const AnswerTable& table : tables) {
        if (query.statement.find(table.mark) == std::string::npos) continue;
        QueryResult answer = table.answer;
        if (of_the_second) answer.rows.clear();
        return answer;
    }
    return {{"COLUMN"}, {}};
}

}  // namespace brooklander::test
