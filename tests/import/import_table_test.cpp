#include "import/import_table.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace brooklander {
namespace {

using test::TestProgram;

TEST(ImportTable, AFileThatIsGoneIsAFailureThatNamesIt) {
    TestProgram program;
    program.view("a\r\n");
    program.start_screen().lblSelectedFile.set_text("gone.txt");
    program.start_screen().show();
    program.start_screen().cmdView.enable();
    try {
        program.start_screen().cmdView.press();
        FAIL() << "the file is gone";
    } catch (const FatalFailure& failure) {
        EXPECT_EQ(std::string(failure.what()),
                  "\"c:\\data\\gone.txt\" cannot be opened: No such file or directory.");
    }
}

TEST(ImportTable, TheTableOutlivesItsFile) {
    TestProgram program;
    program.view("a\tb\r\nc\td\r\n");
    std::filesystem::remove_all(program.folder.path() / "data");
    EXPECT_EQ(program.table().cell(1, 1), "d");
}

TEST(ImportTable, TheFileMayBeTheOutputFile) {
    TestProgram program;
    program.folder.write("brooklander/voxoutfiles/again.txt", "S\tD\tA\r\nS1\tD1\t7\r\n");
    program.view("x\r\n");
    program.import_screen().cmdNo.press();
    TestProgram::select(program.start_screen().Dir1, "c:\\");
    TestProgram::select(program.start_screen().Dir1, "brooklander");
    TestProgram::select(program.start_screen().Dir1, "voxoutfiles");
    TestProgram::select(program.start_screen().lstImportFileBox, "again.txt");
    program.start_screen().cmdView.press();
    program.go_to_columns();
    EXPECT_EQ(program.folder.read("brooklander/voxoutfiles/again.txt"), "");
    program.assign_station_date_and_results();
    program.convert(1);
    EXPECT_EQ(program.folder.read("brooklander/voxoutfiles/again.txt"),
              "~S1~~D1~~~-1~~~~~~~~~~~~~A~~~~~~~~~~7~~~\r\n");
}

TEST(ImportTable, EveryByteValueArrivesInItsCell) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\t' && byte != '\r') bytes += static_cast<char>(byte);
    }
    TestProgram program;
    program.view(bytes + "\t" + bytes + "\r\n");
    EXPECT_EQ(program.table().rows(), 1);
    EXPECT_EQ(program.table().cell(0, 0), bytes);
    EXPECT_EQ(program.table().cell(0, 1), bytes);
}

TEST(ImportTable, TenMegabytesInOneLineAreOneCell) {
    TestProgram program;
    program.view(std::string(10'000'000, 'x'));
    EXPECT_EQ(program.table().rows(), 1);
    EXPECT_EQ(program.table().cell(0, 0).size(), 10'000'000U);
    EXPECT_EQ(program.table().cell(0, 1), "");
}

}  // namespace
}  // namespace brooklander
