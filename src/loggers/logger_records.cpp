#include "loggers/logger_records.h"

#include <algorithm>
#include <deque>
#include <string>
#include <utility>

#include "shared/text.h"
#include "shared/text_reading.h"

namespace brooklander {
namespace {

constexpr int date_column = 0;
constexpr int time_column = 1;
constexpr std::string_view no_time = "000000";

constexpr std::size_t short_date = 5;
constexpr std::size_t long_date = 6;
constexpr std::size_t full_time = 6;
constexpr std::size_t shortest_filled_time = 4;

std::string full_date(std::string_view month, std::string_view cell) {
    std::string date(month);
    date.append("-").append(middle(cell, 2, 2)).append("-20").append(middle(cell, 4, 2));
    return date;
}

void convert_date(std::string& cell, BatchUpdateText& text) {
    if (cell.size() == short_date) {
        cell = full_date("0" + cell.substr(0, 1), cell);
        text.put_record_date(cell);
    }
    if (cell.size() == long_date) {
        cell = full_date(left(cell, 2), cell);
        text.put_record_date(cell);
    }
}

void convert_time(std::string& cell) {
    for (std::size_t length = shortest_filled_time; length <= full_time; ++length) {
        if (cell.size() != length) continue;
        cell = std::string(full_time - length, '0').append(trim(cell));
    }
}

void convert_cell(int column, std::string& cell, BatchUpdateText& text) {
    if (column == date_column) convert_date(cell, text);
    const std::string_view trimmed = trim(cell);
    if ((column == time_column && trimmed.empty()) || trimmed == "0") cell = no_time;
    if (column == time_column) convert_time(cell);
}

void put_cell(int column, std::string_view cell, BatchUpdateText& text) {
    if (column == time_column) {
        text.begin_result();
        text.put_value(cell);
    }
    if (column > time_column) text.put_value(trim(cell));
}

void put_record(Grid& log, int row, BatchUpdateText& text) {
    RowCells cells;
    std::deque<std::string> changed;  // what is put into the cells must stay where it is
    log.read_row(row, cells);
    for (int column = 0; column < log.columns(); ++column) {
        if (column > time_column && cells[column].empty()) continue;
        std::string cell(cells[column]);
        convert_cell(column, cell, text);
        put_cell(column, cell, text);
        if (cell == cells[column]) continue;
        changed.push_back(std::move(cell));
        cells.set(column, changed.back());
    }
    text.end_line();
    if (!changed.empty()) log.write_row(row, cells);
}

int fields_in(std::string_view line) {
    return static_cast<int>(std::count(line.begin(), line.end(), '\t')) + 1;
}

}  // namespace

void load_logger_file(Grid& log, FileText file) {
    int columns = 1;
    for (LineReader lines(file.view()); !lines.at_end();) {
        columns = std::max(columns, fields_in(lines.next()));
    }
    log.set_rows(0);
    log.set_columns(columns);
    log.load(std::move(file));
}

void put_logger_records(Grid& log, BatchUpdateText& text) {
    for (int row = 0; row < log.rows(); ++row) put_record(log, row, text);
    log.refreshed();
    if (log.rows() > 0) log.make_current({log.rows() - 1, log.columns() - 1});
}

}  // namespace brooklander
