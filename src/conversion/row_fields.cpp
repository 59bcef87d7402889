#include "conversion/row_fields.h"

#include <initializer_list>

#include "shared/text.h"

namespace brooklander {
namespace {

constexpr std::size_t short_time = 3;

// The fields, each with a delimiter behind it.
std::string delimited(std::initializer_list<std::string_view> fields) {
    std::string text;
    for (const std::string_view field : fields) text.append(field).push_back('~');
    return text;
}

}  // namespace

RowFields::RowFields(const Assignment& assignment, const ActivityDefaults& defaults,
                     std::string_view filler)
    : assignment_(assignment),
      depth_end_(assignment.depth ? "~" + defaults.depth_unit + "~" : "~~"),
      filler_(std::string(trim(filler)) + "-"),
      delimiter_("~"),
      up_to_station_(delimited({defaults.trip})),
      station_to_date_("~~"),  // the visit's number between them is always empty
      time_to_id_("~" + delimited({defaults.time_zone})),
      comments_to_depth_("~" + delimited({defaults.category})),
      depth_to_person_(delimited({defaults.type, defaults.medium, defaults.collection_procedure,
                                  defaults.gear, defaults.gear_configuration, defaults.transport})),
      behind_person_("~" + delimited({defaults.project})) {}

const BlockText& RowFields::read(RowCells& cells, int activitySequence, bool& changed) {
    FromRow row;
    row.stationByRow = cells[assignment_.station];
    row.dateByRow = cells[assignment_.date];
    row.timeByRow = repaired_time(cells, changed);
    row.activityIdByRow = activity_id(cells, activitySequence, changed);
    row.depthByRow = depth(cells);
    if (assignment_.comments) row.commentsByRow = trim(cells[*assignment_.comments]);
    if (assignment_.person) row.personByRow = trim(cells[*assignment_.person]);
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

std::string_view RowFields::activity_id(RowCells& cells, int activitySequence, bool& changed) {
    const int filled = filled_column();
    const bool fills = filled >= 0 && cells[filled].empty();
    if (fills || !assignment_.sample) {
        generated_id_.assign(filler_ + std::to_string(activitySequence));
    }
    if (fills) {
        cells.set(filled, generated_id_.view());
        changed = true;
    }
    if (!assignment_.sample) return generated_id_.view();
    return trim(cells[*assignment_.sample]);
}

// The blanks at the ends of the whole are taken off, those between the depth and its unit are not.
std::string_view RowFields::depth(const RowCells& cells) {
    depth_.clear();
    if (assignment_.depth) depth_.append_readable(cells[*assignment_.depth]);
    depth_.append_readable(depth_end_.view());
    return trim(depth_.view());
}

// The depth carries its own delimiters.
const BlockText& RowFields::piece_of(const FromRow& row) {
    piece_.clear();
    for (const std::string_view part :
         {up_to_station_.view(), row.stationByRow, station_to_date_.view(), row.dateByRow,
          delimiter_.view(), row.timeByRow, time_to_id_.view(), row.activityIdByRow,
          delimiter_.view(), row.commentsByRow, comments_to_depth_.view(), row.depthByRow,
          depth_to_person_.view(), row.personByRow, behind_person_.view()}) {
        piece_.append_readable(part);
    }
    return piece_;
}

}  // namespace brooklander
