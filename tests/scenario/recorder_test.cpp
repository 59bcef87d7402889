#include "scenario/recorder.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace brooklander::scenario {
namespace {

class RecorderTest : public testing::Test, protected test::TestProgram {
  protected:
    RecorderTest() {
        folder.write("data/lake.txt", "Station\tDate\tpH\r\nL1\t05/04/2021\t7.2\r\n");
        folder.write("data/pond.txt", "Station\tDate\tpH\r\nP1\t05/04/2021\t7.1\r\n");
        program.start();
    }

    void log_on(const std::string& user = "brenda", const std::string& password = "Forelle7") {
        start_screen().txtOracleID.type(user);
        start_screen().txtOraclePassWord.type(password);
        start_screen().cmdUIDok.press();
    }

    void choose_folder() {
        start_screen().mnuImport.choose();
        select(start_screen().Dir1, "data");
    }

    void go_to_columns_of(const char* file) {
        choose_folder();
        select(start_screen().lstImportFileBox, file);
        start_screen().cmdView.press();
        go_to_columns();
    }

    std::string text() { return recorder_.recording().text("month.scn"); }

    // The lines behind `start`.
    std::string lines() {
        const std::string whole = text();
        return whole.substr(whole.find("\nstart\n") + 7);
    }

    // That the lines end in these.
    void expect_last(const std::string& wanted) {
        const std::string all = lines();
        EXPECT_EQ(all.size() < wanted.size() ? all : all.substr(all.size() - wanted.size()),
                  wanted);
    }

    Recorder recorder_{screens()};
};

TEST_F(RecorderTest, NothingDoneIsAStartAlone) {
    EXPECT_EQ(text(),
              "# What was done in Brooklander, to be done again by\n#\n"
              "#     brooklander-scenario month.scn\n#\n\nstart\n");
}

TEST_F(RecorderTest, TheHeadSaysHowItIsPlayed) {
    log_on();
    choose_folder();
    select(start_screen().lstImportFileBox, "lake.txt");
    EXPECT_EQ(text(),
              "# What was done in Brooklander, to be done again by\n"
              "#\n"
              "#     brooklander-scenario --secret user --secret password --with file=lake.txt "
              "month.scn\n"
              "#\n"
              "# ${user}: a user id, which the player asks for\n"
              "# ${password}: a password, which the player asks for\n"
              "# ${file}: a file to work on, where it lay when this was recorded\n"
              "\n"
              "start\n"
              "type frmStart.txtOracleID \"${user}\"\n"
              "type frmStart.txtOraclePassWord \"${password}\"\n"
              "click frmStart.cmdUIDok\n"
              "click frmStart.mnuImport\n"
              "select frmStart.Dir1 data\n"
              "select frmStart.lstImportFileBox \"${file}\"\n");
}

TEST_F(RecorderTest, WhatStepsOfTheProgramDoIsNotRecorded) {
    log_on();
    go_to_columns_of("lake.txt");
    assign(import_screen().cmdStation, 0);
    expect_last(
        "click frmImportFileDisplay.cmdActivitySkip\n"
        "click frmImportFileDisplay.cmdStation\n"
        "cell frmImportFileDisplay.MSFlexKeldarIN 0 0\n");
}

TEST_F(RecorderTest, ATriedPasswordIsWrittenNowhere) {
    database.refuses = true;
    log_on("brenda", "Forolle7");
    start_screen().cmdOracleErrorOk.press();
    database.refuses = false;
    start_screen().txtOracleID.click();
    log_on();
    EXPECT_EQ(lines(),
              "click frmStart.txtOracleID\n"
              "type frmStart.txtOracleID \"${user}\"\n"
              "type frmStart.txtOraclePassWord \"${password}\"\n"
              "click frmStart.cmdUIDok\n");
}

TEST_F(RecorderTest, AFailedLogonThatWasLeftAtThatIsRepeated) {
    database.refuses = true;
    log_on();
    start_screen().cmdOracleErrorOk.press();
    start_screen().mnuAbout.choose();
    expect_last(
        "click frmStart.cmdUIDok\nclick frmStart.cmdOracleErrorOk\n"
        "click frmStart.mnuAbout\n");
}

TEST_F(RecorderTest, CorrectionsOfAPasswordAreNotWrittenEither) {
    start_screen().txtOraclePassWord.press_keys(
        {Key::of('F'), Key::of('x'), {Key::Name::backspace}, Key::of('o')});
    start_screen().txtOraclePassWord.press_keys({{Key::Name::left}, {Key::Name::backspace}});
    EXPECT_EQ(lines(), "type frmStart.txtOraclePassWord \"${password}\"\n");
    start_screen().txtOraclePassWord.type("");
    EXPECT_EQ(lines(), "type frmStart.txtOraclePassWord \"\"\n");
}

TEST_F(RecorderTest, CredentialsInOtherTextsGiveWayToTheirVariables) {
    folder.write("data of brenda/x.txt", "");
    log_on();
    start_screen().mnuImport.choose();
    select(start_screen().Dir1, "data of brenda");
    screens().frmPreferences.txtFileName.type("aForelle7$");
    expect_last(
        "select frmStart.Dir1 \"data of ${user}\"\n"
        "force type frmPreferences.txtFileName \"a${password}\\$\"\n");
    EXPECT_EQ(text().find("brenda"), std::string::npos);
    EXPECT_EQ(text().find("Forelle7"), std::string::npos);
}

TEST_F(RecorderTest, APasswordThatDidNotServeHasAVariableOfItsOwn) {
    database.refuses = true;
    log_on("brenda", "Forolle7");
    start_screen().cmdOracleErrorOk.press();
    database.refuses = false;
    log_on();
    screens().frmPreferences.txtFileName.type("Forolle7");
    expect_last("type frmPreferences.txtFileName \"${password2}\"\n");
    EXPECT_NE(text().find("--secret password2"), std::string::npos);
}

TEST_F(RecorderTest, KeysThatHoldThePasswordHoldItsVariable) {
    log_on();
    Grid& grid = screens().frmCharacteristicDetails.MSFlexDetails;
    grid.set_rows(3);
    grid.make_current({1, 1});
    for (const char byte : std::string("xForelle7{")) grid.press_key(Key::of(byte));
    EXPECT_NE(lines().find("MSFlexDetails \"x${password}{{}\"\n"), std::string::npos) << lines();
}

TEST_F(RecorderTest, KeysAreLeftOutWhereNoVariableCanStandForAPasswordWithABrace) {
    log_on("brenda", "For{elle7");
    Grid& grid = screens().frmCharacteristicDetails.MSFlexDetails;
    grid.set_rows(3);
    grid.make_current({1, 1});
    for (const char byte : std::string("For{elle7")) grid.press_key(Key::of(byte));
    EXPECT_NE(lines().find("# Keys that went to frmCharacteristicDetails.MSFlexDetails are left"),
              std::string::npos)
        << lines();
    EXPECT_EQ(text().find("elle7"), std::string::npos);
}

TEST_F(RecorderTest, AFileNameThatHoldsThePasswordIsNotToldInTheHead) {
    folder.write("data/Forelle7.txt", "x\r\n");
    log_on();
    choose_folder();
    select(start_screen().lstImportFileBox, "Forelle7.txt");
    EXPECT_EQ(text().find("Forelle7"), std::string::npos);
    EXPECT_NE(text().find("--with file=NAME"), std::string::npos);
    EXPECT_EQ(recorder_.recording().text("Forelle7.scn").find("Forelle7"), std::string::npos);
}

TEST_F(RecorderTest, AFileNameOfSeveralLinesBringsNoLineIntoTheScenario) {
    start_screen().lstImportFileBox.set_entries({"a\nremove data.txt"});
    start_screen().lstImportFileBox.click_entry(0);
    EXPECT_EQ(text().find("\nremove"), std::string::npos);
}

TEST_F(RecorderTest, EachFileOfTheStartScreenIsAVariable) {
    log_on();
    go_to_columns_of("lake.txt");
    assign_station_date_and_results();
    convert(1);
    import_screen().optAnotherFile.choose();
    import_screen().cmdConfirm.press();
    choose_folder();
    select(start_screen().lstImportFileBox, "pond.txt");
    expect_last("select frmStart.lstImportFileBox \"${file2}\"\n");
    EXPECT_NE(text().find("--with file=lake.txt --with file2=pond.txt"), std::string::npos);
}

TEST_F(RecorderTest, OfFilesGoneThroughByTheArrowKeysTheLastOneCounts) {
    log_on();
    choose_folder();
    select(start_screen().lstImportFileBox, "lake.txt");
    select(start_screen().lstImportFileBox, "pond.txt");
    expect_last("select frmStart.Dir1 data\nselect frmStart.lstImportFileBox \"${file}\"\n");
    EXPECT_NE(text().find("--with file=pond.txt"), std::string::npos);
}

TEST_F(RecorderTest, TheOutputIsNamedAfterTheFileAndAConfigurationIsNot) {
    folder.write("brooklander/preferences/lake.txt", "");
    folder.write("brooklander/voxoutfiles/lake.txt", "");
    log_on();
    choose_folder();
    select(start_screen().lstImportFileBox, "lake.txt");
    import_screen().fileConvertedFiles.set_path("c:\\brooklander\\voxoutfiles");
    select(import_screen().fileConvertedFiles, "lake.txt");
    import_screen().txtSave.type("old lake.txt");
    screens().frmPreferences.filePreferences.set_path("c:\\brooklander\\preferences");
    screens().frmPreferences.filePreferences.click_entry(0);
    const std::string all = lines();
    EXPECT_NE(all.find("fileConvertedFiles \"${file}\"\n"), std::string::npos) << all;
    EXPECT_NE(all.find("txtSave \"old ${file}\"\n"), std::string::npos) << all;
    EXPECT_NE(all.find("filePreferences lake.txt\n"), std::string::npos) << all;
}

TEST_F(RecorderTest, AnEntryThatIsNotTheFirstOfItsTextSaysWhich) {
    List& zones = screens().frmPreferencesSettings.lstTimeZone;
    zones.set_entries({"same", "other", "same"});
    zones.click_entry(2);
    EXPECT_NE(lines().find("lstTimeZone same 2\n"), std::string::npos) << lines();
    zones.click_entry(0);
    EXPECT_NE(lines().find("lstTimeZone same\n"), std::string::npos) << lines();
}

TEST_F(RecorderTest, AFolderNamedLikeOneAboveItGoesByItsPath) {
    folder.write("data/data/x.txt", "");
    log_on();
    choose_folder();
    FolderList& folders = start_screen().Dir1;
    folders.click_entry(folders.count() - 1);
    expect_last("select frmStart.Dir1 data\nselect frmStart.Dir1 c:\\data\\data\n");
}

TEST_F(RecorderTest, MovesOfTheCurrentCellAreWrittenWhereTheyMatter) {
    log_on();
    go_to_columns_of("lake.txt");
    const std::string before = lines();
    table().press_key({Key::Name::down});
    table().press_key({Key::Name::right});
    table().press_key({Key::Name::right});
    EXPECT_EQ(lines(), before + "keys frmImportFileDisplay.MSFlexKeldarIN \"{Right 2}{Down}\"\n");
    table().press_key({Key::Name::up});
    table().press_key({Key::Name::left});
    table().press_key({Key::Name::left});
    EXPECT_EQ(lines(), before);
    table().move_to({1, 7});
    table().press_key({Key::Name::enter});
    EXPECT_EQ(lines(), before + "cell frmImportFileDisplay.MSFlexKeldarIN 1 7\n");
    table().press_key({Key::Name::left});
    import_screen().cmdDate.press();
    EXPECT_EQ(lines(), before +
                           "cell frmImportFileDisplay.MSFlexKeldarIN 1 7\n"
                           "keys frmImportFileDisplay.MSFlexKeldarIN \"{Left}\"\n"
                           "click frmImportFileDisplay.cmdDate\n");
}

TEST_F(RecorderTest, KeysLeadOutOfFixedColumns) {
    Grid& log = screens().frmDataLoggerResults.MSFlexLog;
    for (int row = 0; row < 5; ++row) log.add_row("07/01/2021\t0900\t1\t2");
    ASSERT_EQ(log.fixed_columns(), 2);
    log.make_current({0, 0});
    log.move_to({4, 2});
    EXPECT_EQ(lines(), "keys frmDataLoggerResults.MSFlexLog \"{Right}{Down 4}\"\n");
}

TEST_F(RecorderTest, WhatCouldNotBeWorkedIsForced) {
    start_screen().mnuExit.choose();
    EXPECT_EQ(lines(), "force click frmStart.mnuExit\n");
}

std::string said(TextBox& box, const std::vector<Edit>& edits) {
    std::string all;
    for (const RecordedLine& line : lines_for(box, edits)) {
        all += line.verb + ":";
        if (const auto* const typed = std::get_if<TypedText>(&line.what)) all += typed->text + ";";
        if (const auto* const keys = std::get_if<PressedKeys>(&line.what)) {
            for (const Key key : *keys) {
                all += key.name == Key::Name::character   ? std::string(1, key.character)
                       : key.name == Key::Name::left      ? "<"
                       : key.name == Key::Name::right     ? ">"
                       : key.name == Key::Name::backspace ? "-"
                                                          : "?";
            }
            all += ";";
        }
    }
    return all;
}

class EditLines : public RecorderTest {
  protected:
    std::string said_of(const std::vector<Edit>& edits) {
        return said(screens().frmPreferences.txtFileName, edits);
    }
};

TEST_F(EditLines, ATextThatGrowsIsTyped) {
    EXPECT_EQ(said_of({{"", "a"}, {"a", "ab"}, {"ab", "abc"}}), "type:abc;");
}
TEST_F(EditLines, OneTypedOverAllThatStoodThereIsTyped) {
    EXPECT_EQ(said_of({{"lake", "p"}, {"p", "po"}}), "type:po;");
}
TEST_F(EditLines, OneThatGrowsBehindAnotherIsKeys) {
    EXPECT_EQ(said_of({{"lake", "lake1"}, {"lake1", "lake12"}}), "keys:12;");
}
TEST_F(EditLines, BackspaceIsAKey) {
    EXPECT_EQ(said_of({{"", "a"}, {"a", "ax"}, {"ax", "a"}, {"a", "ab"}}), "type:ax;keys:-b;");
}
TEST_F(EditLines, AChangeInTheMiddleLeadsTheCaretThere) {
    EXPECT_EQ(said_of({{"lake", "lxke"}, {"lxke", "lxyke"}, {"lxyke", "lxykez"}}),
              "keys:<<-xy>>z;");
}
TEST_F(EditLines, WhatIsEmptiedIsTypedAsNothing) {
    EXPECT_EQ(said_of({{"lake", ""}, {"", "p"}}), "type:;type:p;");
}
TEST_F(EditLines, APasteOverAllIsTyped) { EXPECT_EQ(said_of({{"lake", "pond"}}), "type:pond;"); }
TEST_F(EditLines, APasteInTheMiddleIsKeys) {
    EXPECT_EQ(said_of({{"lake", "la12ke"}}), "keys:<<12;");
}

}  // namespace
}  // namespace brooklander::scenario
