// The Batch Update format, in which data logger results travel to the database: labelled lines
// whose values have a comma behind each, the last one too. Nothing is quoted.
#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"

namespace brooklander {

// What a writer's files have of their own. The writers came to the program one after the other,
// each with its own screen, and whoever reads their files knows them by these words; so each keeps
// its own.
struct BatchUpdateForm {
    // The line of the operating period's log file. The second path has always spelt it with a small
    // letter; results entered by hand belong to no log file.
    std::string_view log_label;

    // The line of the row ids. The second path writes its own spelling here, too.
    std::string_view row_label;

    // The file's last line. What is entered by hand is appended to a file that stays open to more,
    // so that it has none.
    std::string_view end_word;

    // Whether the group's line has the group's id trimmed, as all other lines of all writers have
    // their values. The first path writes it as it was picked, with the blanks that the database
    // pads it with.
    bool trims_group = true;
};

namespace batch_update {

inline constexpr BatchUpdateForm logger{"OP Log", "Row ID", "End", false};
inline constexpr BatchUpdateForm data_logger{"Op Log", "Row Id", "END", true};
inline constexpr BatchUpdateForm portable{{}, "Row ID", {}, true};

}  // namespace batch_update

// Puts the pieces of such a file together, in the order in which they are called for.
class BatchUpdateText {
  public:
    explicit BatchUpdateText(const BatchUpdateForm& form) : form_(form) {}

    // The first three lines. Values are trimmed.
    void put_heading(std::string_view organization, std::string_view installation,
                     std::string_view log);
    void put_group(std::string_view group);
    void put_record_date(std::string_view date);
    void put_end();

    // A whole line of one value, trimmed.
    void put_line(std::string_view label, std::string_view value);

    // A line of any number of values: its label, its values as they stand, its end.
    void begin(std::string_view label) { put_value(label); }
    void begin_rows() { put_value(form_.row_label); }
    void begin_result() { put_value("Result"); }
    void put_value(std::string_view value);
    void end_line() { text_.append("\r\n"); }

    // Text that has its commas already.
    void put(std::string_view text) { text_.append(text); }

    const std::string& text() const { return text_; }

  private:
    const BatchUpdateForm& form_;
    std::string text_;
};

// Writes a file anew, or behind what it holds. A FatalFailure when it cannot be written.
void write_anew(Files& files, std::string_view path, const BatchUpdateText& text);
void write_behind(Files& files, std::string_view path, const BatchUpdateText& text);

}  // namespace brooklander
