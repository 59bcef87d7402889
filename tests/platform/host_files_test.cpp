#include "platform/files/host_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/fatal_failure.h"
#include "platform/files/name_pattern.h"
#include "support/temporary_folder.h"

namespace brooklander {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

class HostFileRules : public testing::Test {
  protected:
    std::string read(std::string_view path) { return std::string(files_.read(path).view()); }

    void write(std::string_view path, std::string_view text) {
        const auto file = files_.create(path);
        file->write(text);
        file->close();
    }

    // The sentence of the failure that a step ends in.
    template <typename Step>
    std::string failure_of(const Step& step) {
        try {
            step();
        } catch (const FatalFailure& failure) {
            return failure.what();
        }
        return "no failure";
    }

    test::TemporaryFolder folder_;
    HostFiles files_{folder_.path()};
};

TEST_F(HostFileRules, DriveCIsTheHomeFolderAndDriveZTheWholeFileSystem) {
    folder_.write("lake.txt", "x");
    EXPECT_EQ(read("c:\\lake.txt"), "x");
    EXPECT_EQ(read("z:" + (folder_.path() / "lake.txt").string()), "x");
    EXPECT_EQ(files_.drives(), (Names{"c:", "z:"}));
}

TEST_F(HostFileRules, NamesAreFoundWithoutRegardToCaseAndWithEitherSlash) {
    folder_.write("Data/Lake.TXT", "x");
    EXPECT_EQ(read("C:/DATA\\lake.txt"), "x");
}

TEST_F(HostFileRules, TheSpellingAskedForIsMeantBeforeAnyOther) {
    folder_.write("lake.txt", "small");
    folder_.write("LAKE.TXT", "capital");
    EXPECT_EQ(read("c:\\lake.txt"), "small");
    EXPECT_EQ(read("c:\\LAKE.TXT"), "capital");
    EXPECT_EQ(read("c:\\Lake.txt"), "capital");
}

TEST_F(HostFileRules, OpeningForOutputOverwritesAFileOfAnotherCase) {
    folder_.write("out/a.txt", "old and long");
    write("c:\\OUT\\A.TXT", "new");
    EXPECT_EQ(folder_.read("out/a.txt"), "new");
    EXPECT_FALSE(fs::exists(folder_.path() / "OUT"));
}

TEST_F(HostFileRules, LettersOfTheCodePageInNamesAreUtf8OnTheHost) {
    folder_.write("Montréal/été.txt", "x");
    EXPECT_EQ(read("c:\\montr\xC9"
                   "al\\\xC9T\xC9.TXT"),
              "x");
    write("c:\\\xFC.txt", "y");
    EXPECT_EQ(folder_.read("ü.txt"), "y");
    EXPECT_EQ(files_.folders_in("c:\\"), (Names{"Montr\xE9"
                                                "al"}));
}

TEST_F(HostFileRules, NamesOutsideTheCodePageAndHiddenFoldersAreNotListed) {
    folder_.write("Łódź.txt", "");
    folder_.write("a.txt", "");
    folder_.write(".txt", "");
    fs::create_directories(folder_.path() / ".cache");
    fs::create_directories(folder_.path() / "Łódź");
    EXPECT_EQ(files_.files_in("c:\\", "*.txt*"), (Names{".txt", "a.txt"}));
    EXPECT_EQ(files_.folders_in("c:\\"), Names{});
}

TEST_F(HostFileRules, NamesThatNoFileMayHaveFail) {
    for (const std::string_view name : {"a:b", "a?", "a*", "a\"", "a<", "a>", "a|", "a\tb"}) {
        EXPECT_THROW(files_.create("c:\\" + std::string(name)), FatalFailure) << name;
    }
    EXPECT_THROW(files_.read("q:\\a"), FatalFailure);
    EXPECT_EQ(failure_of([&] { files_.create(""); }),
              "\"\" is no path to a file: no name is given.");
}

TEST_F(HostFileRules, APathWithoutADriveIsTakenFromTheCurrentDirectory) {
    fs::create_directories(folder_.path() / "brooklander/voxoutfiles");
    files_.change_directory("C:\\BrookLander");
    EXPECT_EQ(files_.current_directory(), "c:\\BrookLander");
    write("voxoutfiles\\a.txt", "x");
    EXPECT_EQ(folder_.read("brooklander/voxoutfiles/a.txt"), "x");
    write("..\\b.txt", "y");
    EXPECT_EQ(folder_.read("b.txt"), "y");
    write("\\c.txt", "z");
    EXPECT_EQ(folder_.read("c.txt"), "z");
    EXPECT_EQ(files_.full_path("a.\\..\\.\\b"), "c:\\BrookLander\\b");
    EXPECT_EQ(files_.full_path("c:\\..\\.."), "c:\\");
}

TEST_F(HostFileRules, TheCurrentDirectoryMustBeAFolder) {
    folder_.write("file", "");
    EXPECT_THROW(files_.change_directory("c:\\nowhere"), FatalFailure);
    EXPECT_THROW(files_.change_directory("c:\\file"), FatalFailure);
    EXPECT_EQ(files_.current_directory(), "c:\\");
}

TEST_F(HostFileRules, AFolderIsMadeOnceAndOnlyInAFolder) {
    EXPECT_TRUE(files_.make_folder("c:\\new"));
    EXPECT_FALSE(files_.make_folder("c:\\NEW"));
    EXPECT_FALSE(files_.make_folder("c:\\nowhere\\new"));
    EXPECT_FALSE(files_.make_folder(""));
    EXPECT_FALSE(files_.make_folder("q:\\new"));
    EXPECT_EQ(files_.folders_in("c:\\"), (Names{"new"}));
}

TEST_F(HostFileRules, AppendingWritesBehindWhatIsThereAndMakesAFile) {
    folder_.write("a.txt", "one");
    const auto file = files_.append("c:\\A.txt");
    file->write("two");
    file->close();
    EXPECT_EQ(folder_.read("a.txt"), "onetwo");
    files_.append("c:\\b.txt")->close();
    EXPECT_TRUE(fs::exists(folder_.path() / "b.txt"));
}

TEST_F(HostFileRules, DeletingTakesOneFileAndNoFolder) {
    folder_.write("a.txt", "");
    folder_.write("b.txt", "");
    fs::create_directories(folder_.path() / "c");
    files_.remove("c:\\A.TXT");
    EXPECT_FALSE(fs::exists(folder_.path() / "a.txt"));
    EXPECT_TRUE(fs::exists(folder_.path() / "b.txt"));
    EXPECT_THROW(files_.remove("c:\\a.txt"), FatalFailure);
    EXPECT_THROW(files_.remove("c:\\c"), FatalFailure);
    EXPECT_TRUE(fs::exists(folder_.path() / "c"));
}

TEST_F(HostFileRules, AFileThatIsReadKeepsItsTextWhateverBecomesOfIt) {
    folder_.write("a.txt", std::string("a\0b", 3));
    const FileText text = files_.read("c:\\a.txt");
    folder_.write("a.txt", "gone");
    EXPECT_EQ(text.view(), std::string_view("a\0b", 3));
    EXPECT_EQ(text.view().data()[text.size() + FileText::slack - 1], '\0');
}

TEST_F(HostFileRules, AFileWhoseSizeIsNotToldIsReadToItsEnd) {
    const FileText text = read_host_file("/proc/self/status", "status");
    EXPECT_GT(text.size(), 100U);
    EXPECT_EQ(text.view().substr(0, 5), "Name:");
}

TEST_F(HostFileRules, FailuresNameTheFileAndTheCause) {
    fs::create_directories(folder_.path() / "folder");
    EXPECT_EQ(failure_of([&] { files_.read("c:\\none.txt"); }),
              "\"c:\\none.txt\" cannot be opened: No such file or directory.");
    EXPECT_EQ(failure_of([&] { files_.read("c:\\folder"); }),
              "\"c:\\folder\" cannot be read: Is a directory.");
    EXPECT_EQ(failure_of([&] { files_.create("c:\\folder"); }),
              "\"c:\\folder\" cannot be opened for writing: Is a directory.");
    EXPECT_EQ(failure_of([&] { files_.files_in("c:\\none", "*"); }),
              "\"c:\\none\" cannot be listed: No such file or directory.");
}

TEST_F(HostFileRules, AFailureWhileReadingIsAFailureOrTheEndOfTheText) {
    fs::create_symlink("/proc/self/mem", folder_.path() / "mem.txt");
    EXPECT_EQ(failure_of([&] { files_.read("c:\\mem.txt"); }),
              "\"c:\\mem.txt\" cannot be read: Input/output error.");
    EXPECT_EQ(files_.read("c:\\mem.txt", ReadErrors::end_text).size(), 0U);
}

TEST_F(HostFileRules, AFileIsCutBackBehindWhatItHeldAndWrittenOnFromThere) {
    folder_.write("a.txt", "one");
    const auto file = files_.append("c:\\a.txt");
    file->write("two three");
    file->cut_back(3);
    file->write("four");
    file->close();
    EXPECT_EQ(folder_.read("a.txt"), "onetwofour");
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

TEST(NamePattern, StarsAndQuestionMarksMatchWithoutRegardToCase) {
    EXPECT_TRUE(name_matches("lake.txt", "*.txt*"));
    EXPECT_TRUE(name_matches("LAKE.TXT.bak", "*.txt*"));
    EXPECT_TRUE(name_matches(".txt", "*.txt*"));
    EXPECT_FALSE(name_matches("lake.tx", "*.txt*"));
    EXPECT_FALSE(name_matches("laketxt", "*.txt*"));
    EXPECT_TRUE(name_matches("a.txt.txt", "*.txt"));
    EXPECT_TRUE(name_matches("ab", "?b"));
    EXPECT_FALSE(name_matches("b", "?b"));
    EXPECT_TRUE(name_matches("anything", "*.*"));
    EXPECT_TRUE(name_matches("", "*"));
    EXPECT_FALSE(name_matches("a", ""));
    EXPECT_TRUE(name_matches("aXbXc", "a*b*c"));
    EXPECT_FALSE(name_matches("aXbX", "a*b*c"));
}

}  // namespace
}  // namespace brooklander
