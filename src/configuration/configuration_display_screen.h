// The display of a configuration file during a conversion.
#pragma once

#include "configuration/configuration_panel.h"

namespace brooklander {

// No step shows the panel's question here, since the file is in use already.
struct FrmConfigurationDisplay : Screen, ConfigurationPanel {
    explicit FrmConfigurationDisplay(Desk& desk)
        : Screen(desk, "frmConfigurationDisplay", "Configuration File Display"),
          ConfigurationPanel(*this, shown) {}

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};

    Button cmdReturn{*this, "cmdReturn", "Return =>"};
};

}  // namespace brooklander
