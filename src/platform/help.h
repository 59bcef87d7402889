// What the logic asks of the help viewer.
#pragma once

#include <string_view>

namespace brooklander {

class Help {
  public:
    Help() = default;
    Help(const Help&) = delete;
    Help& operator=(const Help&) = delete;
    virtual ~Help() = default;

    // Shows a help file, by its path, at its first topic. A file that is not there is the viewer's
    // matter: it says so, and the program goes on.
    virtual void show(std::string_view path) = 0;
};

}  // namespace brooklander
