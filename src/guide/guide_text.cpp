#include "guide/guide_text.h"

#include <algorithm>
#include <string_view>

#include "platform/fatal_failure.h"
#include "platform/files/host_files.h"
#include "scenario/scenario_error.h"

namespace brooklander::guide {
namespace {

constexpr std::string_view prose_mark = "#|";

std::string prose_of(std::string_view line) {
    line.remove_prefix(prose_mark.size());
    if (line.starts_with(' ')) line.remove_prefix(1);
    return std::string(line);
}

// Chapters are the developers' own files: a line feed ends a line, whatever stands before it.
std::string_view take_line(std::string_view& rest) {
    std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

}  // namespace

std::vector<Part> parts_of(const std::filesystem::path& file) {
    FileText text;
    try {
        text = read_host_file(file, file.string());
    } catch (const FatalFailure& failure) {
        throw scenario::WrongLine(failure.what());
    }
    std::vector<Part> parts;
    int number = 0;
    for (std::string_view rest = text.view(); !rest.empty();) {
        const std::string_view line = take_line(rest);
        const bool is_prose = line.starts_with(prose_mark);
        ++number;
        if (line.empty()) {
            if (!parts.empty()) parts.back().lines.emplace_back();
            continue;
        }
        if (parts.empty() || parts.back().is_prose != is_prose) {
            parts.push_back({is_prose, number, {}});
        }
        parts.back().lines.push_back(is_prose ? prose_of(line) : std::string(line));
    }
    return parts;
}

}  // namespace brooklander::guide
