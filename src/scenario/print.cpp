#include <nlohmann/json.hpp>

#include "platform/code_page.h"
#include "scenario/arguments.h"
#include "scenario/stage.h"
#include "shared/data_source.h"
#include "shared/place_lists.h"

namespace brooklander::scenario {
namespace {

using enum FieldKind;
using Json = nlohmann::ordered_json;

std::string shown_text(const Field& field) { return to_utf8(told_text(field)); }

void put_entries(Json& json, const EntryList& entries) {
    json["entries"] = Json::array();
    for (const std::string& entry : entries.entries()) json["entries"].push_back(to_utf8(entry));
    json["selected"] = entries.selected() ? Json(*entries.selected()) : Json(nullptr);
}

void put_cells(Json& json, const Grid& table) {
    json["rows"] = Json::array();
    RowCells cells;
    for (int row = 0; row < table.rows(); ++row) {
        table.read_row(row, cells);
        Json line = Json::array();
        for (int column = 0; column < table.columns(); ++column) {
            line.push_back(to_utf8(cells[column]));
        }
        json["rows"].push_back(std::move(line));
    }
    json["columns"] = table.columns();
    json["current"] = {table.current().row, table.current().column};
}

Json described(const Field& field) {
    Json json;
    json["field"] = field.path();
    json["kind"] = name_of(field.kind());
    json["visible"] = field.visible();
    json["enabled"] = field.enabled();
    json["seen"] = field.seen();
    switch (field.kind()) {
        case grid: put_cells(json, static_cast<const Grid&>(field)); break;
        case data_source: json["source"] = to_utf8(field.text()); break;
        case list: put_entries(json, static_cast<const EntryList&>(field)); break;
        case pick_list:
        case drive_list:
        case folder_list:
        case file_list:
            json["text"] = shown_text(field);
            put_entries(json, static_cast<const EntryList&>(field));
            break;
        case tick_box:
            json["text"] = shown_text(field);
            json["value"] = static_cast<const TickBox&>(field).value();
            break;
        case option:
            json["text"] = shown_text(field);
            json["value"] = static_cast<const Option&>(field).value();
            break;
        default: json["text"] = shown_text(field); break;
    }
    return json;
}

}  // namespace

Step print_step(const Arguments& arguments) {
    arguments.want(1);
    const std::string& path = arguments.text(0);
    const bool whole_screen = kind_of(path) == screen;
    return {{}, Works::while_running, false, [path, whole_screen](Stage& stage) {
                const Field& field = stage.field(path);
                if (!whole_screen) {
                    stage.print(described(field).dump());
                    return;
                }
                for (const Field* part : static_cast<const Screen&>(field).fields()) {
                    stage.print(described(*part).dump());
                }
            }};
}

}  // namespace brooklander::scenario
