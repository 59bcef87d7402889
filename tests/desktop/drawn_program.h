// A program on a folder of its own, with its windows as a user has them.
#pragma once

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <algorithm>
#include <functional>
#include <map>
#include <string>

#include "platform/desktop/job_menu.h"
#include "platform/desktop/layouts.h"
#include "platform/desktop/warnings.h"
#include "platform/desktop/windows.h"
#include "support/test_program.h"

namespace brooklander::test {

struct DrawnProgram : TestProgram {
    DrawnProgram() {
        windows.on_failure = [this](const QString& sentence) { failure = sentence.toStdString(); };
        windows.on_end = [this] { has_ended = true; };
        windows.on_new_window = [this](desktop::ScreenWindow& window) { job.add_to(window); };
    }

    // Does it as a step of the program, and lets the windows come to rest.
    void act(const std::function<void()>& step) {
        windows.act(step);
        rest();
    }

    static void rest() {
        QApplication::processEvents();
        QApplication::processEvents();
    }

    void log_on() {
        act([this] {
            start_screen().txtOracleID.type("jdoe");
            start_screen().txtOraclePassWord.type("secret");
            start_screen().cmdUIDok.press();
        });
    }

    // Whether the foremost window says a sentence.
    bool says(const char* sentence) {
        const QList<QLabel*> labels = windows.foremost()->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [sentence](const QLabel* label) {
            return label->isVisible() && label->text() == QLatin1String(sentence);
        });
    }

    template <typename Widget = QWidget>
    Widget* widget(const Field& field) {
        return dynamic_cast<Widget*>(windows.view_of(field)->widget());
    }

    desktop::ScreenWindow& start_window() { return *windows.window_of(start_screen()); }

    scenario::Recorder recorder{program.screens()};
    desktop::JobMenu job{recorder};
    desktop::Windows windows{program.screens(), desktop::lay_out};
    std::string failure;
    bool has_ended = false;
};

// How a user comes to states of the windows, from the start, by the states' names.
using Roads = std::map<std::string, std::function<void(DrawnProgram&)>>;

}  // namespace brooklander::test
