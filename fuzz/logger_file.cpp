// A data logger's file of any bytes, on both paths: every line is a record, its pieces stand where
// the format has them, and what was put right once stays as it is.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "loggers/data_logger_results.h"
#include "loggers/date_pictures.h"
#include "loggers/logger_records.h"
#include "platform/files/host_files.h"
#include "shared/text_reading.h"

namespace {

using namespace brooklander;

void want(bool holds) {
    if (!holds) std::abort();
}

struct FrmTwoLogs : Screen {
    explicit FrmTwoLogs(Desk& desk) : Screen(desk, "frmTwoLogs", {}) {}

    Grid first{*this, "first"};
    Grid second{*this, "second", {.columns = 12, .fixed_columns = 2}};
};

std::vector<std::string_view> lines_of(std::string_view text) {
    std::vector<std::string_view> lines;
    for (LineReader reader(text); !reader.at_end();) lines.push_back(reader.next());
    return lines;
}

void want_records(Grid& log, std::string_view file) {
    load_logger_file(log, FileText(file));
    std::vector<bool> dated;
    for (int row = 0; row < log.rows(); ++row) {
        const std::size_t length = log.cell(row, 0).size();
        dated.push_back(length == 5 || length == 6);
    }
    want(dated.size() == lines_of(file).size());
    BatchUpdateText text(batch_update::logger);
    put_logger_records(log, text);
    std::vector<std::string_view> lines = lines_of(text.text());
    std::reverse(lines.begin(), lines.end());
    for (const bool has_date : dated) {
        if (has_date) {
            want(lines.back().starts_with("Record Date,") && lines.back().ends_with(","));
            lines.pop_back();
        }
        want(lines.back().starts_with("Result,") || log.columns() == 1);
        lines.pop_back();
    }
    want(lines.empty());
}

void want_results(Grid& log, std::string_view file) {
    log.load(FileText(file));
    BatchUpdateText text(batch_update::data_logger);
    put_results(log, text);
    const std::vector<std::string_view> lines = lines_of(text.text());
    want(lines.size() == 2 * lines_of(file).size());
    for (std::size_t line = 0; line < lines.size(); ++line) {
        want(lines[line].starts_with(line % 2 == 0 ? "Record Date," : "Result,"));
        want(lines[line].ends_with(","));
    }
    BatchUpdateText again(batch_update::data_logger);
    put_results(log, again);
    want(again.text() == text.text());
}

void want_pictures(std::string_view text) {
    const std::string date = by_date_picture(text);
    want(date == text || (date.size() == 10 && date[2] == '-' && date[5] == '-'));
    const std::string time = by_time_picture(text);
    want(time == text ||
         (time.size() == 6 && time.find_first_not_of("0123456789") == std::string::npos));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    HostFiles files("/nonexistent");
    Desk desk(files);
    FrmTwoLogs screen(desk);
    want_records(screen.first, text);
    want_results(screen.second, text);
    want_pictures(text);
    return 0;
}
