// Lines and comma items of any bytes: both readers end, and what they hand out lies in the text.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "shared/text_reading.h"

namespace {

void want(bool holds) {
    if (!holds) std::abort();
}

template <typename Reader>
void read_all(std::string_view text, char never) {
    std::size_t handed_out = 0;
    std::size_t pieces = 0;
    for (Reader reader(text); !reader.at_end(); ++pieces) {
        const std::string_view piece = reader.next();
        want(piece.empty() || (piece.data() >= text.data() && piece.end() <= text.end()));
        const bool was_quoted =
            !piece.empty() && piece.data() > text.data() && piece.data()[-1] == '"';
        want(was_quoted || piece.find(never) == std::string_view::npos);
        handed_out += piece.size();
    }
    want(handed_out <= text.size());
    want(pieces <= text.size() + 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    read_all<brooklander::LineReader>(text, '\r');
    read_all<brooklander::CommaItemReader>(text, ',');
    return 0;
}
