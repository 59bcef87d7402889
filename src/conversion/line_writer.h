// Writes the lines of a load file, piece by piece, in blocks that suit the file.
#pragma once

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/files.h"
#include "shared/text_grid.h"

namespace brooklander {

// Texts up to this long are copied as one block; where a function says so, as many bytes must be
// readable from the text's start on. Cells of a grid are readable that far.
inline constexpr std::size_t short_text = TextGrid::slack;

// Copies a text that is readable as a block; `to` must have room for a block.
inline char* copy_readable(char* to, std::string_view text) {
    if (text.size() <= short_text) {
        std::memcpy(to, text.data(), short_text);
    } else {
        std::memcpy(to, text.data(), text.size());
    }
    return to + text.size();
}

// Text behind which a whole block may be read, so that it can be copied in blocks.
class BlockText {
  public:
    static constexpr std::size_t block = 32;

    BlockText() = default;
    explicit BlockText(std::string_view text) { assign(text); }

    void assign(std::string_view text) {
        size_ = 0;
        make_room(text.size());
        std::copy(text.begin(), text.end(), bytes_.data());
        size_ = text.size();
    }

    void clear() { size_ = 0; }

    // The text must be readable as a block, or empty.
    void append_readable(std::string_view text) {
        if (text.empty()) return;
        make_room(text.size());
        copy_readable(bytes_.data() + size_, text);
        size_ += text.size();
    }

    const char* data() const { return bytes_.data(); }
    std::size_t size() const { return size_; }
    std::string_view view() const { return {bytes_.data(), size_}; }

  private:
    void make_room(std::size_t more) {
        if (bytes_.size() < size_ + more + block) bytes_.resize(2 * (size_ + more) + block);
    }

    std::vector<char> bytes_ = std::vector<char>(block);
    std::size_t size_ = 0;
};

class LineWriter {
  public:
    explicit LineWriter(std::unique_ptr<OutputFile> file);
    LineWriter(const LineWriter&) = delete;
    LineWriter& operator=(const LineWriter&) = delete;

    // Hands on what is held back. That this fails is told to nobody: the writer is only given up
    // like this when another failure is on its way.
    ~LineWriter();

    // Writes a line of four pieces. The result must be readable as a block. A FatalFailure when the
    // file cannot be written; the file then ends with a whole line, and what was held back is gone.
    void put_line(const BlockText& row, const BlockText& before, std::string_view result,
                  const BlockText& behind) {
        const std::size_t length = row.size() + before.size() + result.size() + behind.size();
        if (length > most_at_once) {
            put_long_line({row.view(), before.view(), result, behind.view()});
            return;
        }
        const std::size_t line_start = used_;
        char* at = buffer_.get() + line_start;
        at = copy_blocks(at, row.data(), row.size());
        at = copy_blocks(at, before.data(), before.size());
        at = copy_readable(at, result);
        copy_blocks(at, behind.data(), behind.size());
        used_ += length;
        if (used_ >= OutputFile::good_block) write_full_block(line_start);
    }

    // Hands what is held back on to the file. Fails as put_line() does.
    void hand_on();

    // Closes the file, when all has been handed on. A FatalFailure when that fails.
    void close() { file_->close(); }

  private:
    static constexpr std::size_t most_at_once = 64 * 1024;

    // Copies whole blocks: up to a block more than asked for.
    static char* copy_blocks(char* to, const char* from, std::size_t size) {
        std::memcpy(to, from, BlockText::block);
        for (std::size_t done = BlockText::block; done < size; done += BlockText::block) {
            std::memcpy(to + done, from + done, BlockText::block);
        }
        return to + size;
    }

    void put_long_line(std::initializer_list<std::string_view> pieces);
    void write_full_block(std::size_t last_line_start);
    void write(std::string_view bytes);

    std::unique_ptr<OutputFile> file_;
    std::unique_ptr<char[]> buffer_;
    std::size_t used_ = 0;
    std::uint64_t written_ = 0;
    std::uint64_t whole_lines_ = 0;  // how much of what was written are whole lines
};

}  // namespace brooklander
