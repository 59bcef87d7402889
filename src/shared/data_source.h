// Data sources: where a screen's grids take rows of the database from.
#pragma once

#include <optional>
#include <string_view>

#include "platform/database.h"
#include "shared/bound_columns.h"
#include "shared/grid.h"

namespace brooklander {

// Holds what a screen gives for a query; refreshing it runs the statement and fills the grid or the
// pick list that is bound to it. Its text is the record source.
class DataSource : public PlacedField {
  public:
    DataSource(Field& container, std::string_view name)
        : PlacedField(FieldKind::data_source, container, name, {}, hidden) {}

    // Binds a grid, which then shows the statement's columns as `columns` says.
    void bind(Grid& grid, BoundColumns columns = {});

    // Binds a pick list, whose entries then are the texts of one column of the statement, counted
    // from 0.
    void bind(PickList& pick_list, int column);

    // The same; and the list's own text follows another column: after a refresh it is what that
    // column of the first row says, if an entry says exactly that, and empty otherwise.
    void bind(PickList& pick_list, int column, int followed_column);

    // The four values, in the order in which screens give them.
    void connect(std::string_view connection, std::string_view user, std::string_view password);
    void set_record_source(std::string_view statement) { set_text(statement); }
    const std::string& record_source() const { return text(); }

    // Runs the statement and fills what is bound. A column that the answer lacks is empty. A
    // FatalFailure when the statement fails.
    void refresh(Database& database);

  private:
    void fill_grid(const QueryResult& result);
    void fill_pick_list(const QueryResult& result);

    Query query_;
    Grid* grid_ = nullptr;
    BoundColumns columns_;
    PickList* pick_list_ = nullptr;
    int pick_column_ = 0;
    std::optional<int> followed_column_;
};

}  // namespace brooklander
