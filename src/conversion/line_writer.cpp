#include "conversion/line_writer.h"

#include <algorithm>

#include "platform/fatal_failure.h"

namespace brooklander {

LineWriter::LineWriter(std::unique_ptr<OutputFile> file)
    : file_(std::move(file)),
      buffer_(std::make_unique_for_overwrite<char[]>(OutputFile::good_block + most_at_once +
                                                     BlockText::block)) {}

LineWriter::~LineWriter() {
    try {
        hand_on();
    } catch (const FatalFailure&) {
        used_ = 0;
    }
}

void LineWriter::put_long_line(std::initializer_list<std::string_view> pieces) {
    hand_on();
    for (const std::string_view piece : pieces) write(piece);
    whole_lines_ = written_;
}

// A block ends in the middle of the line that filled it, unless that line ends with it.
void LineWriter::write_full_block(std::size_t last_line_start) {
    const std::size_t rest = std::exchange(used_, 0) - OutputFile::good_block;
    write({buffer_.get(), OutputFile::good_block});
    whole_lines_ = rest == 0 ? written_ : written_ - OutputFile::good_block + last_line_start;
    std::memmove(buffer_.get(), buffer_.get() + OutputFile::good_block, rest);
    used_ = rest;
}

void LineWriter::hand_on() {
    const std::size_t held_back = std::exchange(used_, 0);
    if (held_back > 0) write({buffer_.get(), held_back});
    whole_lines_ = written_;
}

// What a failed write leaves is not tried again: part of it may be in the file already, and that is
// taken back to the last whole line, so that no line is ever half there or runs into another one.
void LineWriter::write(std::string_view bytes) {
    try {
        file_->write(bytes);
        written_ += bytes.size();
    } catch (const FatalFailure&) {
        used_ = 0;
        written_ = whole_lines_;
        file_->cut_back(whole_lines_);
        throw;
    }
}

}  // namespace brooklander
