// The password stays in its field: after a run from the logon to a load file it stands in no file
// that the run wrote, in no argument, and not in the environment.

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/database/odbc_database.h"
#include "support/test_program.h"

namespace brooklander {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view password = "Wasserlinse-4711";

bool holds_password(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    return bytes.find(password) != std::string::npos;
}

std::vector<std::string> files_with_password(const fs::path& folder) {
    std::vector<std::string> found;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && holds_password(entry.path())) {
            found.push_back(entry.path().string());
        }
    }
    return found;
}

bool in_environment() {
    for (char** variable = environ; *variable != nullptr; ++variable) {
        if (std::string_view(*variable).find(password) != std::string_view::npos) return true;
    }
    return false;
}

std::string sample_database_file() {
    const char* const file = std::getenv("SAMPLE_DATABASE");
    EXPECT_NE(file, nullptr) << "SAMPLE_DATABASE is not set";
    return file == nullptr ? "" : file;
}

// A program on a folder to which temporary files go, too, with the machine's real database.
struct RealDatabase : test::TestProgram {
    RealDatabase(const RealDatabase&) = delete;
    RealDatabase& operator=(const RealDatabase&) = delete;
    RealDatabase() {
        folder.write("odbc.ini",
                     "[keldar]\nDriver=SQLite3\nDatabase=" + sample_database + "\nNoCreat=Yes\n");
        folder.write("data/table.txt", "Station\tDate\tpH\r\nLL-01\t05/04/2021\t7.2\r\n");
        setenv("ODBCINI", (folder.path() / "odbc.ini").c_str(), 1);
        setenv("TMPDIR", folder.path().c_str(), 1);
        setenv("HOME", folder.path().c_str(), 1);
    }

    ~RealDatabase() { unsetenv("TMPDIR"); }

    std::string sample_database = sample_database_file();
    OdbcDatabase odbc;
    Program real{{files, odbc, help}};
};

TEST(Credentials, StayInTheirFields) {
    RealDatabase run;
    Screens& screens = run.real.screens();
    FrmStart& start = screens.frmStart;
    FrmImportFileDisplay& display = screens.frmImportFileDisplay;
    run.real.start();
    start.txtOracleID.type("jdoe");
    start.txtOraclePassWord.type(password);
    start.cmdUIDok.press();
    ASSERT_FALSE(start.frameOracleError.visible());
    start.mnuLogger.choose();
    ASSERT_GT(screens.frmDataLogger.MSHFlexOrganization.rows(), 2);

    start.mnuImport.choose();
    test::TestProgram::select(start.Dir1, "data");
    test::TestProgram::select(start.lstImportFileBox, "table.txt");
    start.cmdView.press();
    display.cmdYes.press();
    screens.frmPreferences.optVox.choose();
    display.cmdSave.press();
    display.cmdActivitySkip.press();
    for (auto [category, column] :
         {std::pair{&display.cmdStation, 0}, {&display.cmdDate, 1}, {&display.cmdResults, 2}}) {
        category->press();
        display.MSFlexKeldarIN.click_cell({0, column});
    }
    display.cmdContinue.press();
    display.MSFlexKeldarIN.click_cell({1, 0});
    display.cmdRowContinue.press();
    display.cmdFormatConfirm.press();
    ASSERT_NE(run.output(), "");

    EXPECT_EQ(files_with_password(run.folder.path()), std::vector<std::string>{});
    EXPECT_FALSE(holds_password("/proc/self/cmdline"));  // as it is now
    EXPECT_FALSE(in_environment());
    EXPECT_EQ(start.txtOraclePassWord.text(), password);
}

// The search finds what there is to find.
TEST(Credentials, WouldBeFoundInAFile) {
    const test::TemporaryFolder folder;
    folder.write("a/b/notes.txt", "user jdoe, password " + std::string(password) + ".");
    EXPECT_EQ(files_with_password(folder.path()).size(), 1U);
}

}  // namespace
}  // namespace brooklander
