// The rules for files that hold on every system.

#include "platform/files/name_pattern.h"
#include "support/host_file_rules.h"

namespace brooklander {
namespace {

namespace fs = std::filesystem;
using test::failure_of;
using test::HostFileRules;
using test::Names;

TEST_F(HostFileRules, NamesAreFoundWithoutRegardToCaseAndWithEitherSlash) {
    folder_.write("Data/Lake.TXT", "x");
    EXPECT_EQ(read("C:/DATA\\lake.txt"), "x");
}

TEST_F(HostFileRules, OpeningForOutputOverwritesAFileOfAnotherCase) {
    folder_.write("out/a.txt", "old and long");
    write("c:\\OUT\\A.TXT", "new");
    EXPECT_EQ(folder_.read("out/a.txt"), "new");
    EXPECT_EQ(files_.folders_in("c:\\"), Names{"out"});
}

TEST_F(HostFileRules, LettersOfTheCodePageInNamesAreUtf8OnTheHost) {
    folder_.write(u8"Montréal/été.txt", "x");
    EXPECT_EQ(read("c:\\montr\xC9"
                   "al\\\xC9T\xC9.TXT"),
              "x");
    write("c:\\\xFC.txt", "y");
    EXPECT_EQ(folder_.read(u8"ü.txt"), "y");
    EXPECT_EQ(files_.folders_in("c:\\"), (Names{"Montr\xE9"
                                                "al"}));
}

TEST_F(HostFileRules, NamesOutsideTheCodePageAreNotListed) {
    folder_.write(u8"Łódź.txt", "");
    folder_.write("a.txt", "");
    folder_.write(".txt", "");
    fs::create_directories(folder_.path() / u8"Łódź");
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

TEST_F(HostFileRules, AFileIsCutBackBehindWhatItHeldAndWrittenOnFromThere) {
    folder_.write("a.txt", "one");
    const auto file = files_.append("c:\\a.txt");
    file->write("two three");
    file->cut_back(3);
    file->write("four");
    file->close();
    EXPECT_EQ(folder_.read("a.txt"), "onetwofour");
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
