// The fields of a line that a row shares among its results.
#pragma once

#include <string>
#include <string_view>

#include "conversion/line_writer.h"
#include "conversion/run_inputs.h"
#include "shared/grid.h"

namespace brooklander {

class RowFields {
  public:
    // `filler` is what generated activity ids begin with. The assignment must outlive the object.
    RowFields(const Assignment& assignment, const ActivityDefaults& defaults,
              std::string_view filler);

    // Reads a data row and returns the piece of its lines up to the characteristic's name. A time
    // of three characters is repaired and a blank activity id filled in the cells; `changed` then
    // becomes true. The texts put into the cells live until the next call.
    //
    // `activitySequence` is the row's number among the data rows, counted from 1, and the number of
    // a generated id, whether or not a row before it needed one.
    const BlockText& read(RowCells& cells, int activitySequence, bool& changed);

    // The piece for rows above the first data row: all that comes from a row is empty, and so is
    // what otherwise stands for a depth that is not given, so that their lines are two tildes
    // short.
    const BlockText& none();

    // The columns in which read() makes changes, -1 where it makes none.
    int repaired_column() const { return assignment_.time.value_or(-1); }
    int filled_column() const;

  private:
    struct FromRow {
        std::string_view stationByRow;
        std::string_view dateByRow;
        std::string_view timeByRow;
        std::string_view activityIdByRow;
        std::string_view depthByRow;  // with its unit and the tilde behind each
        std::string_view commentsByRow;
        std::string_view personByRow;
    };

    std::string_view repaired_time(RowCells& cells, bool& changed);
    std::string_view activity_id(RowCells& cells, int activitySequence, bool& changed);
    std::string_view depth(const RowCells& cells);
    const BlockText& piece_of(const FromRow& row);

    const Assignment& assignment_;
    BlockText depth_end_;
    std::string filler_;

    // What stands in every piece between the fields that come from the row.
    BlockText delimiter_;
    BlockText up_to_station_;
    BlockText station_to_date_;
    BlockText time_to_id_;
    BlockText comments_to_depth_;
    BlockText depth_to_person_;
    BlockText behind_person_;

    BlockText time_;
    BlockText generated_id_;
    BlockText depth_;
    BlockText piece_;
};

}  // namespace brooklander
