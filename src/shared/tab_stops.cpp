#include "shared/tab_stops.h"

namespace brooklander {

void TabStopWriter::tab_to(std::size_t stop) {
    const std::size_t next_position = text_.size() - line_start_ + 1;
    if (next_position > stop) end_line();
    text_.resize(line_start_ + stop - 1, ' ');
}

void TabStopWriter::put(std::string_view value) { text_ += value; }

void TabStopWriter::end_line() {
    text_ += "\r\n";
    line_start_ = text_.size();
}

}  // namespace brooklander
