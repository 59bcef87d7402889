// What a configuration file holds, drawn on a card for the two screens that show it.
#pragma once

#include <QString>

#include "platform/desktop/draw.h"
#include "screens.h"

namespace brooklander::desktop {

// The values as a form of two columns, and the characteristics as a table that takes the room that
// is left. One of the screens has no caption for the projects' names.
Card* configuration_card(ConfigurationPanel& panel, const QString& project_name_caption,
                         Draw& draw);

// The question whether to use the file, for the foot of that card.
Card* use_card(ConfigurationPanel& panel, Draw& draw);

}  // namespace brooklander::desktop
