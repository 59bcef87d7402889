#include "shared/data_source.h"

#include <algorithm>
#include <utility>

namespace brooklander {
namespace {

// The statement's columns in the order in which the grid has them.
std::vector<int> column_order(const BoundColumns& bound, std::size_t columns) {
    const auto* const listed_end = bound.positions.begin() + bound.count;
    std::vector<int> order(bound.positions.begin(), listed_end);
    for (int position = 0; position < static_cast<int>(columns); ++position) {
        if (std::find(order.begin(), order.end(), position) == order.end()) {
            order.push_back(position);
        }
    }
    return order;
}

std::string value_at(const std::vector<std::string>& values, int position) {
    const auto index = static_cast<std::size_t>(position);
    return index < values.size() ? values[index] : std::string();
}

}  // namespace

void DataSource::bind(Grid& grid, BoundColumns columns) {
    grid_ = &grid;
    columns_ = columns;
}

void DataSource::connect(std::string_view connection, std::string_view user,
                         std::string_view password) {
    query_.connection = connection;
    query_.user = user;
    query_.password = password;
    changed();
}

void DataSource::refresh(Database& database) {
    query_.statement = record_source();
    const QueryResult result = database.run(query_);
    if (grid_ != nullptr) fill_grid(result);
    if (pick_list_ != nullptr) fill_pick_list(result);
}

void DataSource::bind(PickList& pick_list, int column) {
    pick_list_ = &pick_list;
    pick_column_ = column;
}

void DataSource::bind(PickList& pick_list, int column, int followed_column) {
    bind(pick_list, column);
    followed_column_ = followed_column;
}

void DataSource::fill_pick_list(const QueryResult& result) {
    std::vector<std::string> entries;
    entries.reserve(result.rows.size());
    for (const auto& values : result.rows) entries.push_back(value_at(values, pick_column_));
    pick_list_->set_entries(std::move(entries));
    if (!followed_column_) return;
    const std::string followed =
        result.rows.empty() ? std::string() : value_at(result.rows.front(), *followed_column_);
    pick_list_->set_text(pick_list_->find(followed) ? followed : std::string());
}

void DataSource::fill_grid(const QueryResult& result) {
    const std::vector<int> order = column_order(columns_, result.columns.size());
    const int heading = columns_.with_heading ? 1 : 0;
    const auto data_rows = static_cast<int>(result.rows.size());
    const int blank_rows = columns_.with_heading && data_rows == 0 ? 1 : 0;

    grid_->set_rows(0);
    grid_->set_columns(static_cast<int>(order.size()));
    grid_->set_rows(heading + data_rows + blank_rows);
    grid_->set_fixed_rows(heading);
    const auto fill_row = [&](int row, const std::vector<std::string>& values) {
        RowCells cells;
        grid_->read_row(row, cells);
        std::vector<std::string> ordered;
        ordered.reserve(order.size());
        for (const int position : order) ordered.push_back(value_at(values, position));
        for (int column = 0; column < grid_->columns(); ++column) {
            cells.set(column, ordered[static_cast<std::size_t>(column)]);
        }
        grid_->write_row(row, cells);
    };
    if (heading == 1) fill_row(0, result.columns);
    for (int row = 0; row < data_rows; ++row) {
        fill_row(heading + row, result.rows[static_cast<std::size_t>(row)]);
    }
    if (columns_.count > 0) {
        for (auto column = static_cast<int>(columns_.count); column < grid_->columns(); ++column) {
            grid_->set_column_width(column, 0);
        }
    }
    grid_->refreshed();
    if (grid_->rows() > heading) grid_->make_current({heading, 0});
}

}  // namespace brooklander
