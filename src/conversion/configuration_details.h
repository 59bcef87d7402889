// A look, during a conversion, at what the chosen configuration puts into the load file.
#pragma once

#include "platform/files.h"
#include "screens.h"

namespace brooklander {

// Shows the display of the configuration and fills it from its two files; changes neither of them,
// and nothing of the conversion. Without a file of characteristics the table has its headings
// alone. A configuration file that cannot be read leaves the values empty, and the table as an
// earlier look has left it.
void cmdDetails_Click(Screens& screens, const Files& files);

}  // namespace brooklander
