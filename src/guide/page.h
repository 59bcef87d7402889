// The guide as a page of simple HTML, put together from its prose line by line.
//
// What the prose knows, each at the start of a line:
//
//   # Title [name]      a heading, ## and ### one below; a link reaches it by its name
//   1. text, - text     an item; an item stays open behind an empty line and behind commands
//   two blanks, text    a further paragraph of the item
//   | a | b |           a row of a table; the first one is its heading
//   ![words](name)      the picture that a `shot` of that name has taken
//   @fields PATH ID NAME
//                       the table behind it has a row for each field of a load file's line,
//                       `| field | where from | what |`, with the value of that field put in; where
//                       it comes from, another value or nothing, is held against it
//   anything else       a paragraph; with a backslash at its end, it goes on behind the commands
//
// and within a line: {a value}, `as it is written`, __weight__ and [words](#name). Only a value
// gets bold letters, so that every bold caption is the program's own.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "guide/values.h"

namespace brooklander::guide {

class Page {
  public:
    struct Source {
        std::function<Value(std::string_view)> value_of;
        // of the line of a load file, by its path, the activity id and the characteristic
        std::function<std::vector<std::string>(std::string_view, std::string_view,
                                               std::string_view)>
            fields_of;
    };

    // Pictures are left out where none are taken.
    Page(Source source, bool with_pictures);

    // Takes the next line of prose in. Throws Unmet, without a place, where it cannot be told.
    void add_line(const std::string& line);

    // Ends the paragraph, if it does not go on, or the table; a list stays open.
    void end_part();

    // A picture has been taken, and can be shown from now on.
    void picture_taken(const std::string& name);

    // Ends a chapter. Throws Unmet for a picture that was taken and not shown.
    void end_chapter();

    // The whole page. Throws Unmet for a link that leads nowhere.
    std::string html() const;

  private:
    void start_item(char list, std::string_view number, std::string_view text);
    void put_heading(std::string_view line);
    void put_picture(std::string_view line);
    void put_paragraph();
    void put_table();
    void put_fields_table();
    void want_no_fields() const;
    void close_list();
    void begin_fields(std::string_view words);
    std::string inline_html(std::string_view text);
    std::string value_html(std::string_view written);
    std::string linked_html(std::string_view words, std::string_view name);

    Source source_;
    bool with_pictures_;
    std::string body_;
    std::string title_;
    std::string paragraph_;
    std::string paragraph_done_;  // HTML of its beginning, before the commands in its middle
    bool paragraph_starts_item_ = false;
    std::vector<std::vector<std::string>> table_;
    std::vector<std::string> fields_;  // of the line that the table tells of; empty for any other
    char list_ = '\0';                 // '1' or '-' while a list is open
    int items_ = 0;
    std::set<std::string> names_;
    std::set<std::string> links_;
    std::set<std::string> pictures_;
    std::set<std::string> pictures_to_show_;
};

// How a value stands on the page, in HTML.
std::string html_of(const Value& value);

}  // namespace brooklander::guide
