#include "configuration/activity_boxes.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace brooklander {
namespace {

// A short list that a table can hold.
template <typename Item, std::size_t most>
class UpTo {
  public:
    constexpr UpTo() = default;
    constexpr UpTo(std::initializer_list<Item> items) {
        for (const Item& item : items) items_.at(count_++) = item;
    }
    constexpr const Item* begin() const { return items_.data(); }
    constexpr const Item* end() const { return items_.data() + count_; }

  private:
    std::array<Item, most> items_{};
    std::size_t count_ = 0;
};

using Settings = FrmPreferencesSettings;
using Boxes = UpTo<ActivityBox, 6>;
using Caption = Label FrmPreferences::*;
using SettingsPanel = Panel Settings::*;

struct CaptionText {
    Caption caption = nullptr;
    std::string_view text;
};

enum class Continue { unchanged, enabled, disabled };

constexpr Boxes types{&Settings::chkSample, &Settings::chkField};
constexpr Boxes categories{&Settings::chkRoutine, &Settings::chkHabitat};
constexpr Boxes media{&Settings::chkWater, &Settings::chkAir, &Settings::chkSediment,
                      &Settings::chkSoil, &Settings::chkBiological};

constexpr Caption type = &FrmPreferences::lblActivityType;
constexpr Caption category = &FrmPreferences::lblActivityCategory;
constexpr Caption medium = &FrmPreferences::lblMedium;

constexpr SettingsPanel category_panel = &Settings::frameActivityCategory;
constexpr SettingsPanel medium_panel = &Settings::frameMedium;
constexpr SettingsPanel time_zone_panel = &Settings::frameTimeZone;

// What a tick does, in this order.
struct TickRule {
    ActivityBox box;
    Boxes switched_off;  // but for the box itself
    UpTo<CaptionText, 2> captions;
    SettingsPanel shown;
    SettingsPanel hidden;
    Continue continues;
};

// Water leaves the button that goes on to the list of time zones, of which one must be clicked.
constexpr std::array<TickRule, activity_boxes.size()> tick_rules{{
    {&Settings::chkSample,
     {&Settings::chkField, &Settings::chkHabitat, &Settings::chkRoutine, &Settings::chkWater,
      &Settings::chkAir, &Settings::chkSediment},
     {{type, "Sample"}, {category, "Routine Sample"}},
     medium_panel,
     category_panel,
     Continue::unchanged},
    {&Settings::chkField,
     {&Settings::chkSample, &Settings::chkWater, &Settings::chkAir, &Settings::chkSediment},
     {{type, "Field Msr/Obs"}, {category, ""}},
     category_panel,
     medium_panel,
     Continue::unchanged},
    {&Settings::chkRoutine,
     {&Settings::chkHabitat},
     {{category, "Routine Msr/Obs"}},
     medium_panel,
     nullptr,
     Continue::unchanged},
    {&Settings::chkHabitat,
     {&Settings::chkRoutine, &Settings::chkWater, &Settings::chkAir, &Settings::chkSediment},
     {{category, "Routine Habitat Assessment"}},
     nullptr,
     medium_panel,
     Continue::enabled},
    {&Settings::chkWater,
     media,
     {{medium, "Water"}},
     time_zone_panel,
     nullptr,
     Continue::unchanged},
    {&Settings::chkAir, media, {{medium, "Air"}}, nullptr, nullptr, Continue::enabled},
    {&Settings::chkSediment, media, {{medium, "Sediment"}}, nullptr, nullptr, Continue::enabled},
    {&Settings::chkSoil, media, {{medium, "Soil"}}, nullptr, nullptr, Continue::enabled},
    {&Settings::chkBiological,
     media,
     {{medium, "Biological"}},
     nullptr,
     nullptr,
     Continue::enabled},
}};

// What follows in the box's handler, ticked or not, when all boxes of its kind are off.
struct UntickRule {
    ActivityBox box;
    Boxes all_off;
    UpTo<Caption, 2> blanked;
    UpTo<SettingsPanel, 2> hidden;
    Continue continues;
};

constexpr std::array<UntickRule, activity_boxes.size()> untick_rules{{
    {&Settings::chkSample,
     types,
     {type, category},
     {category_panel, medium_panel},
     Continue::disabled},
    {&Settings::chkField,
     types,
     {type, category},
     {category_panel, medium_panel},
     Continue::unchanged},
    {&Settings::chkRoutine, categories, {category}, {medium_panel}, Continue::unchanged},
    {&Settings::chkHabitat, categories, {category}, {medium_panel}, Continue::disabled},
    {&Settings::chkWater, media, {medium}, {time_zone_panel}, Continue::disabled},
    {&Settings::chkAir, media, {medium}, {}, Continue::disabled},
    {&Settings::chkSediment, media, {medium}, {}, Continue::disabled},
    {&Settings::chkSoil, media, {medium}, {}, Continue::disabled},
    {&Settings::chkBiological, media, {medium}, {}, Continue::disabled},
}};

template <typename Rules>
const auto& rule_for(ActivityBox box, const Rules& rules) {
    return *std::find_if(rules.begin(), rules.end(),
                         [&](const auto& rule) { return rule.box == box; });
}

bool any_ticked(const Settings& settings, const Boxes& boxes) {
    return std::any_of(boxes.begin(), boxes.end(),
                       [&](ActivityBox box) { return (settings.*box).ticked(); });
}

void set_continue(Settings& settings, Continue continues) {
    if (continues == Continue::unchanged) return;
    settings.cmdSave.set_enabled(continues == Continue::enabled);
}

void tick(Screens& screens, const TickRule& rule) {
    Settings& settings = screens.frmPreferencesSettings;
    for (const ActivityBox other : rule.switched_off) {
        if (other != rule.box) (settings.*other).set_ticked(false);
    }
    for (const auto& [caption, text] : rule.captions) {
        (screens.frmPreferences.*caption).set_text(text);
    }
    if (rule.hidden != nullptr) (settings.*rule.hidden).hide();
    if (rule.shown != nullptr) (settings.*rule.shown).show();
    set_continue(settings, rule.continues);
}

void untick(Screens& screens, const UntickRule& rule) {
    Settings& settings = screens.frmPreferencesSettings;
    if (any_ticked(settings, rule.all_off)) return;
    for (const Caption caption : rule.blanked) (screens.frmPreferences.*caption).clear_text();
    for (const SettingsPanel panel : rule.hidden) (settings.*panel).hide();
    set_continue(settings, rule.continues);
}

}  // namespace

void activity_box_Click(Screens& screens, ActivityBox box) {
    Settings& settings = screens.frmPreferencesSettings;
    if ((settings.*box).ticked()) tick(screens, rule_for(box, tick_rules));
    untick(screens, rule_for(box, untick_rules));

    const bool sampled_medium =
        settings.chkWater.ticked() || settings.chkAir.ticked() || settings.chkSediment.ticked();
    if (box == &Settings::chkSample && settings.chkSample.ticked() && sampled_medium) {
        settings.cmdSave.enable();
    }
}

}  // namespace brooklander
