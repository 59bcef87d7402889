#include "characteristics/detail_choices.h"

#include <algorithm>

#include "characteristics/defaults_layout.h"
#include "shared/grid_typing.h"
#include "shared/text.h"

namespace brooklander {
namespace {

// The texts that a choice can take its value from, as a table can hold them.
template <auto field>
const Field& of(const Details& details) {
    return details.*field;
}

constexpr int procedure_source_column = 1;
constexpr int procedure_column = 2;
constexpr int unit_column = 3;
constexpr int limit_unit_column = 12;

constexpr std::string_view no_weight = "None";

}  // namespace

const std::array<DetailChoice, 9> detail_choices{{
    {.box = &Details::chkProc,
     .panel = &Details::frameProc,
     .column = procedure_column,
     .tested = of<&Details::lblProc>,
     .value = of<&Details::lblProc>,
     .companion = {procedure_source_column, &Details::lblSource},
     .for_all = &Details::cmdProcAll,
     .value_for_all = of<&Details::lblProc>},
    {.box = &Details::chkUOM,
     .panel = &Details::frameUOM,
     .column = unit_column,
     .tested = of<&Details::lblUom>,
     .value = of<&Details::lblUom>,
     .companion = {limit_unit_column, &Details::lblUom},
     .for_all = &Details::cmdUOMAll,
     .value_for_all = of<&Details::lblUom>},
    {.box = &Details::chkFraction,
     .panel = &Details::frameOther,
     .column = 4,
     .tested = of<&Details::cmbFraction>,
     .value = of<&Details::cmbFraction>,
     .for_all = &Details::cmdFractionAll,
     .value_for_all = of<&Details::cmbFraction>},
    {.box = &Details::chkValue,
     .panel = &Details::frameValueType,
     .column = 5,
     .tested = of<&Details::lblValue>,
     .value = of<&Details::lblValue>,
     .for_all = &Details::cmdValueYes,
     .value_for_all = of<&Details::lblValue>,
     .preset = &Details::lblValue,
     .preset_text = "Actual"},
    {.box = &Details::chkWeight,
     .panel = &Details::frameWeight,
     .column = 7,
     .tested = of<&Details::lblWeight>,
     .value = of<&Details::lblWeight>,
     .for_all = &Details::cmdWeightYes,
     .value_for_all = of<&Details::lblWeight>,
     .preset = &Details::lblWeight,
     .preset_text = no_weight},
    {.box = &Details::chkTemperature,
     .panel = &Details::frameTemperature,
     .column = 8,
     .tested = of<&Details::lblTemperature>,
     .value = of<&Details::cmbTemperature>,
     .for_all = &Details::cmdTemperatureYes,
     .value_for_all = of<&Details::lblTemperature>},
    {.box = &Details::chkStat,
     .panel = &Details::frameStatistic,
     .column = 6,
     .tested = of<&Details::lblStatistic>,
     .value = of<&Details::cmbStatistic>,
     .for_all = &Details::cmdStatYes,
     .value_for_all = of<&Details::lblStatistic>},
    {.box = &Details::chkDuration,
     .panel = &Details::frameDuration,
     .column = 9,
     .tested = of<&Details::lblDuration>,
     .value = of<&Details::cmbDuration>,
     .for_all = &Details::cmdDurationYes,
     .value_for_all = of<&Details::lblDuration>},
    {.box = &Details::chkLab,
     .panel = &Details::frameLab,
     .column = 10,
     .tested = of<&Details::lblLab>,
     .value = of<&Details::cmbLab>,
     .for_all = &Details::cmdLab,
     .value_for_all = of<&Details::cmbLab>},
}};

namespace {

bool any_box_on(const Details& details) {
    return std::any_of(detail_choices.begin(), detail_choices.end(),
                       [&](const DetailChoice& choice) { return (details.*choice.box).ticked(); });
}

void put(Grid& grid, int row, const DetailChoice& choice, const Details& details,
         std::string_view value) {
    grid.set_cell(row, choice.column, value);
    if (choice.companion.value == nullptr) return;
    grid.set_cell(row, choice.companion.column, trim((details.*choice.companion.value).text()));
}

void empty_cell(Grid& grid) {
    const GridCell cell = grid.current();
    grid.set_cell(cell.row, cell.column, {});
    if (cell.column != procedure_column) return;
    grid.make_current({cell.row, procedure_source_column});
    grid.set_cell(cell.row, procedure_source_column, {});
}

void go_down(Grid& grid) {
    const GridCell cell = grid.current();
    if (cell.column == 0 || cell.row + 1 >= grid.rows()) return;
    grid.set_highlight(Highlight::never);
    grid.make_current({cell.row + 1, cell.column});
    grid.set_highlight(Highlight::always);
}

}  // namespace

void hide_choices(Details& details) {
    details.frameProcedure.hide();
    for (const DetailChoice& choice : detail_choices) (details.*choice.panel).hide();
}

void detail_box_Click(Details& details, const DetailChoice& choice) {
    if ((details.*choice.box).ticked()) {
        for (const DetailChoice& other : detail_choices) {
            if (other.box != choice.box) (details.*other.box).set_ticked(false);
        }
        hide_choices(details);
        (details.*choice.panel).show();
        if (choice.preset != nullptr) {
            (details.*choice.preset).set_text(choice.preset_text);
            (details.*choice.for_all).enable();
        }
    }
    if (!any_box_on(details)) hide_choices(details);
}

void MSFlexDetails_Click(Details& details) {
    Grid& grid = details.MSFlexDetails;
    const GridCell clicked = grid.current();
    for (const DetailChoice& choice : detail_choices) {
        const bool passes = (details.*choice.box).ticked() && !choice.tested(details).empty() &&
                            clicked.column == choice.column;
        if (!passes) continue;
        put(grid, clicked.row, choice, details, trim(choice.value(details).text()));
        grid.set_highlight(Highlight::with_focus);
    }
}

void apply_to_all(Details& details, const DetailChoice& choice) {
    std::string value(trim(choice.value_for_all(details).text()));
    if (choice.box == &Details::chkWeight && value == no_weight) value.clear();
    Grid& grid = details.MSFlexDetails;
    for (int row = 1; row < grid.rows(); ++row) put(grid, row, choice, details, value);
}

bool type_into_details(Details& details, Key key) {
    Grid& grid = details.MSFlexDetails;
    if (grid.current().row < grid.fixed_rows()) return false;
    if (key.name == Key::Name::erase) {
        empty_cell(grid);
        return true;
    }
    if (key.name == Key::Name::enter) {
        go_down(grid);
        return true;
    }
    return type_into_current_cell(grid, key);
}

}  // namespace brooklander
