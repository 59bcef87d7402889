#include "scenario/arguments.h"

#include <algorithm>

#include "scenario/field_names.h"
#include "scenario/scenario_error.h"
#include "scenario/words.h"
#include "shared/fields.h"

namespace brooklander::scenario {

void Arguments::fail() const { throw WrongLine("The command is written: " + usage_ + "."); }

int Arguments::number(std::size_t index, std::string_view of_what) const {
    return number_in(text(index), of_what);
}

std::string Arguments::field(std::size_t index, std::initializer_list<FieldKind> kinds) const {
    const std::string& path = text(index);
    const FieldKind kind = kind_of(path);
    const bool suits = kinds.size() == 0
                           ? kind != FieldKind::screen
                           : std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
    if (!suits) {
        throw WrongLine(path + " is of the kind " + std::string(name_of(kind)) +
                        ", of which that cannot be said or done.");
    }
    return path;
}

std::string told_text(const Field& field) {
    const bool masked =
        field.kind() == FieldKind::text_box && static_cast<const TextBox&>(field).masked();
    return masked ? std::string(field.text().size(), '*') : field.text();
}

}  // namespace brooklander::scenario
