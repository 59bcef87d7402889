// The search for characteristics, from the press of its button to the filled list of matches.
//
//   bench_search USER PASSWORD
//
// Logs on to the data source keldar of ODBCINI. Each search is measured five times; figures are
// medians.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <iostream>

#include "platform/database/odbc_database.h"
#include "platform/files/host_files.h"
#include "platform/help.h"
#include "program.h"

namespace brooklander::bench {
namespace {

constexpr std::size_t rounds = 5;

class NoHelp : public Help {
    void show(std::string_view /*path*/) override {}
};

void measure(Screens& screens, std::string_view text) {
    FrmCharacteristics& translation = screens.frmCharacteristics;
    translation.chkNoTaxa.set_ticked(true);
    translation.txtCharacteristic.set_text(text);
    std::array<double, rounds> times{};
    for (double& time : times) {
        const auto before = std::chrono::steady_clock::now();
        translation.cmdDisplay.press();
        const std::chrono::duration<double, std::milli> taken =
            std::chrono::steady_clock::now() - before;
        time = taken.count();
    }
    std::sort(times.begin(), times.end());
    std::printf("%-24s %6zu matches %8.1f ms\n", std::string(text).c_str(),
                translation.cmbCharacteristics.count(), times[rounds / 2]);
}

int run(std::string_view user, std::string_view password) {
    HostFiles files(std::filesystem::temp_directory_path());
    OdbcDatabase database;
    NoHelp help;
    Program program({files, database, help});
    Screens& screens = program.screens();
    screens.frmStart.txtOracleID.set_text(user);
    screens.frmStart.txtOraclePassWord.set_text(password);
    for (const std::string_view text :
         {"compound 77777,", "compound 77", "phosphorus", "nothing of that name", "compound"}) {
        measure(screens, text);
    }
    return 0;
}

}  // namespace
}  // namespace brooklander::bench

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "bench_search USER PASSWORD\n";
        return 2;
    }
    return brooklander::bench::run(argv[1], argv[2]);
}
