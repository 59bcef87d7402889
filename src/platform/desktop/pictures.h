// The program's own pictures: the water behind its cards, and its icon.
#pragma once

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <array>

#include "platform/desktop/colours.h"

namespace brooklander::desktop {

// A piece of water that continues itself on all four sides, for a display of so many pixels to one.
QPixmap water(const Colours& colours, qreal pixels_to_one);

// The sizes of the icon that there are, in pixels; desktops take the nearest.
inline constexpr std::array icon_sizes{16, 22, 24, 32, 48, 64, 128, 256};

// The icon in one size. It can be painted without an application, too.
QImage icon_picture(int size);

QIcon program_icon();

}  // namespace brooklander::desktop
