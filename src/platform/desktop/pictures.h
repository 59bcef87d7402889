// The program's own pictures: the water behind its cards, and its icon.
#pragma once

#include <QIcon>
#include <QPixmap>

#include "platform/desktop/colours.h"

namespace brooklander::desktop {

// A piece of water that continues itself on all four sides, for a display of so many pixels to one.
QPixmap water(const Colours& colours, qreal pixels_to_one);

QIcon program_icon();

}  // namespace brooklander::desktop
