#include "import/import_table.h"

namespace brooklander {
namespace {

constexpr int first_column_width = 1800;
constexpr int third_column_width = 1400;
constexpr int top_in_panel = 240;

void prepare(FrmImportFileDisplay& display) {
    display.MSFlexResults.set_rows(0);
    Grid& table = display.MSFlexKeldarIN;
    table.clear();
    table.set_row_height(0, 1);
    table.set_rows(0);
    table.set_column_width(0, first_column_width);
    table.set_column_width(2, third_column_width);
    table.set_highlight(Highlight::never);
    table.set_top(top_in_panel);
}

}  // namespace

void load_import_table(Screens& screens, const Files& files, std::string_view path) {
    prepare(screens.frmImportFileDisplay);
    screens.frmStart.set_pointer(Pointer::busy);
    screens.frmImportFileDisplay.MSFlexKeldarIN.load(files.read(path, ReadErrors::end_text));
    screens.frmStart.set_pointer(Pointer::normal);
}

}  // namespace brooklander
