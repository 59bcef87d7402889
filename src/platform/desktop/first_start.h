// The step before the first window of an installed program: a script lays the workspace and the
// data source down for a user who has none. It is run at every start, since only it knows what is
// missing, and a user may have removed something.
#pragma once

#include <QString>
#include <QWidget>
#include <chrono>

namespace brooklander::desktop {

// The script of the installation that the running program belongs to. There is none beside a
// program that has only been built.
QString first_start_script();

// Runs the script and waits for its end, as long as there is patience. Empty when it has done its
// work, and when there is no such file; otherwise sentences for a person that say why it could not.
QString run_first_start(const QString& script,
                        std::chrono::milliseconds patience = std::chrono::seconds(30));

// Tells such sentences over a window, and does not wait for the user: the program goes on, for
// those who need nothing of what is missing.
void tell_first_start(const QString& sentences, QWidget& window);

}  // namespace brooklander::desktop
