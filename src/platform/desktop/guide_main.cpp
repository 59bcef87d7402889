// The maker of the help, with windows to take pictures of.

#include "guide/guide.h"
#include "platform/desktop/application.h"
#include "platform/desktop/drawn_front.h"
#include "platform/desktop/warnings.h"

int main(int argc, char** argv) {
    using namespace brooklander;
    // The application reads its own options from a command line that has none.
    int no_arguments = 1;
    std::unique_ptr<QApplication> application;
    return guide::run_guide(argc, argv, [&](const std::filesystem::path& shots) {
        if (!desktop::has_display()) qputenv("QT_QPA_PLATFORM", "offscreen");
        desktop::collect_warnings();
        application = desktop::make_application(no_arguments, argv);
        return [shots](const Files& files) { return desktop::drawn_front(files, shots); };
    });
}
