#include "guide/guide_text.h"

#include <string_view>

#include "scenario/script.h"

namespace brooklander::guide {
namespace {

constexpr std::string_view prose_mark = "#|";

std::string prose_of(std::string_view line) {
    line.remove_prefix(prose_mark.size());
    if (line.starts_with(' ')) line.remove_prefix(1);
    return std::string(line);
}

}  // namespace

std::vector<Part> parts_of(const std::filesystem::path& file) {
    const FileText text = scenario::script_file(file);
    std::vector<Part> parts;
    int number = 0;
    for (const std::string_view line : scenario::script_lines(text.view())) {
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
