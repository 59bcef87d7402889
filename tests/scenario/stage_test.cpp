#include "scenario/stage.h"

#include <gtest/gtest.h>

#include <sstream>
#include "scenario/player.h"

#include "platform/files/host_files.h"
#include "scenario/commands.h"
#include "scenario/scenario_error.h"
#include "screens.h"
#include "support/temporary_folder.h"

namespace brooklander::scenario {
namespace {

class Playing : public testing::Test {
  protected:
    // What the playing of a text ends in: nothing, or the sentence of what failed.
    std::string play(const std::string& text) {
        try {
            Stage stage(
                folder_.path(), undrawn_front,
                [this](const std::string& line) { output_ += line + "\n"; },
                [this](const std::string& line) { errors_ += line + "\n"; });
            stage.play(read_script_text(text, folder_.path() / "here.scn", {}));
            return "";
        } catch (const Unmet& unmet) {
            const std::string sentence = unmet.what();
            return sentence.substr(sentence.find("here.scn"));
        }
    }

    std::string play_started(const std::string& text) {
        return play("make c:\\brooklander\nstart\n" + text);
    }

    test::TemporaryFolder folder_;
    std::string output_;
    std::string errors_;
};

TEST_F(Playing, OnlyFilesWorkBeforeTheStart) {
    EXPECT_EQ(play("write c:\\a x\nfile c:\\a exists\nclick frmStart.cmdUIDok"),
              "here.scn:3: The program has not been started.");
    EXPECT_EQ(play("ended"), "here.scn:1: The program has not been started.");
    EXPECT_EQ(play("fatal"), "here.scn:1: The program has not been started.");
}

TEST_F(Playing, AfterItsEndTheProgramCanBeStartedAfreshAndNothingElse) {
    const std::string quit = "click frmStart.mnuExit\nclick frmStart.cmdYes\nended\n";
    EXPECT_EQ(
        play_started("set frmStart.mnuFiles x\nforce " + quit + "file c:\\brooklander exists"), "");
    EXPECT_EQ(play_started("force " + quit + "expect frmStart.cmdView seen"),
              "here.scn:6: The program has ended.");
    EXPECT_EQ(play_started("force " + quit + "start\nexpect frmStart.frameOracleLogon seen"), "");
    EXPECT_EQ(play_started("start"), "here.scn:3: The program is running already.");
    EXPECT_EQ(play_started("ended"), "here.scn:3: The program has not ended by its own exit.");
}

TEST_F(Playing, AFatalFailureWantsAFatalBehindIt) {
    EXPECT_EQ(play("start\nfatal\nmake c:\\brooklander\nstart\nexpect frmStart seen"), "");
    EXPECT_EQ(
        play("remove c:\\brooklander\nstart"),
        "here.scn:2: The program ended in a fatal failure: \"c:\\brooklander\" cannot be made "
        "the current directory: No such file or directory.");
    EXPECT_EQ(play("start\nfile c:\\x missing\nfatal").substr(0, 12), "here.scn:1: ");
    EXPECT_EQ(play_started("fatal"),
              "here.scn:3: The command before it did not end in a fatal failure.");
    EXPECT_EQ(play("remove c:\\brooklander\nstart\nfatal\nended"),
              "here.scn:4: The program has not ended by its own exit.");
}

TEST_F(Playing, TheSentenceOfAFatalFailureIsToldOnceAlsoWhenItWasExpected) {
    EXPECT_EQ(play("start\nfatal"), "");
    EXPECT_EQ(errors_,
              "\"c:\\brooklander\" cannot be made the current directory: No such file or "
              "directory.\n");
}

TEST_F(Playing, AUserCannotWorkWhatIsHiddenOrDisabled) {
    EXPECT_EQ(play_started("click frmStart.cmdUIDok"),
              "here.scn:3: A user cannot do that to frmStart.cmdUIDok: frmStart.cmdUIDok is "
              "hidden.");
    EXPECT_EQ(play_started("click frmStart.mnuImport"),
              "here.scn:3: A user cannot do that to frmStart.mnuImport: frmStart.mnuFiles is "
              "disabled.");
    EXPECT_EQ(play_started("click frmImportFileDisplay.cmdYes"),
              "here.scn:3: A user cannot do that to frmImportFileDisplay.cmdYes: "
              "frmImportFileDisplay.frameImportConfirm is hidden.");
    EXPECT_EQ(play_started("refused click frmStart.cmdUIDok\nforce click frmStart.mnuAbout"), "");
    EXPECT_EQ(play_started("refused click frmStart.mnuAbout"),
              "here.scn:3: A user can do that to frmStart.mnuAbout.");
}

TEST_F(Playing, WhatIsNotThereFailsBehindRefusedToo) {
    EXPECT_EQ(play_started("refused select frmStart.Dir1 nowhere"),
              "here.scn:3: frmStart.Dir1 has no entry \"nowhere\".");
    EXPECT_EQ(play_started("refused cell frmImportFileDisplay.MSFlexKeldarIN 0 0"),
              "here.scn:3: frmImportFileDisplay.MSFlexKeldarIN has no cell 0 0; it has 0 rows and "
              "50 columns.");
    EXPECT_EQ(play_started("force select frmStart.Dir1 nowhere"),
              "here.scn:3: frmStart.Dir1 has no entry \"nowhere\".");
}

TEST_F(Playing, AnExpectationSaysWhatWasExpectedAndWhatWasFound) {
    EXPECT_EQ(play_started("expect frmStart.cmdUIDok visible"),
              "here.scn:3: frmStart.cmdUIDok: expected visible, found hidden.");
    EXPECT_EQ(play_started("expect frmStart text Stop"),
              "here.scn:3: frmStart: expected \"Stop\", found \"Start\".");
    EXPECT_EQ(play_started("expect frmStart.chkPreferences value 1"),
              "here.scn:3: frmStart.chkPreferences: expected the value 1, found 0.");
    EXPECT_EQ(play_started("expect frmStart.Dir1 entry 99 x"),
              "here.scn:3: frmStart.Dir1: expected the entry 99 \"x\", found 10 entries.");
    EXPECT_EQ(play_started("expect frmImportFileDisplay.MSFlexKeldarIN selection row"),
              "here.scn:3: frmImportFileDisplay.MSFlexKeldarIN: expected row, found free.");
    EXPECT_EQ(play_started("expect frmImportFileDisplay.MSFlexKeldarIN cell 0 0 \"\"").substr(0, 9),
              "here.scn:");
}

TEST_F(Playing, FilesAreHeldAgainstTheirLines) {
    folder_.write("other", "one\r\ntwo\r\n");
    const std::string file = "write c:\\a \"one\\r\\ntwo\\r\\n\"\n";
    EXPECT_EQ(
        play(file + "file c:\\A lines 2\nfile c:\\a line 2 two\nfile c:\\a holds e\\r\n"
                    "file c:\\a holds \"e\\r\\nt\"\nfile c:\\a lacks x\nfile c:\\a same other"),
        "here.scn:4: \"c:\\a\" lacks \"e\\\\r\".");
    EXPECT_EQ(play(file + "file c:\\a lines 3"), "here.scn:2: \"c:\\a\" has 2 lines, expected 3.");
    EXPECT_EQ(play(file + "file c:\\a line 3 x"),
              "here.scn:2: \"c:\\a\" has 2 lines, expected a line 3.");
    EXPECT_EQ(play(file + "file c:\\a line 1 x"),
              "here.scn:2: \"c:\\a\" line 1: expected \"x\", found \"one\".");
    EXPECT_EQ(play("write c:\\a \"one\\r\\ntwo\"\nfile c:\\a lines 2"),
              "here.scn:2: \"c:\\a\" has a line 2 that carriage return and line feed do not "
              "end.");
    EXPECT_EQ(play("write c:\\a \"one\\r\\ntwX\\r\\n\"\nfile c:\\a same other"),
              "here.scn:2: \"c:\\a\" differs in line 2: expected \"two\\r\", found \"twX\\r\".");
    EXPECT_EQ(play("write c:\\a \"\"\nfile c:\\a empty\nfile c:\\a lines 0\nremove c:\\a\n"
                   "file c:\\a missing\nfile c:\\a empty")
                  .substr(0, 11),
              "here.scn:6:");
}

TEST_F(Playing, AFolderWithoutAnythingInItIsEmpty) {
    EXPECT_EQ(play("make c:\\a\\b\nfile c:\\a\\b empty\nfile c:\\a empty"),
              "here.scn:3: \"c:\\a\" is a folder that is not empty.");
}

TEST_F(Playing, AMaskedTextIsNotTold) {
    EXPECT_EQ(play_started("type frmStart.txtOraclePassWord geheim\n"
                           "expect frmStart.txtOraclePassWord text offen"),
              "here.scn:4: frmStart.txtOraclePassWord: expected \"offen\", found \"******\".");
}

TEST_F(Playing, FoldersAreMadeAndRemovedWithAllThatIsInThemButNeverADrive) {
    EXPECT_EQ(play("write c:\\a\\b\\c x\nfile c:\\a\\b exists\nremove c:\\A\nfile c:\\a missing\n"
                   "make c:\\a\\b\nfile c:\\a\\b exists"),
              "");
    EXPECT_EQ(play("remove c:\\"), "here.scn:1: A whole drive is not removed.");
    EXPECT_EQ(play("write c:\\a? x").substr(0, 12), "here.scn:1: ");
    EXPECT_EQ(play("file \"c:\\\\a?\" missing"), "");
    EXPECT_EQ(play("make c:\\a\nwrite c:\\a x"),
              "here.scn:2: \"c:\\a\" cannot be written: Is a directory.");
}

// Asked of the rule alone, since a command that broke it would take the machine along.
TEST_F(Playing, RootsAndFoldersAroundADriveAreWholeDrives) {
    const auto home = folder_.path() / "home";
    std::filesystem::create_directories(home / "a");
    EXPECT_TRUE(holds_a_drive(home, home));
    EXPECT_TRUE(holds_a_drive(home / "a" / "..", home));
    EXPECT_TRUE(holds_a_drive(folder_.path(), home));
    EXPECT_TRUE(holds_a_drive(home.root_path(), home));
    EXPECT_TRUE(holds_a_drive("", home));
    EXPECT_FALSE(holds_a_drive(home / "a", home));
    EXPECT_FALSE(holds_a_drive(folder_.path() / "beside", home));
}

TEST_F(Playing, PrintingTellsAllThatAFieldHolds) {
    EXPECT_EQ(
        play_started("set frmStart.txtOraclePassWord geheim\nprint frmStart.txtOraclePassWord\n"
                     "print frmStart.optLogYes\nprint frmStart.Drive1\n"
                     "add frmImportFileDisplay.MSFlexResults \"\xC3\xA9\\tb\"\n"
                     "print frmImportFileDisplay.MSFlexResults"),
        "");
    EXPECT_EQ(
        output_,
        R"({"field":"frmStart.txtOraclePassWord","kind":"text box","visible":true,"enabled":true,"seen":true,"text":"******"})"
        "\n"
        R"({"field":"frmStart.optLogYes","kind":"option","visible":true,"enabled":true,"seen":false,"text":"Yes","value":0})"
        "\n"
        R"({"field":"frmStart.Drive1","kind":"drive list","visible":true,"enabled":true,"seen":false,"text":"c:","entries":["c:","z:"],"selected":null})"
        "\n"
        R"({"field":"frmImportFileDisplay.MSFlexResults","kind":"grid","visible":false,"enabled":true,"seen":false,"rows":[["é","b"]],"columns":2,"current":[0,0]})"
        "\n");
}

TEST_F(Playing, PrintingAScreenTellsEachOfItsFields) {
    HostFiles files(folder_.path());
    const Screens screens(files);
    const std::vector<Field*>& fields = screens.frmStart.fields();
    EXPECT_EQ(play_started("print frmStart"), "");

    std::vector<std::string> printed;
    std::istringstream lines(output_);
    for (std::string line; std::getline(lines, line);) printed.push_back(line);
    ASSERT_EQ(printed.size(), fields.size());
    EXPECT_EQ(
        printed.front(),
        R"({"field":"frmStart.mnuFiles","kind":"menu entry","visible":true,"enabled":false,"seen":true,"text":"Files"})");
    EXPECT_EQ(
        printed.back(),
        R"({"field":"frmStart.lblTripIsNumber","kind":"label","visible":false,"enabled":true,"seen":false,"text":""})");
}

TEST_F(Playing, TheProgramsOwnStepsCanBeDoneFromOutside) {
    EXPECT_EQ(play_started("open frmLogger\nexpect frmLogger visible\n"
                           "set frmStart.optLogYes 1\nset frmStart.optLogNo 1\n"
                           "expect frmStart.optLogYes value 0\nexpect frmStart.optLogNo value 1\n"
                           "add frmImportFileDisplay.lstRows a\n"
                           "expect frmImportFileDisplay.lstRows entry 0 a\n"
                           "add frmImportFileDisplay.MSFlexKeldarIN \"a\\tb\"\n"
                           "setcell frmImportFileDisplay.MSFlexKeldarIN 0 1 c\n"
                           "expect frmImportFileDisplay.MSFlexKeldarIN cell 0 1 c"),
              "");
    EXPECT_EQ(play_started("setcell frmImportFileDisplay.MSFlexKeldarIN 0 0 c").substr(0, 12),
              "here.scn:3: ");
}

}  // namespace
}  // namespace brooklander::scenario
