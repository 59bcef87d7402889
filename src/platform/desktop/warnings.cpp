#include "platform/desktop/warnings.h"

#include <array>
#include <iostream>
#include <utility>

namespace brooklander::desktop {
namespace {

// Message handlers are plain functions, which leaves no other place for what they collect.
QString& first_warning() {
    static QString warning;
    return warning;
}

constexpr std::array<const char*, 4> harmless{
    "does not support propagateSizeHints",
    "does not support raise",
    "does not support grabbing the keyboard",
    "XDG_RUNTIME_DIR",
};

// A fatal message ends the process, so that it is told at once.
void handle(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    if (type == QtFatalMsg) std::cerr << message.toStdString() << std::endl;
    for (const char* const known : harmless) {
        if (message.contains(QLatin1String(known))) return;
    }
    if (first_warning().isEmpty()) first_warning() = message;
}

}  // namespace

void collect_warnings() { qInstallMessageHandler(handle); }

QString take_warning() { return std::exchange(first_warning(), {}); }

}  // namespace brooklander::desktop
