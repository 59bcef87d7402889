#include "conversion/batch_update.h"

#include "shared/text.h"

namespace brooklander {
namespace {

void write(OutputFile& file, const BatchUpdateText& text) {
    file.write(text.text());
    file.close();
}

}  // namespace

void BatchUpdateText::put_value(std::string_view value) { text_.append(value).push_back(','); }

void BatchUpdateText::put_line(std::string_view label, std::string_view value) {
    begin(label);
    put_value(trim(value));
    end_line();
}

void BatchUpdateText::put_heading(std::string_view organization, std::string_view installation,
                                  std::string_view log) {
    put_line("Organization ID", organization);
    put_line("Installation ID", installation);
    put_line(form_.log_label, log);
}

void BatchUpdateText::put_group(std::string_view group) {
    begin("Char Group ID");
    put_value(form_.trims_group ? trim(group) : group);
    end_line();
}

void BatchUpdateText::put_record_date(std::string_view date) { put_line("Record Date", date); }

void BatchUpdateText::put_end() {
    put(form_.end_word);
    end_line();
}

void write_anew(Files& files, std::string_view path, const BatchUpdateText& text) {
    write(*files.create(path), text);
}

void write_behind(Files& files, std::string_view path, const BatchUpdateText& text) {
    write(*files.append(path), text);
}

}  // namespace brooklander
