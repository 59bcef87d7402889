// Fields by their names, as scenarios write them.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "screens.h"

namespace brooklander::scenario {

// All fields of a program's screens by path (`frmStart.cmdView`), the screens themselves included.
class FieldNames {
  public:
    explicit FieldNames(const Screens& screens);

    // Null when there is no such field.
    Field* find(std::string_view path) const;

  private:
    std::map<std::string, Field*, std::less<>> fields_;
};

// The kind of a field or screen. Throws WrongLine when no screen has a field of that name, saying
// whether it is the screen or the field that is not known.
FieldKind kind_of(std::string_view path);

}  // namespace brooklander::scenario
