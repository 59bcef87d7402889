#include "shared/place_lists.h"

#include <gtest/gtest.h>

#include "platform/fatal_failure.h"
#include "support/test_screen.h"

namespace brooklander {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class PlaceLists : public testing::Test {
  protected:
    PlaceLists() {
        fs::create_directories(test_.folder.path() / "data/lakes/deep");
        fs::create_directories(test_.folder.path() / "data/Brooks");
        fs::create_directories(test_.folder.path() / ".hidden");
        test_.folder.write("data/b.txt", "");
        test_.folder.write("data/A.TXT", "");
        test_.folder.write("data/c.txt.old", "");
        test_.folder.write("data/d.csv", "");
    }

    test::TestScreen test_;
    FolderList& folders_ = test_.screen.Dir1;
    FileList& files_ = test_.screen.File1;
    int runs_ = 0;
};

TEST_F(PlaceLists, AFolderListShowsTheRootTheFoldersDownToItsPathAndTheFoldersInIt) {
    folders_.set_path("c:\\data");
    EXPECT_EQ(folders_.entries(), (Names{"c:\\", "data", "Brooks", "lakes"}));
    folders_.set_path("c:\\data\\lakes");
    EXPECT_EQ(folders_.entries(), (Names{"c:\\", "data", "lakes", "deep"}));
    folders_.set_path("c:\\");
    EXPECT_EQ(folders_.entries(), (Names{"c:\\", "data"}));
}

TEST_F(PlaceLists, AnEntryStandsForAWholePathAndIsFoundByIt) {
    folders_.set_path("c:\\data\\lakes");
    EXPECT_EQ(folders_.entry_path(0), "c:\\");
    EXPECT_EQ(folders_.entry_path(1), "c:\\data");
    EXPECT_EQ(folders_.entry_path(3), "c:\\data\\lakes\\deep");
    EXPECT_EQ(folders_.find("c:\\DATA\\lakes\\deep"), 3U);
    EXPECT_EQ(folders_.find("c:/data/lakes"), 2U);
    EXPECT_EQ(folders_.find("deep"), 3U);
    EXPECT_EQ(folders_.find("nowhere"), std::nullopt);
}

TEST_F(PlaceLists, ATextAssignedToAFolderListIsItsPath) {
    std::filesystem::create_directories(test_.folder.path() / "reeds");
    Field& field = folders_;
    field.set_text("c:\\reeds");
    EXPECT_EQ(folders_.path(), "c:\\reeds");
    EXPECT_EQ(folders_.entries(), (std::vector<std::string>{"c:\\", "reeds"}));
}

TEST_F(PlaceLists, AFolderListTellsOnlyAPathThatDiffers) {
    folders_.on_change = [this] { ++runs_; };
    folders_.set_path("c:\\data");
    folders_.set_path("C:/DATA/");
    EXPECT_EQ(runs_, 1);
    folders_.refresh();
    EXPECT_EQ(runs_, 1);
}

TEST_F(PlaceLists, ADriveAloneMeansItsRoot) {
    folders_.set_path("c:\\data");
    folders_.set_path("c:");
    EXPECT_EQ(folders_.path(), "c:\\");
}

TEST_F(PlaceLists, AFolderThatIsNotThereShowsAsAnEmptyOneAndADriveThatIsNotThereIsAFailure) {
    folders_.set_path("c:\\data\\nowhere");
    EXPECT_EQ(folders_.entries(), (Names{"c:\\", "data", "nowhere"}));
    EXPECT_THROW(folders_.set_path("q:\\data"), FatalFailure);
    EXPECT_EQ(folders_.path(), "c:\\data\\nowhere");
}

TEST_F(PlaceLists, AClickOnTheSelectedEntryRunsTheHandlerAgainAndARefreshRunsNothing) {
    files_.set_path("c:\\data");
    folders_.set_path("c:\\data");
    files_.on_click = folders_.on_click = [this] { ++runs_; };
    files_.click_entry(0);
    files_.click_entry(0);
    folders_.click_entry(1);
    folders_.click_entry(1);
    EXPECT_EQ(runs_, 4);
    files_.refresh();
    folders_.refresh();
    EXPECT_EQ(runs_, 4);
}

TEST_F(PlaceLists, NamesThatNoFileMayHaveAreNotListed) {
    test_.folder.write("data/a:b.txt", "");
    test_.folder.write("data/a\\b.txt", "");
    fs::create_directories(test_.folder.path() / "data/a?b");
    files_.set_path("c:\\data");
    folders_.set_path("c:\\data");
    EXPECT_EQ(files_.entries(), (Names{"A.TXT", "b.txt", "c.txt.old"}));
    EXPECT_EQ(folders_.entries(), (Names{"c:\\", "data", "Brooks", "lakes"}));
}

TEST_F(PlaceLists, ListsThatNoStepHasSetStandAtTheCurrentDirectory) {
    test::FrmTest other(test_.desk, "frmOther");
    test_.files.change_directory("c:\\data");
    other.Dir1.on_change = [this] { ++runs_; };
    other.show();
    EXPECT_EQ(other.Dir1.path(), "c:\\data");
    EXPECT_EQ(other.File1.path(), "c:\\data");
    EXPECT_EQ(other.Drive1.text(), "c:");
    EXPECT_EQ(runs_, 0);
}

TEST_F(PlaceLists, AFileListShowsTheFilesOfItsPatternByName) {
    files_.set_path("c:\\data");
    EXPECT_EQ(files_.entries(), (Names{"A.TXT", "b.txt", "c.txt.old"}));
    files_.click_entry(1);
    EXPECT_EQ(files_.text(), "b.txt");
}

TEST_F(PlaceLists, AFileListReadsItsFolderWhenItsPathIsSetAtARefreshAndWhenItsScreenIsShown) {
    files_.set_path("c:\\data");
    test_.folder.write("data/new.txt", "");
    EXPECT_EQ(files_.count(), 3U);
    files_.click_entry(0);
    files_.refresh();
    EXPECT_EQ(files_.count(), 4U);
    EXPECT_FALSE(files_.selected());
    EXPECT_EQ(files_.text(), "");
    fs::remove(test_.folder.path() / "data/new.txt");
    test_.screen.hide();
    EXPECT_EQ(files_.count(), 4U);
    test_.screen.show();
    EXPECT_EQ(files_.count(), 3U);
}

TEST_F(PlaceLists, AFolderThatHasGoneShowsAsAnEmptyOne) {
    files_.set_path("c:\\data");
    folders_.set_path("c:\\data");
    fs::remove_all(test_.folder.path() / "data");
    files_.refresh();
    folders_.refresh();
    EXPECT_EQ(files_.count(), 0U);
    EXPECT_EQ(folders_.entries(), (Names{"c:\\", "data"}));
    files_.set_path("c:\\data\\lakes");
    EXPECT_EQ(files_.path(), "c:\\data\\lakes");
    EXPECT_EQ(files_.count(), 0U);
}

TEST_F(PlaceLists, AChoiceOfADriveRunsTheHandlerEveryTime) {
    DriveList& drives = test_.screen.Drive1;
    drives.on_click = [this] { ++runs_; };
    drives.click_entry(*drives.find("z:"));
    drives.click_entry(*drives.find("z:"));
    EXPECT_EQ(runs_, 2);
    EXPECT_EQ(drives.text(), "z:");
    drives.refresh();
    EXPECT_EQ(drives.text(), "z:");
    EXPECT_EQ(runs_, 2);
}

}  // namespace
}  // namespace brooklander
