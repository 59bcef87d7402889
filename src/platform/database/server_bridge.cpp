#include "platform/database/server_bridge.h"

#include <array>

#include "platform/code_page.h"
#include "platform/database/statement_text.h"

namespace brooklander {
namespace {

// The automatic index gives wrong rows where blank-padded columns of different paddings are joined;
// SQLite 3.40.1 passes over rows then that the comparison itself would find equal.
constexpr std::array sqlite_session{
    "PRAGMA case_sensitive_like = 1",
    "PRAGMA automatic_index = 0",
    "PRAGMA query_only = 1",
};

// Drivers ignore the read-only attribute of ODBC, so it is the server that is told. Its own client
// encoding depends on the environment otherwise, and a backslash is a letter like any other.
constexpr std::array postgresql_session{
    "SET SESSION CHARACTERISTICS AS TRANSACTION READ ONLY",
    "SET client_encoding TO 'UTF8'",
    "SET standard_conforming_strings TO on",
    "SET search_path TO keldar1, \"$user\", public",
};

constexpr std::string_view outer_join_mark = "(+)";

bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

// A path as the URI of a file takes it. Quotes are escaped with the rest, so that the URI can
// stand in a statement.
std::string uri_path(std::string_view path) {
    constexpr std::string_view plain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789/-._~";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string uri;
    for (const char byte : path) {
        if (plain.find(byte) != std::string_view::npos) {
            uri += byte;
        } else {
            const auto number = static_cast<unsigned char>(byte);
            uri += {'%', digits[number >> 4U], digits[number & 0xFU]};
        }
    }
    return uri;
}

// SQLite has no schemas, but a second database in a session has a name. The file becomes its own
// second one. A database in memory has no file, and no names with the prefix.
void attach_as_schema(const Ask& ask) {
    constexpr std::size_t name = 1;
    constexpr std::size_t file = 2;
    for (const auto& database : ask("PRAGMA database_list").rows) {
        if (database.size() <= file || database[name] != "main" || database[file].empty()) continue;
        ask("ATTACH 'file:" + uri_path(database[file]) + "?mode=ro' AS KELDAR1");
    }
}

// Comments are as good as blanks.
std::size_t skip_blanks(std::string_view statement, std::size_t at) {
    const auto comment = [&] {
        const std::string_view mark = statement.substr(at, 2);
        return mark == "--" || mark == "/*";
    };
    while (at < statement.size() && (is_blank(statement[at]) || comment())) {
        at = end_of_piece(statement, at);
    }
    return at;
}

std::size_t end_of_parentheses(std::string_view statement, std::size_t at) {
    int depth = 0;
    while (at < statement.size()) {
        if (statement[at] == '(') ++depth;
        if (statement[at] == ')') --depth;
        at = end_of_piece(statement, at);
        if (depth == 0) break;
    }
    return at;
}

// Behind one operand: a text in quotes (two in a row are one, with a quote in it), a name or a
// call of a function, something in parentheses.
std::size_t end_of_operand(std::string_view statement, std::size_t at) {
    const auto starts_with = [&](char byte) {
        return at < statement.size() && statement[at] == byte;
    };
    if (starts_with('\'')) {
        while (starts_with('\'')) at = end_of_piece(statement, at);
        return at;
    }
    while (at < statement.size() &&
           (is_word(statement[at]) || statement[at] == '.' || statement[at] == '"')) {
        at = end_of_piece(statement, at);
    }
    if (starts_with('(')) at = end_of_parentheses(statement, at);
    return at;
}

// Behind a pattern: operands with `||` between them. Where none is understood, nothing is passed.
std::size_t end_of_pattern(std::string_view statement, std::size_t at) {
    constexpr std::string_view joined = "||";
    const std::size_t start = skip_blanks(statement, at);
    std::size_t end = end_of_operand(statement, start);
    if (end == start) return at;
    for (;;) {
        const std::size_t next = skip_blanks(statement, end);
        if (statement.substr(next, joined.size()) != joined) return end;
        end = end_of_operand(statement, skip_blanks(statement, next + joined.size()));
    }
}

std::string without_outer_join_marks(std::string_view statement) {
    std::string rest;
    for (std::size_t at = 0; at < statement.size();) {
        if (statement.substr(at, outer_join_mark.size()) == outer_join_mark) {
            at += outer_join_mark.size();
            continue;
        }
        const std::size_t end = end_of_piece(statement, at);
        rest += statement.substr(at, end - at);
        at = end;
    }
    return rest;
}

// PostgreSQL takes a backslash in a pattern for an escape character unless the statement names
// another one, or none.
std::string with_plain_patterns(std::string_view statement) {
    std::string whole;
    for (std::size_t at = 0; at < statement.size();) {
        std::size_t end = end_of_piece(statement, at);
        if (!word_at(statement, at, "LIKE")) {
            whole += statement.substr(at, end - at);
        } else {
            const std::size_t behind = at + std::string_view("LIKE").size();
            end = end_of_pattern(statement, behind);
            whole += statement.substr(at, end - at);
            const bool is_plain = !word_at(statement, skip_blanks(statement, end), "ESCAPE");
            if (end > behind && is_plain) whole += " ESCAPE ''";
        }
        at = end;
    }
    return whole;
}

}  // namespace

Server server_by_driver(std::string_view driver) {
    const std::string capitals = upper(driver.substr(driver.find_last_of("/\\") + 1));
    if (contains(capitals, "SQLITE")) return Server::sqlite;
    if (contains(capitals, "POSTGRES") || contains(capitals, "PSQLODBC")) return Server::postgresql;
    return Server::other;
}

Server server_by_name(std::string_view name) {
    if (name == "SQLite") return Server::sqlite;
    if (name == "PostgreSQL") return Server::postgresql;
    return Server::other;
}

std::string text_for(Server server, std::string_view text) {
    return server == Server::other ? std::string(text) : to_utf8(text);
}

void prepare_session(Server server, const Ask& ask) {
    if (server == Server::sqlite) {
        attach_as_schema(ask);
        for (const char* statement : sqlite_session) ask(statement);
    } else if (server == Server::postgresql) {
        for (const char* statement : postgresql_session) ask(statement);
    }
}

// The one statement that has the outer-join mark also asks for a value of the marked table, which
// leaves out every row that the outer join would add. Without the mark its rows are the same.
std::string bridged_statement(Server server, std::string_view statement) {
    switch (server) {
        case Server::sqlite: return without_outer_join_marks(statement);
        case Server::postgresql: return with_plain_patterns(without_outer_join_marks(statement));
        case Server::other: break;
    }
    return std::string(statement);
}

}  // namespace brooklander
