#include "shared/text_reading.h"

namespace brooklander {
namespace {

constexpr char carriage_return = '\r';
constexpr char line_feed = '\n';

void pass_line_end(std::string_view& rest) {
    if (rest.empty()) return;
    rest.remove_prefix(1);
    if (!rest.empty() && rest.front() == line_feed) rest.remove_prefix(1);
}

std::string_view take(std::string_view& rest, std::size_t length) {
    const std::string_view taken = rest.substr(0, length);
    rest.remove_prefix(taken.size());
    return taken;
}

}  // namespace

std::string_view LineReader::next() {
    const std::string_view line = take(rest_, rest_.find(carriage_return));
    pass_line_end(rest_);
    return line;
}

std::string_view CommaItemReader::next() {
    item_owed_ = false;
    rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size()));
    if (rest_.empty() || rest_.front() != '"') {
        const std::string_view item = take(rest_, rest_.find_first_of(",\r"));
        pass_delimiter();
        return item;
    }
    rest_.remove_prefix(1);
    const std::string_view item = take(rest_, rest_.find('"'));
    take(rest_, rest_.find_first_of(",\r"));
    pass_delimiter();
    return item;
}

void CommaItemReader::pass_delimiter() {
    if (rest_.empty()) return;
    if (rest_.front() == carriage_return) {
        pass_line_end(rest_);
        return;
    }
    rest_.remove_prefix(1);
    item_owed_ = rest_.empty();
}

}  // namespace brooklander
