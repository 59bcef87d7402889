#include "scenario/script.h"

#include <gtest/gtest.h>

#include "scenario/scenario_error.h"
#include "support/temporary_folder.h"

namespace brooklander::scenario {
namespace {

// The sentence that a script's reading ends in, or how many steps it has.
std::string reading_of(std::string_view text) {
    try {
        return std::to_string(read_script_text(text, "here.scn", {}).size()) + " steps";
    } catch (const WrongLine& wrong) {
        return wrong.what();
    }
}

TEST(Script, EveryCommandOfTheLanguageIsRead) {
    EXPECT_EQ(reading_of("\xEF\xBB\xBF# all of them\r\n"
                         "copy a c:\\a\n"
                         "write c:\\a \"x\"\nremove c:\\a\nmake c:\\a\nstart\n"
                         "click frmStart.cmdView\ntype frmStart.txtOracleID x\n"
                         "select frmStart.Dir1 data\n"
                         "cell frmImportFileDisplay.MSFlexKeldarIN 0 1\n"
                         "keys frmStart.txtOracleID {Enter}\n"
                         "refused click frmStart.cmdView\nforce click frmStart.cmdView\n"
                         "open frmLogger\nset frmStart.lblSelectedFile x\n"
                         "add frmImportFileDisplay.lstRows x\n"
                         "setcell frmImportFileDisplay.MSFlexKeldarIN 0 0 x\n"
                         "fatal\nended\nprint frmStart\nprint frmStart.cmdView\nshot picture\n"),
              "21 steps");
}

TEST(Script, EveryExpectationOfTheLanguageIsRead) {
    EXPECT_EQ(
        reading_of(
            "expect frmStart visible\nexpect frmStart hidden\nexpect frmStart.cmdView seen\n"
            "expect frmStart.cmdView unseen\nexpect frmStart.cmdView enabled\n"
            "expect frmStart.cmdView disabled\nexpect frmStart.cmdView focused\n"
            "expect frmStart text Start\nexpect frmStart.chkPreferences value 1\n"
            "expect frmStart.Dir1 count 2\nexpect frmStart.Dir1 entry 0 c:\\\n"
            "expect frmImportFileDisplay.MSFlexKeldarIN rows 1\n"
            "expect frmImportFileDisplay.MSFlexKeldarIN columns 1\n"
            "expect frmImportFileDisplay.MSFlexKeldarIN fixed 0\n"
            "expect frmImportFileDisplay.MSFlexKeldarIN cell 0 0 x\n"
            "expect frmImportFileDisplay.MSFlexKeldarIN current 0 0\n"
            "expect frmImportFileDisplay.MSFlexKeldarIN width 0 1800\n"
            "expect frmImportFileDisplay.MSFlexKeldarIN selection column\n"
            "expect frmImportFileDisplay.MSFlexKeldarIN highlight focus\n"
            "expect frmStart pointer busy\n"
            "file c:\\a exists\nfile c:\\a missing\nfile c:\\a empty\nfile c:\\a lines 3\n"
            "file c:\\a line 1 x\nfile c:\\a same b\nfile c:\\a holds x\nfile c:\\a lacks x\n"),
        "28 steps");
}

TEST(Script, AWrongLineIsToldWithItsPlaceAndItsReason) {
    EXPECT_EQ(reading_of("start\n\npress frmStart.cmdView\n"),
              "here.scn:3: There is no command \"press\".");
    EXPECT_EQ(reading_of("click frmNone.cmdView"), "here.scn:1: There is no screen \"frmNone\".");
    EXPECT_EQ(reading_of("click frmStart.cmdNone"),
              "here.scn:1: The screen frmStart has no field \"cmdNone\".");
    EXPECT_EQ(reading_of("click"), "here.scn:1: The command is written: click FIELD.");
    EXPECT_EQ(reading_of("start now"), "here.scn:1: The command is written: start.");
    EXPECT_EQ(reading_of("click frmStart.lblSelectedFile"),
              "here.scn:1: frmStart.lblSelectedFile is of the kind label, of which that cannot be "
              "said or "
              "done.");
    EXPECT_EQ(reading_of("expect frmStart.cmdView visible now"),
              "here.scn:1: The command is written: expect FIELD visible.");
    EXPECT_EQ(reading_of("file c:\\a line 1"),
              "here.scn:1: The command is written: file PATH line I TEXT.");
    EXPECT_EQ(reading_of("cell frmImportFileDisplay.MSFlexKeldarIN -1 0"),
              "here.scn:1: \"-1\" is no row.");
}

TEST(Script, WhatALineAloneCanTellIsToldBeforeAnythingRuns) {
    for (const std::string_view line : {"type frmStart.cmdView x",
                                        "type frmStart.txtOracleID \"a\\tb\"",
                                        "refused start",
                                        "refused",
                                        "force expect frmStart.cmdView seen",
                                        "open frmStart.cmdView",
                                        "set frmStart.chkPreferences 2",
                                        "set frmStart.lstImportFileBox x",
                                        "add frmStart.lblSelectedFile x",
                                        "expect frmStart.cmdView",
                                        "expect frmStart enabled",
                                        "expect frmStart.cmdView value 1",
                                        "expect frmStart.chkPreferences value 2",
                                        "expect frmStart.cmdView rows 1",
                                        "expect frmStart.cmdView shiny",
                                        "expect frmImportFileDisplay.MSFlexKeldarIN selection cell",
                                        "expect frmImportFileDisplay.MSFlexKeldarIN text x",
                                        "expect frmStart pointer arrow",
                                        "file c:\\a",
                                        "file c:\\a shines",
                                        "file c:\\a lines x",
                                        "file c:\\a line 0 x",
                                        "file c:\\a holds",
                                        "shot a/b",
                                        "print",
                                        "include",
                                        "copy a",
                                        "write c:\\a",
                                        "keys frmStart.txtOracleID {F1}",
                                        "select frmStart.Dir1"}) {
        EXPECT_EQ(reading_of(line).substr(0, 12), "here.scn:1: ") << line << reading_of(line);
    }
}

TEST(Script, AWrongLineThatHoldsASecretIsNotToldInItsWords) {
    try {
        read_script_text("keys frmStart.txtOracleID ${PW}", "here.scn", {{"PW", "abc{def}"}},
                         {"PW"});
        FAIL() << "the line is wrong";
    } catch (const WrongLine& wrong) {
        EXPECT_EQ(std::string(wrong.what()),
                  "here.scn:1: The line is no command. Its words hold a secret and are not told.");
    }
}

TEST(Script, AnIncludedFileIsReadFromTheFolderOfItsIncluder) {
    test::TemporaryFolder folder;
    folder.write("road/a.scn", "start\ninclude deeper/b.scn\n");
    folder.write("road/deeper/b.scn", "ended\n");
    folder.write("main.scn", "include road/a.scn\nfatal\n");
    const auto steps = read_script(folder.path() / "main.scn", {});
    ASSERT_EQ(steps.size(), 3U);
    EXPECT_EQ(steps[1].place, (folder.path() / "road" / "deeper/b.scn").string() + ":1");
}

TEST(Script, AWrongLineOfAnIncludedFileIsToldWithItsOwnPlace) {
    test::TemporaryFolder folder;
    folder.write("a.scn", "\nnonsense\n");
    folder.write("main.scn", "include a.scn\n");
    try {
        read_script(folder.path() / "main.scn", {});
        FAIL() << "the line is wrong";
    } catch (const WrongLine& wrong) {
        EXPECT_EQ(std::string(wrong.what()),
                  (folder.path() / "a.scn").string() + ":2: There is no command \"nonsense\".");
    }
}

TEST(Script, AFileThatIncludesItselfOrIsNotThereIsWrong) {
    test::TemporaryFolder folder;
    folder.write("a.scn", "include b.scn\n");
    folder.write("b.scn", "include ./a.scn\n");
    folder.write("c.scn", "include none.scn\n");
    EXPECT_THROW(read_script(folder.path() / "a.scn", {}), WrongLine);
    EXPECT_THROW(read_script(folder.path() / "c.scn", {}), WrongLine);
    EXPECT_THROW(read_script(folder.path() / "none.scn", {}), WrongLine);
}

TEST(Script, TheSameFileMayBeIncludedTwice) {
    test::TemporaryFolder folder;
    folder.write("a.scn", "ended\n");
    folder.write("main.scn", "include a.scn\ninclude a.scn\n");
    EXPECT_EQ(read_script(folder.path() / "main.scn", {}).size(), 2U);
}

}  // namespace
}  // namespace brooklander::scenario
