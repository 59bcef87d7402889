// What the windows take: the table from the press of View to the screen, a page of it scrolled, a
// configuration from the click in the list to the screen, long lists of the database from the click
// that asks for them to the screen, and the program's first window.
//
//   bench_windows FOLDER [ROWS [PLAYER]]
//
// Works in FOLDER and removes what it made. Each figure is the median of five rounds, the load
// without windows and the load with them in turn. PLAYER is the scenario player; with it, the first
// window is measured as a whole process from its start to its end.

#include <QApplication>
#include <QScrollBar>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>

#include "measure.h"
#include "measure_lists.h"
#include "platform/desktop/application.h"
#include "platform/desktop/grid_widget.h"
#include "platform/desktop/layouts.h"
#include "platform/desktop/windows.h"
#include "road.h"
#include "sample_configuration.h"
#include "sample_table.h"

namespace brooklander::bench {
namespace {

namespace fs = std::filesystem;

constexpr int pages = 200;

double load_alone(const fs::path& home) {
    Road road(home);
    road.up_to_view();
    return milliseconds_of([&road] { road.view(); });
}

struct Drawn {
    double view = 0;  // from the press to the table on the screen
    double page = 0;  // one page scrolled and painted, on average
    double slowest = 0;
};

Drawn load_drawn(const fs::path& home) {
    Road road(home);
    desktop::Windows windows(road.screens(), desktop::lay_out);
    windows.settle();
    QApplication::processEvents();
    road.up_to_view();
    windows.settle();
    QApplication::processEvents();

    Drawn drawn;
    drawn.view = milliseconds_of([&] {
        windows.act([&road] { road.view(); });
        windows.window_of(road.screens().frmImportFileDisplay)->repaint();
        QApplication::processEvents();
    });
    const Grid& table = road.screens().frmImportFileDisplay.MSFlexKeldarIN;
    auto* const grid = dynamic_cast<desktop::GridWidget*>(windows.view_of(table)->widget());
    for (int page = 0; page < pages; ++page) {
        const double time = milliseconds_of([grid] {
            grid->verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd);
            grid->viewport()->repaint();
            QApplication::processEvents();
        });
        drawn.page += time / pages;
        drawn.slowest = std::max(drawn.slowest, time);
    }
    return drawn;
}

void measure_table(const fs::path& home, int rows) {
    Figures alone{};
    Figures view{};
    Figures page{};
    Figures slowest{};
    load_alone(home);
    for (std::size_t round = 0; round < rounds; ++round) {
        alone[round] = load_alone(home);
        const Drawn drawn = load_drawn(home);
        view[round] = drawn.view;
        page[round] = drawn.page;
        slowest[round] = drawn.slowest;
    }
    std::printf("%8d rows  load %7.1f ms   View to the screen %7.1f ms   more %6.1f ms\n", rows,
                median(alone), median(view), median(view) - median(alone));
    std::printf("    a page scrolled %5.2f ms, the slowest of %d %5.2f ms\n", median(page), pages,
                median(slowest));
    std::fflush(stdout);
}

void measure_configuration(const fs::path& home) {
    constexpr int characteristics = 6500;
    write_sample_table(home / "data/table.txt", 1, Cells::plain);
    write_sample_configuration(home, characteristics);
    Figures times{};
    for (double& time : times) {
        Road road(home);
        desktop::Windows windows(road.screens(), desktop::lay_out);
        road.up_to_view();
        road.view();
        road.up_to_configuration();
        windows.settle();
        QApplication::processEvents();
        time = milliseconds_of([&] {
            windows.act([&road] { road.select_configuration(); });
            windows.window_of(road.screens().frmPreferences)->repaint();
            QApplication::processEvents();
        });
    }
    std::printf("a configuration of %d characteristics, from the click to the screen %7.1f ms\n",
                characteristics, median(times));
    std::fflush(stdout);
}

void measure_first_window(const fs::path& home, const std::string& player) {
    const fs::path scenario = home / "first.scn";
    std::ofstream(scenario) << "make c:\\brooklander\nstart\nexpect frmStart seen\n";
    const std::string command = "\"" + player + "\" --drawn --home \"" + home.string() + "\" \"" +
                                scenario.string() + "\" >/dev/null";
    Figures times{};
    for (double& time : times) {
        time = milliseconds_of([&command] {
            if (std::system(command.c_str()) != 0) throw std::runtime_error("the player failed");
        });
    }
    std::printf("first window, from the start of a process to its end %7.1f ms\n", median(times));
}

int run(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "bench_windows FOLDER [ROWS [PLAYER]]\n";
        return 2;
    }
    if (!desktop::has_display()) qputenv("QT_QPA_PLATFORM", "offscreen");
    int no_arguments = 1;
    const auto application = desktop::make_application(no_arguments, argv);
    const fs::path home = fs::path(argv[1]) / "brooklander-bench-windows";
    fs::remove_all(home);
    fs::create_directories(home / "data");
    fs::create_directories(home / "brooklander");
    const int rows = argc > 2 ? std::atoi(argv[2]) : 650000;
    write_sample_table(home / "data/table.txt", rows, Cells::as_in_life);
    measure_table(home, rows);
    measure_configuration(home);
    measure_lists(home);
    if (argc > 3) measure_first_window(home, argv[3]);
    fs::remove_all(home);
    return 0;
}

}  // namespace
}  // namespace brooklander::bench

int main(int argc, char** argv) { return brooklander::bench::run(argc, argv); }
