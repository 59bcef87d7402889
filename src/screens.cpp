#include "screens.h"

namespace brooklander {

Screens::Screens(Files& files) : desk(files) {}

Screens::~Screens() = default;

}  // namespace brooklander
