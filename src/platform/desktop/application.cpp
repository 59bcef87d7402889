#include "platform/desktop/application.h"

#include <QFont>
#include <QOperatingSystemVersion>

#include "platform/desktop/grid_accessible.h"
#include "platform/desktop/theme.h"

namespace brooklander::desktop {

std::unique_ptr<QApplication> make_application(int& argc, char** argv) {
    auto application = std::make_unique<QApplication>(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("brooklander"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Brooklander"));
    // By this name a desktop finds the menu entry of an installation, and with it the icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("brooklander"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // Without a desktop there is no font of the desktop's own; pictures then are the same anywhere.
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    }
    dress(*application);
    make_grids_accessible();
    return application;
}

bool has_display() {
    return QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows ||
           !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

}  // namespace brooklander::desktop
