// The menu that is no screen's: what can be done with the work of this run as a whole.
#pragma once

#include <QString>

#include "platform/desktop/screen_window.h"
#include "scenario/recorder.h"

namespace brooklander::desktop {

// Stands at the right end of every window's menu bar, apart from the screen's own menus. It is no
// field: nothing of the program knows of it, and what is done with it is not recorded.
class JobMenu {
  public:
    // The recorder must live as long as windows have the menu.
    explicit JobMenu(const scenario::Recorder& recorder) : recorder_(recorder) {}

    void add_to(ScreenWindow& window) const;

  private:
    // Asks for a file of the machine, and whether to write over one that is there. A failure is
    // told in a dialog.
    void save_as_scenario(QWidget& window) const;

    const scenario::Recorder& recorder_;
};

// Writes a recording, whole or not at all: what stood there before stays where it cannot be
// written. The failure as a sentence; empty when it is written.
QString save_recording(const scenario::Recording& recording, const QString& path);

}  // namespace brooklander::desktop
