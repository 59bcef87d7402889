// A line of the characteristic defaults file of any bytes: every cut is a part of the line, no
// longer than it says and without blanks at its ends; what a writer puts at a stop comes back as
// far as the cut reaches.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "characteristics/defaults_layout.h"
#include "shared/tab_stops.h"

namespace {

using brooklander::defaults_fields;

void want(bool holds) {
    if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    for (std::size_t field = 0; field < defaults_fields.size(); ++field) {
        const std::string_view value = brooklander::conversion_value(line, field);
        want(value.size() <= defaults_fields[field].for_conversion.length);
        want(value.empty() || (value.data() >= line.data() && value.end() <= line.end()));
        want(value.empty() || (value.front() != ' ' && value.back() != ' '));

        const auto [start, length] = defaults_fields[field].for_conversion;
        const std::size_t stop = defaults_fields[field].stop;
        brooklander::TabStopWriter writer;
        writer.tab_to(stop);
        writer.put(value);
        want(brooklander::conversion_value(writer.text(), field) ==
             brooklander::trim(value.substr(0, start + length - stop)));
    }
    return 0;
}
