// The help viewer: a window of the program that shows a help file of the workspace.
#pragma once

#include <memory>

#include "platform/files.h"
#include "platform/help.h"

class QWidget;

namespace brooklander::desktop {

class HelpWindow : public Help {
  public:
    // Reads help files, which are simple HTML in UTF-8, and their pictures from these files.
    explicit HelpWindow(const Files& files);
    ~HelpWindow() override;

    // Shows the file from its top. A file that cannot be read is told in the window, and the
    // program goes on.
    void show(std::string_view path) override;

    // Null before any help was asked for.
    QWidget* window() const;

  private:
    class Viewer;

    const Files& files_;
    std::unique_ptr<Viewer> viewer_;
};

}  // namespace brooklander::desktop
