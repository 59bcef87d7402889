// The program: its screens, with every handler in its place.
#pragma once

#include "platform/platform.h"
#include "screens.h"

namespace brooklander {

class Program {
  public:
    explicit Program(Platform platform);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Brings the start screen up. A FatalFailure when the workspace is not there.
    void start();

    // Whether the program has ended by its own exit. After that, and after a FatalFailure out of
    // any step, nothing more may be done with it.
    bool ended() const { return screens_.ended; }

    Screens& screens() { return screens_; }

  private:
    Platform platform_;
    Screens screens_;
};

}  // namespace brooklander
