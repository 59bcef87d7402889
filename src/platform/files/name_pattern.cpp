#include "platform/files/name_pattern.h"

#include <string>

#include "platform/code_page.h"

namespace brooklander {
namespace {

bool matches(std::string_view name, std::string_view pattern) {
    std::size_t at = 0;
    std::size_t in_pattern = 0;
    std::size_t star = std::string_view::npos;
    std::size_t resume = 0;
    while (at < name.size()) {
        if (in_pattern < pattern.size() && pattern[in_pattern] == '*') {
            star = in_pattern++;
            resume = at;
        } else if (in_pattern < pattern.size() &&
                   (pattern[in_pattern] == '?' || pattern[in_pattern] == name[at])) {
            ++in_pattern;
            ++at;
        } else if (star != std::string_view::npos) {
            in_pattern = star + 1;
            at = ++resume;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', in_pattern) == std::string_view::npos;
}

}  // namespace

bool name_matches(std::string_view name, std::string_view pattern) {
    return pattern == "*.*" || matches(upper(name), upper(pattern));
}

}  // namespace brooklander
