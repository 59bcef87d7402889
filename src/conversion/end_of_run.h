// What comes after a conversion: another file, or an end.
#pragma once

#include "screens.h"

namespace brooklander {

// Back to the start screen. With "Quit", all that the screens hold of this run is emptied, and the
// logon stays. With "Convert Another File", and with neither, the columns stay chosen, so that the
// next file can use them again.
void cmdConfirm_Click(Screens& screens);

}  // namespace brooklander
