// The choice of a sample file whose characteristics a new configuration takes up.
#pragma once

#include "shared/place_lists.h"

namespace brooklander {

struct FrmCharSource : Screen {
    explicit FrmCharSource(Desk& desk)
        : Screen(desk, "frmCharSource", "Select Characteristics Source") {}

    // The message that the screen needs a file, and its caption with the configuration's name.
    Panel framChar{*this, "framChar", {}, hidden};
    Panel frameFile{*this, "frameFile", "Configuration File:", hidden};
    Label lblFile{frameFile, "lblFile"};

    Panel frameFiles{*this, "frameFiles", "Select File To Import And Convert", hidden};
    Label lblSelectedFile{frameFiles, "lblSelectedFile"};
    Button cmdView{frameFiles, "cmdView", "View File =>", disabled};
};

}  // namespace brooklander
