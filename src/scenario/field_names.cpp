#include "scenario/field_names.h"

#include "platform/files/host_files.h"
#include "scenario/scenario_error.h"
#include "scenario/words.h"

namespace brooklander::scenario {
namespace {

// The names are those of any program's screens, shown or not.
struct Catalogue {
    HostFiles files{"/"};
    Screens screens{files};
    FieldNames names{screens};
};

}  // namespace

FieldNames::FieldNames(const Screens& screens) {
    for (Screen* screen : screens.desk.screens()) {
        fields_.emplace(screen->path(), screen);
        for (Field* field : screen->fields()) fields_.emplace(field->path(), field);
    }
}

Field* FieldNames::find(std::string_view path) const {
    const auto found = fields_.find(path);
    return found == fields_.end() ? nullptr : found->second;
}

FieldKind kind_of(std::string_view path) {
    static const Catalogue catalogue;
    if (const Field* field = catalogue.names.find(path)) return field->kind();
    const std::string_view screen = path.substr(0, path.find('.'));
    if (catalogue.names.find(screen) == nullptr) {
        throw WrongLine("There is no screen " + in_quotes(screen) + ".");
    }
    throw WrongLine("The screen " + std::string(screen) + " has no field " +
                    in_quotes(path.substr(screen.size() + 1)) + ".");
}

}  // namespace brooklander::scenario
