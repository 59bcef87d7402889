#include "soak/soak.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace brooklander::test {
namespace {

constexpr int settled = 20;  // files until caches and buffers have their size
constexpr int first_result = 6;
constexpr int columns = FrmImportFileDisplay::table_columns;

// What the process holds of the machine.
struct Footprint {
    long memory = 0;  // resident, in KiB
    long files = 0;   // open
};

Footprint footprint() {
    Footprint found;
    long ignored = 0;
    long pages = 0;
    if (std::ifstream("/proc/self/statm") >> ignored >> pages) {
        found.memory = pages * sysconf(_SC_PAGESIZE) / 1024;
    }
    std::error_code fault;
    for (std::filesystem::directory_iterator entry("/proc/self/fd", fault), end;
         !fault && entry != end; entry.increment(fault)) {
        ++found.files;
    }
    return found;
}

}  // namespace

void Soak::start() {
    act_([&] { program_.program.start(); });
    act_([&] {
        program_.start_screen().txtOracleID.type("user");
        program_.start_screen().txtOraclePassWord.type("secret");
        program_.start_screen().cmdUIDok.press();
    });
}

void Soak::convert() {
    PlainInputs inputs;
    const std::string name = "lake" + std::to_string(++number_) + ".txt";
    program_.folder.write("data/" + name, invent(inputs));
    view(name);
    choose_columns();
    FrmImportFileDisplay& display = program_.import_screen();
    act_([&] { display.cmdContinue.press(); });
    act_([&] { program_.table().click_cell({inputs.first_row, 0}); });
    act_([&] { display.cmdRowContinue.press(); });
    act_([&] { display.cmdFormatConfirm.press(); });
    ASSERT_TRUE(display.frameConverted.seen()) << name;
    ASSERT_EQ(program_.folder.read("brooklander/voxoutfiles/" + name),
              convert_plainly(std::move(inputs)).output)
        << name;
    act_([&] {
        display.optAnotherFile.choose();
        display.cmdConfirm.press();
    });
}

void Soak::view(const std::string& name) {
    FrmStart& start = program_.start_screen();
    act_([&] { start.mnuImport.choose(); });
    act_([&] { TestProgram::select(start.Dir1, "data"); });
    act_([&] { TestProgram::select(start.lstImportFileBox, name); });
    act_([&] { start.cmdView.press(); });
    FrmImportFileDisplay& display = program_.import_screen();
    act_([&] { display.cmdYes.press(); });
    act_([&] { program_.screens().frmPreferences.optVox.choose(); });
    act_([&] { display.cmdSave.press(); });
    act_([&] { display.cmdActivitySkip.press(); });
}

// The first file's columns are told; the later ones take them over.
void Soak::choose_columns() {
    FrmImportFileDisplay& display = program_.import_screen();
    if (display.frameSameSelections.seen()) {
        act_([&] { display.cmdColumnYes.press(); });
        return;
    }
    int column = 0;
    for (Button* const category :
         {&display.cmdStation, &display.cmdDate, &display.cmdTime, &display.cmdSample,
          &display.cmdDepth, &display.cmdComments, &display.cmdResults}) {
        act_([&] { program_.assign(*category, column++); });
    }
}

std::string Soak::invent(PlainInputs& inputs) {
    const auto below = [this](std::size_t bound) { return random_() % bound; };
    inputs.time = 2;
    inputs.date = 1;
    inputs.sample = 3;
    inputs.depth = 4;
    inputs.comments = 5;
    inputs.first_result = first_result;
    const std::vector<std::string> odd{"",   " ",  "930",          "ND", " nd ",
                                       "<1", "5>", "*Non-detect ", "a~b"};
    const std::size_t used = first_result + 2 + below(20);
    const std::size_t rows = 20 + below(300);
    inputs.first_row = 1 + static_cast<int>(below(3));
    std::string text;
    for (std::size_t row = 0; row < rows; ++row) {
        std::vector<std::string>& cells = inputs.table.emplace_back(columns);
        for (std::size_t column = 0; column < used; ++column) {
            cells[column] = below(9) == 0
                                ? odd[below(odd.size())]
                                : std::to_string(below(100000)) + std::string(below(12), 'x');
            text += (column == 0 ? "" : "\t") + cells[column];
        }
        text += "\r\n";
    }
    return text;
}

void soak(Soak& soak, int count, long most_growth) {
    Footprint early;
    soak.start();
    for (int number = 1; number <= count; ++number) {
        ASSERT_NO_FATAL_FAILURE(soak.convert());
        if (number == settled) early = footprint();
    }
    const Footprint late = footprint();
    std::cout << "after " << settled << " files " << early.memory << " KiB, after " << count << " "
              << late.memory << " KiB; open files " << early.files << " and " << late.files << "\n";
    EXPECT_GT(early.memory, 0);
    EXPECT_GT(early.files, 0);
    EXPECT_EQ(late.files, early.files);
#ifndef BROOKLANDER_SANITIZED
    EXPECT_LE(late.memory, early.memory + most_growth);
#else
    static_cast<void>(most_growth);  // freed memory is held back there
#endif
}

}  // namespace brooklander::test
