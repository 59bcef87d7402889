#include "configuration/configuration_file.h"

#include <algorithm>
#include <array>

#include "platform/fatal_failure.h"

namespace brooklander {
namespace {

// Two projects make one value, which no reader takes apart. A second id without a first one has no
// line, though its name has.
std::string project_ids(const Screens& screens) {
    const FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    const std::string& first = options.lblSelectedProject.text();
    const std::string& second = options.lblSelectedProjectTwo.text();
    if (first.empty() && second.empty()) {
        throw FatalFailure(
            "The configuration has no project, so that its file was left unfinished. Choose a "
            "project and save it again.");
    }
    if (first.empty()) return {};
    return second.empty() ? first : first + "/" + second;
}

std::string project_names(const Screens& screens) {
    const FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    const std::string& first = options.lblProjectName.text();
    const std::string& second = options.lblProjectNameTwo.text();
    if (options.lblSelectedProject.empty()) return second;
    return options.lblSelectedProjectTwo.empty() ? first : first + "/" + second;
}

// A field activity has no sample, whatever the screens still hold of one.
enum class Written { always, of_a_sample };

struct ConfigurationKey {
    std::string_view name;

    // Where the readers put the value; the habitat definition has a way of its own.
    Label ConfigurationPanel::*shown;

    // Where the writer takes it from; an empty value is not written. Nobody writes the habitat
    // definition: only a file that was made by hand has one.
    std::string (*source)(const Screens&);

    Written written = Written::always;
};

using View = ConfigurationPanel;

// In the order in which the writer puts them.
constexpr std::array<ConfigurationKey, 17> keys{{
    {"organization", &View::lblOrganization,
     [](const Screens& all) { return all.frmPreferences.lblOrganization.text(); }},
    {"organizationname", &View::lblOrganizationName,
     [](const Screens& all) { return all.frmPreferencesSettings.lblOrganizationName.text(); }},
    {"trip", &View::lblTrip,
     [](const Screens& all) { return all.frmPreferencesSettings.lblTrip.text(); }},
    {"activitytype", &View::lblActivityType,
     [](const Screens& all) { return all.frmPreferences.lblActivityType.text(); }},
    {"activitycategory", &View::lblActivityCategory,
     [](const Screens& all) { return all.frmPreferences.lblActivityCategory.text(); }},
    {"medium", &View::lblMedium,
     [](const Screens& all) { return all.frmPreferences.lblMedium.text(); }},
    {"samplecollectionid", &View::lblSampleCollectionID,
     [](const Screens& all) {
         return all.frmPreferencesSamples.lblSampleCollectionProcedureID.text();
     },
     Written::of_a_sample},
    {"sampletransport", &View::lblSampleTransport,
     [](const Screens& all) { return all.frmPreferencesSampleOption.lblSampleTransportID.text(); },
     Written::of_a_sample},
    {"fieldgearid", &View::lblFieldGearID,
     [](const Screens& all) { return all.frmPreferencesSamples.lblFieldGearIDSelected.text(); },
     Written::of_a_sample},
    // The sample collection keeps the type in the label that is called after the id.
    {"geartype", &View::lblGearType,
     [](const Screens& all) { return all.frmPreferencesSamples.lblFieldGearID.text(); },
     Written::of_a_sample},
    {"gearconfiguration", &View::lblGearConfiguration,
     [](const Screens& all) { return all.frmPreferencesSamples.lblGearConfiguration.text(); },
     Written::of_a_sample},
    {"depthunit", &View::lblDepthUnits,
     [](const Screens& all) { return all.frmPreferencesSampleOption.lblDepthUnits.text(); }},
    {"projectid", &View::lblProjectID, project_ids},
    {"projectname", &View::lblProjectName, project_names},
    {"person", &View::lblPerson,
     [](const Screens& all) { return all.frmPreferencesSampleOption.lblSelectedName.text(); }},
    {"timezone", &View::lblTimeZone,
     [](const Screens& all) { return all.frmPreferencesSettings.lblTimeZone.text(); }},
    {"habitatdefinition", nullptr, nullptr},
}};

constexpr std::string_view trimmed_key = keys.front().name;

const ConfigurationKey* key_of(std::string_view item) {
    const std::string_view name = trim(configuration_key_cut.of(item));
    const auto* const found = std::find_if(
        keys.begin(), keys.end(), [&](const ConfigurationKey& key) { return key.name == name; });
    return found == keys.end() ? nullptr : found;
}

std::string line_of(std::string_view key, std::string_view value) {
    std::string line(key);
    line.resize(configuration_key_width, ' ');
    line += '=';
    line += value;
    line += "\r\n";
    return line;
}

}  // namespace

void clear_values(ConfigurationPanel& panel) {
    panel.lblViewFileName.clear_text();
    panel.lblChar.clear_text();
    for (const ConfigurationKey& key : keys) {
        const bool outlasts =
            key.shown == &View::lblActivityType || key.shown == &View::lblDepthUnits;
        if (key.shown != nullptr && !outlasts) (panel.*key.shown).clear_text();
    }
}

void read_configuration(std::string_view file_text, const ConfigurationTargets& targets,
                        FrmPreferencesCharacteristics& holder) {
    CommaItemReader items(file_text);
    for (std::size_t count = 1; !items.at_end(); ++count) {
        if (count > targets.most_items) {
            throw FatalFailure("The configuration file has more than " +
                               std::to_string(targets.most_items) + " items.");
        }
        const std::string_view item = items.next();
        if (const ConfigurationKey* const key = key_of(item)) {
            std::string_view value = configuration_value_cut.of(item);
            if (key->name == trimmed_key) value = trim(value);
            Label& label = key->shown == nullptr ? holder.lblChar : targets.panel.*key->shown;
            label.set_text(value);
            if (key->shown == &View::lblMedium && targets.medium != nullptr) {
                targets.medium->set_text(value);
            }
        }
        targets.panel.lblChar.set_text(holder.lblChar.text());
    }
}

std::string configuration_name(const FrmPreferences& preferences) {
    const std::string& typed = preferences.txtFileName.text();
    const std::string& selected = preferences.lblSelectedFile.text();
    return typed.empty() && !selected.empty() ? selected : typed + ".txt";
}

void write_configuration(const Screens& screens, OutputFile& file) {
    const bool of_the_field = screens.frmPreferencesSettings.chkField.ticked();
    for (const ConfigurationKey& key : keys) {
        const bool left_out = of_the_field && key.written == Written::of_a_sample;
        if (key.source == nullptr || left_out) continue;
        const std::string value = key.source(screens);
        if (!value.empty()) file.write(line_of(key.name, value));
    }
}

}  // namespace brooklander
