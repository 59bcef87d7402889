#include "scenario/words.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "platform/code_page.h"
#include "scenario/scenario_error.h"

namespace brooklander::scenario {
namespace {

bool is_blank(char byte) { return byte == ' ' || byte == '\t'; }

std::string in_code_page(std::string_view utf8) {
    auto text = from_utf8(utf8);
    if (!text) {
        throw WrongLine("\"" + std::string(utf8) +
                        "\" is not UTF-8, or holds a character that the code page lacks.");
    }
    return *std::move(text);
}

class LineCutter {
  public:
    LineCutter(std::string_view line, const Variables& variables)
        : rest_(line), variables_(variables) {}

    std::vector<std::string> cut() {
        std::vector<std::string> words;
        pass_blanks();
        if (at('#')) return words;
        while (!rest_.empty()) {
            words.push_back(at('"') ? quoted_word() : bare_word());
            pass_blanks();
        }
        return words;
    }

  private:
    bool at(char byte) const { return !rest_.empty() && rest_.front() == byte; }

    char take() {
        const char byte = rest_.front();
        rest_.remove_prefix(1);
        return byte;
    }

    void pass_blanks() {
        while (!rest_.empty() && is_blank(rest_.front())) rest_.remove_prefix(1);
    }

    std::string bare_word() {
        std::string word;
        std::string plain;
        while (!rest_.empty() && !is_blank(rest_.front())) {
            if (at('"')) throw WrongLine("A quote stands inside a word; quote the whole word.");
            if (rest_.starts_with("${")) {
                word += in_code_page(plain) + variable();
                plain.clear();
            } else {
                plain += take();
            }
        }
        return word + in_code_page(plain);
    }

    std::string quoted_word() {
        std::string word;
        std::string plain;
        const auto add = [&](const std::string& text) {
            word += in_code_page(plain) + text;
            plain.clear();
        };
        take();
        while (!at('"')) {
            if (rest_.empty()) throw WrongLine("The closing quote is missing.");
            if (at('\\')) {
                add(std::string(1, escaped()));
            } else if (rest_.starts_with("${")) {
                add(variable());
            } else {
                plain += take();
            }
        }
        take();
        if (!rest_.empty() && !is_blank(rest_.front())) {
            throw WrongLine("A closing quote must be followed by a blank.");
        }
        return word + in_code_page(plain);
    }

    char escaped() {
        take();
        if (rest_.empty()) throw WrongLine("The closing quote is missing.");
        switch (const char letter = take()) {
            case '"':
            case '\\':
            case '$': return letter;
            case 't': return '\t';
            case 'r': return '\r';
            case 'n': return '\n';
            case 'x': return byte_in_hex();
            default:
                throw WrongLine(std::string("\\") + letter +
                                R"( stands for nothing; known are \" \\ \$ \t \r \n and \xHH.)");
        }
    }

    char byte_in_hex() {
        const std::string_view digits = rest_.substr(0, 2);
        unsigned value = 0;
        const char* const end = digits.data() + digits.size();
        const auto [stop, fault] = std::from_chars(digits.data(), end, value, 16);
        if (digits.size() < 2 || stop != end || fault != std::errc{}) {
            throw WrongLine("\\x wants two hexadecimal digits.");
        }
        rest_.remove_prefix(2);
        return static_cast<char>(value);
    }

    std::string variable() {
        const std::size_t end = rest_.find('}');
        if (end == std::string_view::npos) throw WrongLine("The } of a ${...} is missing.");
        const std::string_view name = rest_.substr(2, end - 2);
        const auto found = variables_.find(name);
        if (found == variables_.end()) {
            throw WrongLine("${" + std::string(name) + "} has no value; give it one with --with.");
        }
        rest_.remove_prefix(end + 1);
        return found->second;
    }

    std::string_view rest_;
    const Variables& variables_;
};

}  // namespace

std::vector<std::string> words_of(std::string_view line, const Variables& variables) {
    return LineCutter(line, variables).cut();
}

std::string in_quotes(std::string_view text) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    std::string shown = "\"";
    for (const char byte : text) {
        const auto number = static_cast<unsigned char>(byte);
        if (byte == '"' || byte == '\\') {
            shown += {'\\', byte};
        } else if (byte == '\t') {
            shown += "\\t";
        } else if (byte == '\r') {
            shown += "\\r";
        } else if (byte == '\n') {
            shown += "\\n";
        } else if (number < ' ' || number == 0x7F) {
            shown += {'\\', 'x', hex[number / 16], hex[number % 16]};
        } else {
            shown += to_utf8(std::string_view(&byte, 1));
        }
    }
    return shown + '"';
}

int number_in(std::string_view word, std::string_view of_what) {
    int number = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, fault] = std::from_chars(word.data(), end, number);
    if (word.empty() || stop != end || fault != std::errc{} || number < 0) {
        throw WrongLine(in_quotes(word) + " is no " + std::string(of_what) + ".");
    }
    return number;
}

}  // namespace brooklander::scenario
