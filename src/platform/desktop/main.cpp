// The desktop program.

#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "platform/database/odbc_database.h"
#include "platform/desktop/application.h"
#include "platform/desktop/failure_box.h"
#include "platform/desktop/first_start.h"
#include "platform/desktop/help_window.h"
#include "platform/desktop/job_menu.h"
#include "platform/desktop/layouts.h"
#include "platform/desktop/windows.h"
#include "platform/files/host_files.h"
#include "platform/files/host_system.h"
#include "program.h"
#include "scenario/recorder.h"

namespace brooklander::desktop {
namespace {

constexpr int ended_by_failure = 1;

int run(int argc, char** argv) {
    const auto application = make_application(argc, argv);
    QString untold = run_first_start(first_start_script());
    if (!untold.isEmpty()) std::cerr << untold.toStdString() << std::endl;
    HostFiles files(host_system::drive_c());
    OdbcDatabase database;
    HelpWindow help(files);
    Program program({files, database, help});
    scenario::Recorder recorder(program.screens());
    const JobMenu job(recorder);
    Windows windows(program.screens(), lay_out);
    windows.on_new_window = [&job](ScreenWindow& window) { job.add_to(window); };

    // Both can come before the event loop runs, so that they wait for it.
    const auto exit_with = [](int status) {
        QMetaObject::invokeMethod(
            qApp, [status] { QCoreApplication::exit(status); }, Qt::QueuedConnection);
    };
    windows.on_end = [&exit_with] { exit_with(EXIT_SUCCESS); };
    windows.on_failure = [&](const QString& sentence) {
        std::cerr << sentence.toStdString() << std::endl;
        // What could not be laid down is the likely cause of a failure before the first window.
        FailureBox(untold.isEmpty() ? sentence : untold + QStringLiteral("\n\n") + sentence).exec();
        exit_with(ended_by_failure);
    };
    windows.act([&program] { program.start(); });
    if (windows.foremost() != nullptr && !untold.isEmpty()) {
        tell_first_start(untold, *windows.foremost());
        untold.clear();
    }
    return QApplication::exec();
}

}  // namespace
}  // namespace brooklander::desktop

int main(int argc, char** argv) { return brooklander::desktop::run(argc, argv); }
