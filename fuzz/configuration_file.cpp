// A configuration file of any bytes: no value is longer than its cut, the organization alone is
// trimmed, what is read is read the same way again, and more items than there may be are a failure.

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "configuration/configuration_file.h"
#include "platform/fatal_failure.h"
#include "platform/files/host_files.h"

namespace {

using namespace brooklander;

void want(bool holds) {
    if (!holds) std::abort();
}

std::vector<std::string> values_of(const Screen& screen) {
    std::vector<std::string> values;
    for (const Field* field : screen.fields()) {
        if (field->kind() == FieldKind::label) values.push_back(field->text());
    }
    return values;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    HostFiles files("/nonexistent");
    Screens screens(files);
    FrmConfigurationDisplay& display = screens.frmConfigurationDisplay;
    FrmPreferencesCharacteristics& holder = screens.frmPreferencesCharacteristics;

    read_configuration(text, {.panel = display}, holder);
    const std::vector<std::string> values = values_of(display);
    for (const std::string& value : values) want(value.size() <= configuration_value_cut.length);
    const std::string_view organization = display.lblOrganization.text();
    want(organization == trim(organization));

    std::size_t items = 0;
    for (CommaItemReader reader(text); !reader.at_end(); reader.next()) ++items;
    clear_values(display);
    bool failed = false;
    try {
        read_configuration(text, {.panel = display, .most_items = most_displayed_items}, holder);
    } catch (const FatalFailure&) {
        failed = true;
    }
    want(failed == (items > most_displayed_items));
    if (!failed) want(values_of(display) == values);
    return 0;
}
