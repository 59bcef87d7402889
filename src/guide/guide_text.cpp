#include "guide/guide_text.h"

#include <string_view>

#include "platform/fatal_failure.h"
#include "platform/files/host_files.h"
#include "scenario/scenario_error.h"
#include "shared/text_reading.h"

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
    FileText text;
    try {
        text = read_host_file(file, file.string());
    } catch (const FatalFailure& failure) {
        throw scenario::WrongLine(failure.what());
    }
    std::vector<Part> parts;
    int number = 0;
    for (LineReader reader(text.view()); !reader.at_end();) {
        const std::string_view line = reader.next();
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
