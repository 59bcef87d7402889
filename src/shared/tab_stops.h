// Lines laid out by tab stops, as a printed report is.
#pragma once

#include <string>
#include <string_view>

namespace brooklander {

// Builds lines whose values begin at stops. Nothing is ever cut: a value that has run past the next
// stop makes the stop end the line and go on below, so that one record can take two lines. Readers
// of such a file count on that.
class TabStopWriter {
  public:
    // Puts blanks until the next byte falls at position `stop`, counted from 1. When that position
    // has been passed already, the line is ended first; a position just reached needs no blank.
    void tab_to(std::size_t stop);

    // Writes the value as it stands.
    void put(std::string_view value);

    // Ends the line with carriage return and line feed.
    void end_line();

    // All that was written so far.
    const std::string& text() const { return text_; }

  private:
    std::string text_;
    std::size_t line_start_ = 0;
};

}  // namespace brooklander
