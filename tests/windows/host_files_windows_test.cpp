// The rules for files where the program's paths are the host's.

#include <windows.h>

#include "platform/files/host_system.h"
#include "scenario/commands.h"
#include "support/host_file_rules.h"

namespace brooklander {
namespace {

namespace fs = std::filesystem;
using test::failure_of;
using test::HostFileRules;
using test::Names;

TEST_F(HostFileRules, PathsAreThoseOfTheSystemWhereNoFolderStandsForDriveC) {
    folder_.write("Lake.txt", "x");
    const std::string path = host_system::utf8_of(folder_.path() / "Lake.txt");
    const HostFiles literal{host_system::drive_c()};
    EXPECT_EQ(literal.host_path(path).native(), fs::path(path).make_preferred().native());
    EXPECT_EQ(literal.read(path).view(), "x");
}

TEST_F(HostFileRules, TheDrivesAreThoseOfTheSystem) {
    const Names drives = files_.drives();
    for (const std::string& drive : drives) {
        EXPECT_NE(GetDriveTypeA((drive + "\\").c_str()), DWORD{DRIVE_NO_ROOT_DIR}) << drive;
    }
    EXPECT_EQ(std::count(drives.begin(), drives.end(), "c:"), 1);
    EXPECT_TRUE(std::is_sorted(drives.begin(), drives.end()));
}

TEST_F(HostFileRules, TheRootOfEveryDriveIsAWholeDrive) {
    for (const char letter : "c" + host_system::other_drives()) {
        EXPECT_TRUE(scenario::holds_a_drive(host_system::root_of(letter), folder_.path()))
            << letter;
    }
}

TEST_F(HostFileRules, HiddenFoldersAreNotListedAndHiddenFilesAre) {
    fs::create_directories(folder_.path() / "data");
    fs::create_directories(folder_.path() / "secret");
    folder_.write("a.txt", "");
    for (const wchar_t* name : {L"secret", L"a.txt"}) {
        ASSERT_TRUE(SetFileAttributesW((folder_.path() / name).c_str(), FILE_ATTRIBUTE_HIDDEN));
    }
    EXPECT_EQ(files_.folders_in("c:\\"), Names{"data"});
    EXPECT_EQ(files_.files_in("c:\\", "*"), Names{"a.txt"});
}

TEST_F(HostFileRules, NamesAreThoseOfTheWideApi) {
    write("c:\\\xFC \x80.txt", "x");
    EXPECT_TRUE(fs::exists(folder_.path() / L"\u00FC \u20AC.txt"));
}

TEST_F(HostFileRules, AHalfCharacterInANameIsNoText) {
    EXPECT_EQ(host_system::utf8_of(L"a\xD800.txt"), "");
    EXPECT_EQ(host_system::utf8_of(L"a\xD83D\xDC1F"), "a\xF0\x9F\x90\x9F");
}

TEST_F(HostFileRules, BytesPassUntouched) {
    const std::string bytes("a\r\nb\nc\r\x1A\0d", 10);
    write("c:\\a.txt", bytes);
    EXPECT_EQ(fs::file_size(folder_.path() / "a.txt"), bytes.size());
    EXPECT_EQ(read("c:\\a.txt"), bytes);
}

TEST_F(HostFileRules, AFileThatAnotherProgramLocksFails) {
    folder_.write("a.txt", "x");
    const HANDLE lock = CreateFileW((folder_.path() / "a.txt").c_str(), GENERIC_READ, 0, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    EXPECT_EQ(failure_of([&] { files_.read("c:\\a.txt"); }),
              "\"c:\\a.txt\" cannot be opened: Permission denied.");
    EXPECT_EQ(failure_of([&] { files_.create("c:\\a.txt"); }),
              "\"c:\\a.txt\" cannot be opened for writing: Permission denied.");
    EXPECT_EQ(failure_of([&] { files_.remove("c:\\a.txt"); }),
              "\"c:\\a.txt\" cannot be deleted: Device or resource busy.");
    CloseHandle(lock);
    EXPECT_EQ(read("c:\\a.txt"), "x");
}

}  // namespace
}  // namespace brooklander
