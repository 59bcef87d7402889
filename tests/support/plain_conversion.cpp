#include "support/plain_conversion.h"

namespace brooklander::test {
namespace {

std::string trimmed(std::string text) {
    while (!text.empty() && text.back() == ' ') text.pop_back();
    while (!text.empty() && text.front() == ' ') text.erase(0, 1);
    return text;
}

struct RowTables {
    std::vector<std::string> station, date, time, id, depth, comments, person;
};

void normalise(std::string& cell) {
    if (trimmed(cell) == "*Non-detect") cell = "*Non-detect";
    if (trimmed(cell) == "*Present >QL") cell = "*Present >QL";
    if (trimmed(cell) == "ND" || trimmed(cell) == "nd") cell = "*Non-detect";
    if (cell.substr(0, 1) == "<" || (!cell.empty() && cell.back() == '<')) cell = "*Non-detect";
    if (!cell.empty() && cell.back() == '>') cell = "*Present >QL";
}

}  // namespace

PlainResult convert_plainly(PlainInputs in) {
    const std::size_t rows = in.table.size();
    const auto cell = [&in](std::size_t row, int column) -> std::string& {
        return in.table[row][static_cast<std::size_t>(column)];
    };
    RowTables by_row;
    for (auto* table : {&by_row.station, &by_row.date, &by_row.time, &by_row.id, &by_row.depth,
                        &by_row.comments, &by_row.person}) {
        table->resize(rows);
    }
    int sequence = 1;
    for (auto i = static_cast<std::size_t>(in.first_row); i < rows; ++i) {
        by_row.station[i] = cell(i, in.station);
        by_row.date[i] = cell(i, in.date);
        int current = in.date;
        if (in.time) {
            current = *in.time;
            by_row.time[i] = cell(i, current);
            if (cell(i, current).size() == 3) {
                cell(i, current).insert(0, "0");
                by_row.time[i] = cell(i, current);
            }
        }
        const std::string made = trimmed(in.filler) + "-" + std::to_string(sequence);
        if (in.sample) {
            current = *in.sample;
            by_row.id[i] = trimmed(cell(i, current));
        }
        if (in.sample.value_or(0) == current && cell(i, current).empty()) {
            cell(i, current) = made;
            by_row.id[i] = trimmed(cell(i, current));
        }
        if (!in.sample) by_row.id[i] = made;
        ++sequence;
        by_row.depth[i] = in.depth ? cell(i, *in.depth) + "~" + trimmed(in.depth_unit) + "~" : "~~";
        if (in.comments) by_row.comments[i] = trimmed(cell(i, *in.comments));
        if (in.person) by_row.person[i] = trimmed(cell(i, *in.person));
    }

    std::vector<std::string> names;
    const int columns = rows == 0 ? 0 : static_cast<int>(in.table[0].size());
    for (int column = in.first_result; column < columns; ++column) {
        names.push_back(trimmed(cell(0, column)));
    }

    std::string output;
    std::size_t characteristic = 0;
    for (std::size_t row = 1; row < rows && !names.empty(); ++row) {
        for (int column = in.first_result; column < columns; ++column) {
            normalise(cell(row, column));
            const std::string result = trimmed(cell(row, column));
            if (!result.empty()) {
                output += in.trip + "~" + by_row.station[row] + "~~" + by_row.date[row] + "~" +
                          by_row.time[row] + "~~" + trimmed(by_row.id[row]) + "~" +
                          by_row.comments[row] + "~~" + trimmed(by_row.depth[row]) + "~~~~~~" +
                          by_row.person[row] + "~~" + names[characteristic] + "~~~~~~~~~~" +
                          result + "~~~\r\n";
            }
            characteristic = (characteristic + 1) % names.size();
        }
    }
    return {output, in.table};
}

}  // namespace brooklander::test
