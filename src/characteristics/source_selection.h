// The choice of a sample file whose characteristics a configuration takes up.
#pragma once

#include "screens.h"

namespace brooklander {

// Brings the screen up, with no file selected.
void offer_sample_files(FrmCharSource& source);

}  // namespace brooklander
