// What both programs with windows set up before their first window.
#pragma once

#include <QApplication>
#include <memory>

namespace brooklander::desktop {

// Makes the application, dressed. `argc` and `argv` must live as long as it.
std::unique_ptr<QApplication> make_application(int& argc, char** argv);

// Whether there is a display to show windows on.
bool has_display();

}  // namespace brooklander::desktop
