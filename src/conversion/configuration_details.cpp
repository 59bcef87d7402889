#include "conversion/configuration_details.h"

#include "characteristics/defaults_file.h"
#include "configuration/configuration_file.h"
#include "platform/fatal_failure.h"
#include "shared/workspace.h"

namespace brooklander {
namespace {

void read_files(Screens& screens, const Files& files) {
    FrmConfigurationDisplay& display = screens.frmConfigurationDisplay;
    const std::string& name = display.lblViewFileName.text();
    const FileText values = files.read(std::string(workspace::configurations) + name);
    read_configuration(values.view(), {.panel = display, .most_items = most_displayed_items},
                       screens.frmPreferencesCharacteristics);

    display.MSFlexCharacteristics.set_rows(1);
    const FileText characteristics = files.read(std::string(workspace::characteristics) + name);
    add_defaults_rows(display.MSFlexCharacteristics, characteristics.view(), most_shown_lines);
}

}  // namespace

void cmdDetails_Click(Screens& screens, const Files& files) {
    FrmConfigurationDisplay& display = screens.frmConfigurationDisplay;
    display.show();
    display.set_pointer(Pointer::busy);
    clear_values(display);
    display.lblViewFileName.set_text(screens.frmPreferences.lblSelectedFile.text());
    try {
        read_files(screens, files);
    } catch (const FatalFailure&) {
        // What has been read so far is shown.
    }
    display.set_pointer(Pointer::normal);
    set_defaults_headings(display.MSFlexCharacteristics);
}

}  // namespace brooklander
