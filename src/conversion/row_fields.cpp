#include "conversion/row_fields.h"

#include <initializer_list>

#include "shared/text.h"

namespace brooklander {
namespace {

constexpr char delimiter = '~';
constexpr std::string_view no_depth = "~~";
constexpr std::size_t short_time = 3;

}  // namespace

RowFields::RowFields(const Assignment& assignment, const ActivityDefaults& defaults,
                     std::string_view filler)
    : assignment_(assignment), defaults_(defaults), filler_(std::string(trim(filler)) + "-") {}

const BlockText& RowFields::read(RowCells& cells, int number, bool& changed) {
    FromRow row;
    row.station = cells[assignment_.station];
    row.date = cells[assignment_.date];
    row.time = repaired_time(cells, changed);
    row.activity_id = activity_id(cells, number, changed);
    row.depth = depth(cells);
    if (assignment_.comments) row.comments = trim(cells[*assignment_.comments]);
    if (assignment_.person) row.person = trim(cells[*assignment_.person]);
    return piece_of(row);
}

const BlockText& RowFields::none() { return piece_of({}); }

// Three characters as they stand, blanks counted, are the only case that is repaired.
std::string_view RowFields::repaired_time(RowCells& cells, bool& changed) {
    if (!assignment_.time) return {};
    const std::string_view time = cells[*assignment_.time];
    if (time.size() != short_time) return time;
    std::string repaired{'0'};
    repaired += time;
    time_.assign(std::move(repaired));
    cells.set(*assignment_.time, time_.view());
    changed = true;
    return time_.view();
}

// The column whose blank cells are filled: that of the ids. Without one the place of the cell read
// last is compared with 0, so that a blank time, or date, in the first column is filled instead.
int RowFields::filled_column() const {
    if (assignment_.sample) return *assignment_.sample;
    return assignment_.time.value_or(assignment_.date) == 0 ? 0 : -1;
}

std::string_view RowFields::activity_id(RowCells& cells, int number, bool& changed) {
    const int filled = filled_column();
    const bool fills = filled >= 0 && cells[filled].empty();
    if (fills || !assignment_.sample) {
        generated_id_.assign(filler_ + std::to_string(number));
    }
    if (fills) {
        cells.set(filled, generated_id_.view());
        changed = true;
    }
    if (!assignment_.sample) return generated_id_.view();
    return trim(cells[*assignment_.sample]);
}

std::string_view RowFields::depth(const RowCells& cells) {
    if (!assignment_.depth) return no_depth;
    depth_ = cells[*assignment_.depth];
    depth_ += delimiter;
    depth_ += defaults_.depth_unit;
    depth_ += delimiter;
    return trim(depth_);
}

int RowFields::last_column_read() const {
    if (assignment_.person) return *assignment_.person;
    if (assignment_.comments) return *assignment_.comments;
    if (assignment_.depth) return *assignment_.depth;
    if (assignment_.sample) return *assignment_.sample;
    return assignment_.time.value_or(assignment_.date);
}

const BlockText& RowFields::piece_of(const FromRow& row) {
    std::string piece;
    const auto put = [&piece](std::initializer_list<std::string_view> fields) {
        for (const std::string_view field : fields) {
            piece += field;
            piece += delimiter;
        }
    };
    constexpr std::string_view visit_number;
    put({defaults_.trip, row.station, visit_number, row.date, row.time, defaults_.time_zone,
         row.activity_id, row.comments, defaults_.category});
    piece += row.depth;  // carries its own delimiters
    put({defaults_.type, defaults_.medium, defaults_.collection_procedure, defaults_.gear,
         defaults_.gear_configuration, defaults_.transport, row.person, defaults_.project});
    piece_.assign(std::move(piece));
    return piece_;
}

}  // namespace brooklander
