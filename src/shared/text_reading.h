// The two ways of reading a text file, by line and by comma item, and the fixed cut of a line.
//
// Both read from text that is already in memory and hand out views into it, which live as long as
// it does.
#pragma once

#include <string_view>

#include "shared/text.h"

namespace brooklander {

// Hands out the lines of a text. A line ends at a carriage return, or a carriage return and a line
// feed; a line feed alone is text. The last line needs no end; text that ends in one has no further
// empty line behind it.
class LineReader {
  public:
    explicit LineReader(std::string_view text) : rest_(text) {}

    bool at_end() const { return rest_.empty(); }

    // The next line without its end. At the end of the text, an empty one.
    std::string_view next();

  private:
    std::string_view rest_;
};

// Hands out the items of a text whose items stand between commas and line ends. Leading blanks are
// skipped. A double quote in first place opens an item that runs to the next double quote; what
// stands between that and the next comma or line end is passed over. An empty line, and a comma at
// a line's end, give an empty item.
class CommaItemReader {
  public:
    explicit CommaItemReader(std::string_view text) : rest_(text) {}

    bool at_end() const { return rest_.empty() && !item_owed_; }

    // The next item, without quotes, its trailing blanks kept. At the end of the text, an empty
    // one.
    std::string_view next();

  private:
    void pass_delimiter();

    std::string_view rest_;
    bool item_owed_ = false;  // a comma ended the text, so that an empty item stands behind it
};

// A field of a fixed-column line: where it starts, counted from 1, and how many bytes are taken.
struct Cut {
    std::size_t start;
    std::size_t length;

    // The bytes of the cut as they stand; fewer where the line is shorter.
    constexpr std::string_view of(std::string_view line) const {
        return middle(line, start, length);
    }
};

}  // namespace brooklander
