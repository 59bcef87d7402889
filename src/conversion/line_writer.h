// Writes the lines of a load file, piece by piece, in blocks that suit the file.
#pragma once

#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/files.h"

namespace brooklander {

// Text behind which a whole block may be read, so that it can be copied in blocks.
class BlockText {
  public:
    static constexpr std::size_t block = FileText::slack;

    BlockText() = default;
    explicit BlockText(std::string text) { assign(std::move(text)); }

    void assign(std::string text) {
        size_ = text.size();
        bytes_ = std::move(text);
        bytes_.resize(size_ + block);
    }

    const char* data() const { return bytes_.data(); }
    std::size_t size() const { return size_; }
    std::string_view view() const { return {bytes_.data(), size_}; }

  private:
    std::string bytes_;
    std::size_t size_ = 0;
};

class LineWriter {
  public:
    // Results up to this long are copied as one block; behind every one of them so many bytes may
    // be read.
    static constexpr std::size_t short_result = 16;

    explicit LineWriter(std::unique_ptr<OutputFile> file);
    LineWriter(const LineWriter&) = delete;
    LineWriter& operator=(const LineWriter&) = delete;

    // Hands on what is held back, as far as that goes; a failure has been told before.
    ~LineWriter();

    // Writes a line of four pieces. The result must have short_result readable bytes behind it.
    void put_line(const BlockText& row, const BlockText& before, std::string_view result,
                  const BlockText& behind) {
        const std::size_t length = row.size() + before.size() + result.size() + behind.size();
        if (length > most_at_once) {
            put_long_line({row.view(), before.view(), result, behind.view()});
            return;
        }
        char* at = buffer_.get() + used_;
        at = copy_blocks(at, row.data(), row.size());
        at = copy_blocks(at, before.data(), before.size());
        if (result.size() <= short_result) {
            std::memcpy(at, result.data(), short_result);
            at += result.size();
        } else {
            std::memcpy(at, result.data(), result.size());
            at += result.size();
        }
        copy_blocks(at, behind.data(), behind.size());
        used_ += length;
        if (used_ >= OutputFile::good_block) write_full_blocks();
    }

    // Hands everything on and closes the file. A FatalFailure when that fails.
    void finish();

  private:
    static constexpr std::size_t most_at_once = 64 * 1024;

    // Copies whole blocks, up to one byte short of a block more than asked for.
    static char* copy_blocks(char* to, const char* from, std::size_t size) {
        std::memcpy(to, from, BlockText::block);
        for (std::size_t done = BlockText::block; done < size; done += BlockText::block) {
            std::memcpy(to + done, from + done, BlockText::block);
        }
        return to + size;
    }

    void put_long_line(std::initializer_list<std::string_view> pieces);
    void write_full_blocks();
    void write_held_back();

    std::unique_ptr<OutputFile> file_;
    std::unique_ptr<char[]> buffer_;
    std::size_t used_ = 0;
};

}  // namespace brooklander
