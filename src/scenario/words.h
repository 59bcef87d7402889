// The words of a scenario's line.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace brooklander::scenario {

// The values of ${NAME}, in the code page.
using Variables = std::map<std::string, std::string, std::less<>>;

// Cuts a line (UTF-8, without its end) into words, in the code page. Blanks and tabs part words; a
// word in double quotes may hold them, and knows \" \\ \$ \t \r \n and \xHH. Variables are put in
// anywhere. A line without words, or whose first character is `#`, gives none. Throws WrongLine.
std::vector<std::string> words_of(std::string_view line, const Variables& variables);

// A text as a quoted word for a message, in UTF-8; characters that do not show are escaped.
std::string in_quotes(std::string_view text);

// A whole number from 0 on; WrongLine, with what it is the number of, when it is none.
int number_in(std::string_view word, std::string_view of_what);

}  // namespace brooklander::scenario
