#include "conversion/run_inputs.h"

#include "shared/text.h"

namespace brooklander {
namespace {

std::optional<int> assigned(const Label& column) {
    if (column.empty()) return std::nullopt;
    return position_in(column.text());
}

std::string trimmed(const Label& label) { return std::string(trim(label.text())); }

}  // namespace

Assignment assignment_of(const FrmImportFileDisplay& display) {
    return {.station = position_in(display.lblStation.text()),
            .date = position_in(display.lblDate.text()),
            .time = assigned(display.lblTime),
            .sample = assigned(display.lblSample),
            .depth = assigned(display.lblDepth),
            .comments = assigned(display.lblComments),
            .person = assigned(display.lblPerson),
            .first_result = position_in(display.lblColumn.text()),
            .first_row = position_in(display.lblRow.text())};
}

ActivityDefaults activity_defaults_of(const Screens& screens) {
    const FrmPreferences& preferences = screens.frmPreferences;
    ActivityDefaults defaults;
    defaults.trip = preferences.lblTrip.text();
    defaults.depth_unit = trimmed(preferences.lblDepthUnits);
    if (preferences.optVox.on()) return defaults;
    defaults.time_zone = trimmed(preferences.lblTimeZone);
    defaults.category = trimmed(preferences.lblActivityCategory);
    defaults.type = trimmed(preferences.lblActivityType);
    defaults.medium = trimmed(screens.frmImportFileDisplay.lblMedium);
    defaults.collection_procedure = trimmed(preferences.lblSampleCollectionID);
    defaults.gear = trimmed(preferences.lblFieldGearID);
    defaults.gear_configuration = trimmed(preferences.lblGearConfiguration);
    defaults.transport = trimmed(preferences.lblSampleTransport);
    defaults.project = trimmed(preferences.lblProjectID);
    return defaults;
}

}  // namespace brooklander
