#include "platform/database/statement_text.h"

#include <algorithm>

#include "platform/code_page.h"

namespace brooklander {

bool is_blank(char byte) {
    return std::string_view(" \t\r\n\f\v").find(byte) != std::string_view::npos;
}

bool is_word(char byte) {
    const auto number = static_cast<unsigned char>(byte);
    return (number >= '0' && number <= '9') || (number >= 'A' && number <= 'Z') ||
           (number >= 'a' && number <= 'z') || number == '_' || number == '$' || number == '#' ||
           number >= 0x80;
}

std::size_t end_of_piece(std::string_view statement, std::size_t at) {
    const auto behind = [statement](std::string_view mark, std::size_t from) {
        const std::size_t found = statement.find(mark, from);
        return found == std::string_view::npos ? statement.size() : found + mark.size();
    };
    const char byte = statement[at];
    if (byte == '\'') return behind("'", at + 1);
    if (byte == '"') return behind("\"", at + 1);
    if (statement.substr(at, 2) == "--") return behind("\n", at);
    if (statement.substr(at, 2) == "/*") return behind("*/", at + 2);
    return at + 1;
}

bool word_at(std::string_view statement, std::size_t at, std::string_view word) {
    if (at > 0 && at < statement.size() && is_word(statement[at - 1])) return false;
    if (at >= statement.size()) return false;
    const std::size_t end = at + word.size();
    return same_but_for_case(statement.substr(at, word.size()), word) &&
           (end == statement.size() || !is_word(statement[end]));
}

namespace {

// A dollar that no name has before it, and a quote with a letter or two as its prefix.
bool begins_another_quote(std::string_view statement, std::size_t at) {
    const auto is_apart = [statement](std::size_t place) {
        return place == 0 || !is_word(statement[place - 1]);
    };
    if (statement[at] == '$') return is_apart(at);
    for (const std::string_view prefix : {"E'", "B'", "X'", "N'", "Q'", "NQ'", "U&'", "U&\""}) {
        if (is_apart(at) && same_but_for_case(statement.substr(at, prefix.size()), prefix)) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool is_query(std::string_view statement) {
    const auto* const start = std::find_if_not(statement.begin(), statement.end(), is_blank);
    const auto at = static_cast<std::size_t>(start - statement.begin());
    if (!word_at(statement, at, "SELECT") && !word_at(statement, at, "WITH")) return false;
    for (std::size_t next = at; next < statement.size(); next = end_of_piece(statement, next)) {
        if (statement[next] == ';' || begins_another_quote(statement, next) ||
            word_at(statement, next, "INTO") || word_at(statement, next, "UPDATE")) {
            return false;
        }
    }
    return true;
}

}  // namespace brooklander
