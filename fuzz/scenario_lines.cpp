// Lines of a scenario of any bytes: each is a remark, a command or a wrong line with a reason.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "scenario/commands.h"
#include "scenario/scenario_error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brooklander::scenario;
    std::string_view text(reinterpret_cast<const char*>(data), size);
    const Variables variables{{"N", "a value"}};
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(line.size() < text.size() ? line.size() + 1 : line.size());
        try {
            const auto words = words_of(line, variables);
            if (!words.empty()) step_of(words, ".");
        } catch (const WrongLine& wrong) {
            if (std::string_view(wrong.what()).empty()) std::abort();
        }
    }
    return 0;
}
