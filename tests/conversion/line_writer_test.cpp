#include "conversion/line_writer.h"

#include <gtest/gtest.h>

#include <random>

#include "support/test_program.h"

namespace brooklander {
namespace {

// A text that is readable as a block, as a grid's cells are.
class Readable {
  public:
    explicit Readable(std::string text) : size_(text.size()), bytes_(std::move(text)) {
        bytes_.resize(size_ + short_text);
    }
    std::string_view view() const { return {bytes_.data(), size_}; }

  private:
    std::size_t size_;
    std::string bytes_;
};

TEST(LineWriter, PutsPiecesOfAnyLengthOneBehindTheOther) {
    test::TemporaryFolder folder;
    HostFiles files(folder.path());
    std::mt19937 random(3);
    const auto text = [&random](std::size_t most) {
        std::string made(random() % (most + 1), ' ');
        for (char& byte : made) byte = static_cast<char>('!' + random() % 90);
        return made;
    };
    std::string expected;
    {
        LineWriter writer(files.create("c:\\out"));
        for (int line = 0; line < 40000; ++line) {
            const std::size_t most = line % 5000 == 0 ? 200'000 : 90;
            const BlockText row(text(most));
            const BlockText before(text(60));
            const Readable result(text(line % 7 == 0 ? 300 : 20) + "r");
            const BlockText behind(text(40) + "\r\n");
            writer.put_line(row, before, result.view(), behind);
            for (const std::string_view piece :
                 {row.view(), before.view(), result.view(), behind.view()}) {
                expected += piece;
            }
        }
        writer.hand_on();
        writer.close();
    }
    EXPECT_GT(expected.size(), 4 * OutputFile::good_block);
    EXPECT_TRUE(folder.read("out") == expected);
}

TEST(LineWriter, LinesReachTheFileWhenItIsGivenUp) {
    test::TemporaryFolder folder;
    HostFiles files(folder.path());
    {
        LineWriter writer(files.create("c:\\out"));
        writer.put_line(BlockText("row~"), BlockText("name~"), Readable("7").view(),
                        BlockText("~\r\n"));
    }
    EXPECT_EQ(folder.read("out"), "row~name~7~\r\n");
}

TEST(LineWriter, GivingItUpOnAFullDiskTellsNobody) {
    test::TemporaryFolder folder;
    test::FaultyFiles files(folder.path());
    files.failing_writes = {1};
    {
        LineWriter writer(files.append("c:\\out"));
        writer.put_line(BlockText("row~"), BlockText("name~"), Readable("7").view(),
                        BlockText("~\r\n"));
    }
    EXPECT_EQ(files.writes, 1);
    EXPECT_EQ(folder.read("out"), "");
}

}  // namespace
}  // namespace brooklander
