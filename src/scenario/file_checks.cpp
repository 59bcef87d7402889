#include "platform/code_page.h"
#include "platform/files/host_system.h"
#include "scenario/arguments.h"
#include "scenario/commands.h"
#include "scenario/scenario_error.h"
#include "scenario/stage.h"
#include "shared/text_reading.h"

namespace brooklander::scenario {
namespace {

namespace fs = std::filesystem;

using Check = std::function<void(const fs::path& file, const std::string& shown)>;

void want(bool holds, const std::string& shown, const std::string& what) {
    if (!holds) throw Unmet("\"" + shown + "\" " + what);
}

Check whole_text_check(std::function<void(std::string_view, const std::string&)> check) {
    return [check = std::move(check)](const fs::path& file, const std::string& shown) {
        const FileText text = text_of(file, shown);
        check(text.view(), shown);
    };
}

// The lines, none of which may end otherwise than by carriage return and line feed.
std::vector<std::string_view> lines_of(std::string_view text, const std::string& shown) {
    std::vector<std::string_view> lines;
    for (LineReader reader(text); !reader.at_end();) {
        lines.push_back(reader.next());
        const char* const end = lines.back().data() + lines.back().size();
        const std::string_view behind(end, static_cast<std::size_t>(text.end() - end));
        want(behind.starts_with("\r\n"), shown,
             "has a line " + std::to_string(lines.size()) +
                 " that carriage return and line feed do not end.");
    }
    return lines;
}

Check lines_check(const Arguments& arguments) {
    arguments.want(3);
    const int count = arguments.number(2, "count");
    return whole_text_check([count](std::string_view text, const std::string& shown) {
        const auto lines = lines_of(text, shown);
        want(lines.size() == static_cast<std::size_t>(count), shown,
             "has " + std::to_string(lines.size()) + " lines, expected " + std::to_string(count) +
                 ".");
    });
}

Check line_check(const Arguments& arguments) {
    arguments.want(4);
    const int number = arguments.number(2, "line");
    if (number == 0) throw WrongLine("Lines are counted from 1.");
    return whole_text_check(
        [number, expected = arguments.text(3)](std::string_view text, const std::string& shown) {
            LineReader reader(text);
            std::string_view line;
            for (int passed = 0; passed < number; ++passed) {
                want(!reader.at_end(), shown,
                     "has " + std::to_string(passed) + " lines, expected a line " +
                         std::to_string(number) + ".");
                line = reader.next();
            }
            want(line == expected, shown,
                 "line " + std::to_string(number) + ": expected " + in_quotes(expected) +
                     ", found " + in_quotes(line) + ".");
        });
}

// Where two texts first differ, for a message.
std::string difference(std::string_view found, std::string_view expected) {
    std::size_t at = 0;
    std::size_t line = 1;
    std::size_t line_start = 0;
    while (at < found.size() && at < expected.size() && found[at] == expected[at]) {
        if (found[at] == '\n') {
            ++line;
            line_start = at + 1;
        }
        ++at;
    }
    const auto line_at = [line_start](std::string_view text) {
        return in_quotes(text.substr(line_start, text.find('\n', line_start) - line_start));
    };
    return "differs in line " + std::to_string(line) + ": expected " + line_at(expected) +
           ", found " + line_at(found) + ".";
}

Check same_check(const Arguments& arguments) {
    arguments.want(3);
    return [other = host_file(arguments.text(2), arguments.folder())](const fs::path& file,
                                                                      const std::string& shown) {
        const FileText found = text_of(file, shown);
        const FileText expected = text_of(other, host_system::utf8_of(other));
        want(found.view() == expected.view(), shown, difference(found.view(), expected.view()));
    };
}

Check holds_check(const Arguments& arguments, bool wanted) {
    arguments.want(3);
    if (arguments.text(2).empty()) throw WrongLine("No bytes stand in every file.");
    return whole_text_check(
        [wanted, part = arguments.text(2)](std::string_view text, const std::string& shown) {
            const bool holds = text.find(part) != std::string_view::npos;
            want(holds == wanted, shown, (wanted ? "lacks " : "holds ") + in_quotes(part) + ".");
        });
}

Check presence_check(const Arguments& arguments, bool wanted) {
    arguments.want(2);
    return [wanted](const fs::path& file, const std::string& shown) {
        std::error_code ignored;
        want(fs::exists(file, ignored) == wanted, shown, wanted ? "is not there." : "is there.");
    };
}

Check empty_check(const Arguments& arguments) {
    arguments.want(2);
    return [](const fs::path& file, const std::string& shown) {
        std::error_code ignored;
        if (fs::is_directory(file, ignored)) {
            want(fs::is_empty(file, ignored), shown, "is a folder that is not empty.");
            return;
        }
        const std::size_t size = text_of(file, shown).size();
        want(size == 0, shown, "has " + std::to_string(size) + " bytes, expected none.");
    };
}

// How a check of a word is written.
std::string usage_of(const std::string& what) {
    std::string behind;
    if (what == "lines") behind = " N";
    if (what == "line") behind = " I TEXT";
    if (what == "same") behind = " HOST";
    if (what == "holds" || what == "lacks") behind = " TEXT";
    return "file PATH " + what + behind;
}

Check check_of(const Arguments& words) {
    if (words.count() < 2) words.fail();
    const std::string& what = words.text(1);
    const Arguments arguments = words.with_usage(usage_of(what));
    if (what == "exists") return presence_check(arguments, true);
    if (what == "missing") return presence_check(arguments, false);
    if (what == "empty") return empty_check(arguments);
    if (what == "lines") return lines_check(arguments);
    if (what == "line") return line_check(arguments);
    if (what == "same") return same_check(arguments);
    if (what == "holds") return holds_check(arguments, true);
    if (what == "lacks") return holds_check(arguments, false);
    throw WrongLine("Nothing can be said of a file by the word " + in_quotes(what) + ".");
}

}  // namespace

Step file_step(const Arguments& arguments) {
    const Check check = check_of(arguments);
    const bool wants_missing = arguments.text(1) == "missing";
    return {
        {}, Works::always, false, [path = arguments.text(0), check, wants_missing](Stage& stage) {
            fs::path file;
            try {
                file = stage.host_path(path);
            } catch (const Unmet&) {
                if (wants_missing) return;  // no file can have such a name
                throw;
            }
            check(file, to_utf8(path));
        }};
}

}  // namespace brooklander::scenario
