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
        write_held_back();
    } catch (const FatalFailure&) {
        used_ = 0;
    }
}

void LineWriter::put_long_line(std::initializer_list<std::string_view> pieces) {
    write_held_back();
    for (const std::string_view piece : pieces) file_->write(piece);
}

// What a failed write leaves is not tried again: part of it may be in the file already.
void LineWriter::write_full_blocks() {
    const std::size_t full = used_ - used_ % OutputFile::good_block;
    const std::size_t rest = std::exchange(used_, 0) - full;
    file_->write({buffer_.get(), full});
    std::memmove(buffer_.get(), buffer_.get() + full, rest);
    used_ = rest;
}

void LineWriter::write_held_back() {
    const std::size_t held_back = std::exchange(used_, 0);
    if (held_back > 0) file_->write({buffer_.get(), held_back});
}

void LineWriter::finish() {
    write_held_back();
    file_->close();
}

}  // namespace brooklander
