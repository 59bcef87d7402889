// Looking at the text of an SQL statement without understanding it.
#pragma once

#include <string_view>

namespace brooklander {

// Blanks as a statement has them: spaces, tabs, line ends.
bool is_blank(char byte);

// What a word or a name is made of. Letters outside ASCII belong to words.
bool is_word(char byte);

// Where the piece that begins at `at` ends: behind a text in quotes or a comment that begins there
// (at the statement's end when nothing ends it), behind the single byte otherwise. `at` is counted
// from 0, lies inside the statement and outside quotes and comments. A doubled quote ends one piece
// and begins the next.
std::size_t end_of_piece(std::string_view statement, std::size_t at);

// Whether a whole word begins at `at`; capitals do not matter.
bool word_at(std::string_view statement, std::size_t at, std::string_view word);

// Whether the statement asks for rows and does nothing else: it begins with SELECT or WITH, and
// outside quotes and comments stands nothing that could do more: no semicolon, behind which another
// statement could follow, and neither INTO nor UPDATE, which keep or lock what is read. Quotes of
// other kinds than the two of the standard (`E'`, `q'`, `$$`) are refused, since servers see them
// end elsewhere.
bool is_query(std::string_view statement);

}  // namespace brooklander
