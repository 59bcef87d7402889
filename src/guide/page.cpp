#include "guide/page.h"

#include <algorithm>
#include <optional>

#include "platform/code_page.h"
#include "scenario/scenario_error.h"
#include "scenario/words.h"
#include "shared/text.h"

namespace brooklander::guide {
namespace {

using scenario::Unmet;

std::string escaped(std::string_view text) {
    std::string html;
    for (const char byte : text) {
        switch (byte) {
            case '<': html += "&lt;"; break;
            case '>': html += "&gt;"; break;
            case '&': html += "&amp;"; break;
            case '"': html += "&quot;"; break;
            default: html += byte;
        }
    }
    return html;
}

// A value with the blanks at its ends made visible.
std::string with_blanks_shown(std::string_view text) {
    const auto boxes = [](std::size_t count) {
        std::string all;
        for (std::size_t i = 0; i < count; ++i) all += "\u2423";  // an open box
        return all;
    };
    const std::string_view inner = trim(text);
    const std::size_t before = std::min(text.find_first_not_of(' '), text.size());
    return boxes(before) + escaped(to_utf8(inner)) + boxes(text.size() - before - inner.size());
}

// A caption that stands before its field ends in a colon, which a sentence has no use for.
std::string_view without_colon(std::string_view caption) {
    if (caption.ends_with(':')) caption.remove_suffix(1);
    return caption;
}

// The text between two marks, taken off the front of `rest` with them; nothing where the second is
// missing.
std::optional<std::string_view> take_between(std::string_view& rest, std::string_view open,
                                             std::string_view close) {
    const std::size_t end = rest.find(close, open.size());
    if (end == std::string_view::npos) return std::nullopt;
    const std::string_view inner = rest.substr(open.size(), end - open.size());
    rest.remove_prefix(end + close.size());
    return inner;
}

// The cells of a table's row. A bar between braces belongs to the value there.
std::vector<std::string> cells_of(std::string_view line) {
    line = trim(line);
    line.remove_prefix(1);
    std::vector<std::string> cells;
    std::string cell;
    bool in_braces = false;
    for (const char byte : line) {
        if (byte == '{' || byte == '}') in_braces = byte == '{';
        if (byte == '|' && !in_braces) {
            cells.emplace_back(trim(cell));
            cell.clear();
        } else {
            cell += byte;
        }
    }
    if (!trim(cell).empty()) throw Unmet("The row of the table has no bar at its end.");
    return cells;
}

std::string row_html(const std::vector<std::string>& cells, std::string_view element) {
    std::string html = "<tr>";
    for (const std::string& cell : cells) {
        html.append("<").append(element).append(element == "th" ? " align=\"left\">" : ">");
        html.append(cell).append("</").append(element).append(">");
    }
    return html + "</tr>\n";
}

constexpr std::string_view table_start =
    "<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\">\n";
constexpr std::string_view table_end = "</table>\n";

}  // namespace

std::string html_of(const Value& value) {
    switch (value.kind) {
        case Value::Kind::caption:
            return "<b>" + escaped(without_colon(to_utf8(value.text))) + "</b>";
        case Value::Kind::number: return value.text;
        case Value::Kind::no_line: return "<i>no line</i>";
        case Value::Kind::text: break;
    }
    if (value.text.empty()) return "<i>(empty)</i>";
    return "<tt>" + with_blanks_shown(value.text) + "</tt>";
}

Page::Page(Source source, bool with_pictures)
    : source_(std::move(source)), with_pictures_(with_pictures) {}

void Page::add_line(const std::string& line) {
    const std::string_view text = line;
    const std::size_t digits = text.find_first_not_of("0123456789");
    if (!text.starts_with('|')) put_table();
    if (!trim(text).empty() && !text.starts_with('|')) want_no_fields();
    if (trim(text).empty()) {
        if (!paragraph_.ends_with('\\')) put_paragraph();
    } else if (text.starts_with('#')) {
        put_heading(text);
    } else if (text.starts_with("- ")) {
        start_item('-', {}, text.substr(2));
    } else if (digits != std::string_view::npos && digits > 0 &&
               text.substr(digits).starts_with(". ")) {
        start_item('1', text.substr(0, digits), text.substr(digits + 2));
    } else if (text.starts_with('|')) {
        put_paragraph();
        close_list();
        table_.push_back(cells_of(text));
    } else if (trim(text).starts_with("![")) {
        put_picture(trim(text));
    } else if (text.starts_with("@fields ")) {
        begin_fields(text);
    } else {
        const bool goes_on = !paragraph_.empty() || !paragraph_done_.empty();
        if (!goes_on && !text.starts_with("  ")) close_list();
        if (!paragraph_.empty()) paragraph_ += ' ';
        paragraph_ += trim(text);
    }
}

void Page::end_part() {
    if (paragraph_.ends_with('\\')) {
        paragraph_.pop_back();
        paragraph_done_ += inline_html(paragraph_);
        paragraph_.clear();
        return;
    }
    put_paragraph();
    put_table();
    want_no_fields();
}

void Page::picture_taken(const std::string& name) {
    if (!pictures_.insert(name).second) throw Unmet("There are two pictures " + name + ".");
    pictures_to_show_.insert(name);
}

void Page::end_chapter() {
    end_part();
    close_list();
    if (!pictures_to_show_.empty()) {
        throw Unmet("The picture " + *pictures_to_show_.begin() + " is taken, and shown nowhere.");
    }
}

std::string Page::html() const {
    for (const std::string& name : links_) {
        if (!names_.contains(name)) throw Unmet("A link leads to " + name + ", which is nowhere.");
    }
    return "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>" + title_ +
           "</title>\n</head>\n<body>\n" + body_ + "</body>\n</html>\n";
}

void Page::start_item(char list, std::string_view number, std::string_view text) {
    put_paragraph();
    if (list_ != list) {
        close_list();
        body_ += list == '1' ? "<ol>\n" : "<ul>\n";
        list_ = list;
    } else {
        body_ += "</li>\n";
    }
    ++items_;
    if (list == '1' && number != std::to_string(items_)) {
        throw Unmet("The item " + std::string(number) + " is the list's number " +
                    std::to_string(items_) + ".");
    }
    body_ += "<li>";
    paragraph_ = trim(text);
    paragraph_starts_item_ = true;
}

void Page::put_heading(std::string_view line) {
    put_paragraph();
    close_list();
    const std::size_t level = line.find_first_not_of('#');
    std::string_view text = trim(line.substr(level));
    std::string anchor;
    if (const std::size_t at = text.rfind(" ["); text.ends_with(']') && at != text.npos) {
        const std::string name(text.substr(at + 2, text.size() - at - 3));
        if (!names_.insert(name).second) throw Unmet("Two headings have the name " + name + ".");
        anchor = "<a name=\"" + name + "\"></a>";
        text = trim(text.substr(0, at));
    }
    const std::string html = inline_html(text);
    if (title_.empty()) title_ = html;
    const std::string element = "h" + std::to_string(level);
    body_.append("<").append(element).append(">").append(anchor).append(html);
    body_.append("</").append(element).append(">\n");
}

// On a line of its own, so that pages with and without pictures differ in such lines alone.
void Page::put_picture(std::string_view line) {
    put_paragraph();
    const auto words = take_between(line, "![", "](");
    const std::size_t end = line.find(')');
    if (!words || end == line.npos) throw Unmet("A picture is written ![words](name).");
    const std::string name(line.substr(0, end));
    if (!pictures_.contains(name)) throw Unmet("No picture " + name + " has been taken so far.");
    pictures_to_show_.erase(name);
    if (!with_pictures_) return;
    if (!body_.empty() && !body_.ends_with('\n')) body_ += '\n';
    body_ += "<p><img src=\"help/" + name + ".png\" alt=\"" + escaped(*words) + "\"></p>\n";
}

void Page::put_paragraph() {
    if (paragraph_.empty() && paragraph_done_.empty()) return;
    const std::string html = paragraph_done_ + inline_html(paragraph_);
    body_ += paragraph_starts_item_ ? html : "<p>" + html + "</p>\n";
    if (paragraph_starts_item_) body_ += '\n';
    paragraph_.clear();
    paragraph_done_.clear();
    paragraph_starts_item_ = false;
}

void Page::put_table() {
    if (table_.empty()) return;
    if (!fields_.empty()) {
        put_fields_table();
    } else {
        body_ += table_start;
        std::string_view element = "th";
        for (std::vector<std::string>& row : table_) {
            if (row.size() != table_.front().size()) {
                throw Unmet("A row of the table has " + std::to_string(row.size()) + " cells.");
            }
            for (std::string& cell : row) cell = inline_html(cell);
            body_ += row_html(row, element);
            element = "td";
        }
        body_ += table_end;
    }
    table_.clear();
    fields_.clear();
}

void Page::begin_fields(std::string_view line) {
    put_paragraph();
    const auto words = scenario::words_of(line, {});
    if (words.size() != 4) throw Unmet("It is written @fields PATH ID NAME.");
    fields_ = source_.fields_of(words[1], words[2], words[3]);
    if (fields_.empty()) throw Unmet("The load file has no line with the id " + words[2] + ".");
}

// A line of a load file that was asked for is told of in a table.
void Page::want_no_fields() const {
    if (!fields_.empty()) throw Unmet("No table stands behind @fields.");
}

void Page::put_fields_table() {
    if (table_.size() != fields_.size()) {
        throw Unmet("The line has " + std::to_string(fields_.size()) + " fields, and the table " +
                    std::to_string(table_.size()) + " rows.");
    }
    body_ += table_start;
    body_ += row_html({"No.", "Field", "Here", "What it holds"}, "th");
    for (std::size_t i = 0; i < table_.size(); ++i) {
        const std::vector<std::string>& row = table_[i];
        if (row.size() != 3) throw Unmet("A row for a field has a name, a source and words.");
        const Value expected = row[1].empty() ? Value{} : source_.value_of(row[1]);
        if (fields_[i] != expected.text) {
            throw Unmet("The field " + std::to_string(i + 1) + ", " + row[0] + ", is " +
                        scenario::in_quotes(fields_[i]) + " and not " +
                        scenario::in_quotes(expected.text) + ".");
        }
        body_ += row_html({std::to_string(i + 1), inline_html(row[0]),
                           html_of({Value::Kind::text, fields_[i]}), inline_html(row[2])},
                          "td");
    }
    body_ += table_end;
}

void Page::close_list() {
    if (list_ == '\0') return;
    body_ += list_ == '1' ? "</li>\n</ol>\n" : "</li>\n</ul>\n";
    list_ = '\0';
    items_ = 0;
}

std::string Page::inline_html(std::string_view rest) {
    std::string html;
    while (!rest.empty()) {
        if (rest.starts_with('{')) {
            const auto written = take_between(rest, "{", "}");
            if (!written) throw Unmet("A brace is not closed.");
            html += value_html(*written);
        } else if (rest.starts_with('`')) {
            const auto inner = take_between(rest, "`", "`");
            if (!inner) throw Unmet("A ` is not closed.");
            html += "<tt>" + escaped(*inner) + "</tt>";
        } else if (rest.starts_with("__")) {
            const auto inner = take_between(rest, "__", "__");
            if (!inner) throw Unmet("A __ is not closed.");
            html += "<i>" + inline_html(*inner) + "</i>";
        } else if (const std::size_t bracket = rest.find("](#");
                   rest.starts_with('[') && bracket != rest.npos) {
            const std::string_view words = rest.substr(1, bracket - 1);
            rest.remove_prefix(bracket + 1);
            const auto name = take_between(rest, "(#", ")");
            if (!name) throw Unmet("A link is not closed.");
            html += linked_html(words, *name);
        } else {
            html += escaped(rest.substr(0, 1));
            rest.remove_prefix(1);
        }
    }
    return html;
}

std::string Page::value_html(std::string_view written) {
    return html_of(source_.value_of(written));
}

std::string Page::linked_html(std::string_view words, std::string_view name) {
    links_.emplace(name);
    return "<a href=\"#" + std::string(name) + "\">" + inline_html(words) + "</a>";
}

}  // namespace brooklander::guide
