// The rules for files where the program's drives are folders of the host.

#include <sys/stat.h>

#include "support/host_file_rules.h"

namespace brooklander {
namespace {

namespace fs = std::filesystem;
using test::failure_of;
using test::HostFileRules;
using test::Names;

TEST_F(HostFileRules, DriveCIsTheHomeFolderAndDriveZTheWholeFileSystem) {
    folder_.write("lake.txt", "x");
    EXPECT_EQ(read("c:\\lake.txt"), "x");
    EXPECT_EQ(read("z:" + (folder_.path() / "lake.txt").string()), "x");
    EXPECT_EQ(files_.drives(), (Names{"c:", "z:"}));
}

TEST_F(HostFileRules, TheSpellingAskedForIsMeantBeforeAnyOther) {
    folder_.write("lake.txt", "small");
    folder_.write("LAKE.TXT", "capital");
    EXPECT_EQ(read("c:\\lake.txt"), "small");
    EXPECT_EQ(read("c:\\LAKE.TXT"), "capital");
    EXPECT_EQ(read("c:\\Lake.txt"), "capital");
}

TEST_F(HostFileRules, AFileWhoseSizeIsNotToldIsReadToItsEnd) {
    const FileText text = read_host_file("/proc/self/status", "status");
    EXPECT_GT(text.size(), 100U);
    EXPECT_EQ(text.view().substr(0, 5), "Name:");
}

TEST_F(HostFileRules, AFailureWhileReadingIsAFailureOrTheEndOfTheText) {
    fs::create_symlink("/proc/self/mem", folder_.path() / "mem.txt");
    EXPECT_EQ(failure_of([&] { files_.read("c:\\mem.txt"); }),
              "\"c:\\mem.txt\" cannot be read: Input/output error.");
    EXPECT_EQ(files_.read("c:\\mem.txt", ReadErrors::end_text).size(), 0U);
}

TEST_F(HostFileRules, OnlyRegularFilesAndLinksToThemAreListed) {
    folder_.write("a.txt", "");
    ASSERT_EQ(mkfifo((folder_.path() / "pipe.txt").c_str(), 0600), 0);
    fs::create_symlink("nowhere", folder_.path() / "dangling.txt");
    fs::create_symlink("a.txt", folder_.path() / "link.txt");
    EXPECT_EQ(files_.files_in("c:\\", "*.txt*"), (Names{"a.txt", "link.txt"}));
}

TEST_F(HostFileRules, AFullDiskIsToldAsOne) {
    fs::create_symlink("/dev/full", folder_.path() / "full.txt");
    EXPECT_EQ(failure_of([&] { write("c:\\full.txt", "x"); }),
              "\"c:\\full.txt\" cannot be written: No space left on device.");
}

TEST_F(HostFileRules, FoldersThatTheHostHidesByADotAreNotListed) {
    fs::create_directories(folder_.path() / ".cache");
    fs::create_directories(folder_.path() / "data");
    EXPECT_EQ(files_.folders_in("c:\\"), Names{"data"});
}

}  // namespace
}  // namespace brooklander
