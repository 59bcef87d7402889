#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "import/column_assignment.h"
#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"
#include "platform/desktop/wizard_parts.h"
#include "shared/text.h"

namespace brooklander::desktop {
namespace {

using Display = FrmImportFileDisplay;

// The underlined letters of the category buttons, in the order of the categories.
constexpr std::array<char, categories.size()> category_letters{'S', 'D', 'T', 'A',
                                                               'p', 'm', 'l', 'R'};

// The file in work on the left, where its values come from on the right.
QHBoxLayout* files_line(Display& display, Draw& draw) {
    Card* const file = draw.card(display.frameFileBeingConverted);
    auto* const file_line = new QHBoxLayout;
    file_line->addWidget(
        draw.value(display.lblSelectedFile, shown(display.frameFileBeingConverted.text())), 1);
    file_line->addWidget(draw.filled(display.cmdSave, 'C'));
    file->content()->addLayout(file_line);

    Card* const configuration = draw.card(display.frameConfiguration);
    auto* const configuration_line = new QHBoxLayout;
    configuration_line->addWidget(
        draw.value(display.lblConfiguration, shown(display.frameConfiguration.text())), 1);
    configuration_line->addWidget(draw.button(display.cmdDetails, 'e'));
    configuration->content()->addLayout(configuration_line);

    Card* const vox = draw.card(display.frameVOX);
    vox->content()->addWidget(draw.text(
        QStringLiteral("All Activity Details Will Be Added From A VOX Configuration File"), vox));

    auto* const line = new QHBoxLayout;
    line->setSpacing(between_cards);
    for (Card* const card : {file, configuration, vox}) {
        keep_height(card);
        line->addWidget(card, 1);
    }
    return line;
}

Card* characteristics_card(Display& display, Draw& draw) {
    Card* const card = draw.card(display.frameCharColumn);
    QLabel* const note =
        draw.text(QStringLiteral("Click the FIRST Column With A Characteristic Name Below"), card);
    auto* const line = new QHBoxLayout;
    line->addWidget(note, 1);
    line->addWidget(draw.filled(display.cmdCharContinue, 'C'));
    card->content()->addLayout(line);
    return card;
}

Card* filler_card(Display& display, Draw& draw) {
    Card* const card = draw.card(display.frameActivity);
    card->content()->addWidget(
        draw.text(QStringLiteral("Enter up to 6 characters that will be used as starting point to "
                                 "fill in any missing Activity ID codes.  Click 'Skip' if not "
                                 "necessary."),
                  card));
    QLineEdit* const filler =
        draw.text_box(display.txtActivityID, shown(display.frameActivity.text()));
    filler->setMaximumWidth(filler->fontMetrics().averageCharWidth() * 16);
    auto* const line = new QHBoxLayout;
    line->setSpacing(between_controls);
    line->addWidget(filler);
    line->addStretch(1);
    line->addWidget(draw.button(display.cmdActivitySkip, 'S'));
    line->addWidget(draw.filled(display.cmdActivityContinue, 'C'));
    card->content()->addLayout(line);
    return card;
}

Card* same_selections_card(Display& display, Draw& draw) {
    constexpr int behind_title = 1;
    Card* const card =
        question(display.frameSameSelections, display.cmdColumnYes, display.cmdColumnNo, draw);
    QLabel* const text = draw.text(QStringLiteral("Use Existing Column Selections ?"), card);
    card->head()->insertWidget(behind_title, text, 2);
    return card;
}

// Mark, button, column number and Clear of one category, in a row of a grid.
void add_category(Display& display, const Category& category, int number, QGridLayout* grid,
                  int grid_row, int grid_column, Draw& draw) {
    QLabel* const marker = draw.heading(display.*category.marker, 0);
    marker->setFixedWidth(marker->fontMetrics().horizontalAdvance(u'X') + 8);
    marker->setAlignment(Qt::AlignCenter);
    keep_place(marker);

    QPushButton* const button =
        draw.button(display.*category.button, category_letters[static_cast<std::size_t>(number)]);
    if (category.required) button->setFont(font_larger_by(0, QFont::Bold));
    mark(*button, "category");
    tell_of(button, {&display.lblSelectedCategory}, [&display, &category, button] {
        set_mark(*button, "active", display.lblSelectedCategory.text() == category.text);
    });
    button->setMinimumWidth(button->fontMetrics().averageCharWidth() * 21);

    const QString name = shown((display.*category.button).text()).trimmed();
    ValueLabel* const column =
        draw.value(display.*category.visible_column, name + QStringLiteral(", column"));
    column->set_tint(number);
    column->setFixedWidth(column->fontMetrics().averageCharWidth() * 6);

    QPushButton* const clear = draw.button(display.*category.clear);
    clear->setAccessibleName(QStringLiteral("Clear %1").arg(name));

    int at = grid_column;
    for (QWidget* const widget : std::initializer_list<QWidget*>{marker, button, column, clear}) {
        grid->addWidget(widget, grid_row, at++);
    }
}

QVBoxLayout* legend(Display& display, Card* card, Draw& draw) {
    auto* const lines = new QVBoxLayout;
    lines->setSpacing(between_controls);
    lines->addWidget(draw.text(QStringLiteral("Click a Category Button Then Click The "
                                              "Corresponding Column In 'Imported File Contents' "
                                              "Below"),
                               card));
    lines->addWidget(draw.text(QStringLiteral("Click Results Button Then click the FIRST Column "
                                              "of Sample Results =====>"),
                               card));
    // Three texts side by side, the middle one in bold.
    auto* const required = new QHBoxLayout;
    required->setSpacing(0);
    for (const char* const piece : {"Buttons With ", "Bold", "Labels Are Required Entries"}) {
        QLabel* const text = draw.text(QLatin1String(piece), card);
        text->setWordWrap(false);
        const bool is_bold = piece == std::string_view("Bold");
        if (is_bold) text->setFont(font_larger_by(0, QFont::Bold));
        required->addWidget(text);
        if (is_bold) required->addSpacing(text->fontMetrics().horizontalAdvance(u' '));
    }
    required->addStretch(1);
    lines->addLayout(required);
    lines->addStretch(1);
    lines->addLayout(row({draw.filled(display.cmdContinue, 'C')}, Side::right));
    return lines;
}

Card* columns_card(Display& display, Draw& draw) {
    Card* const card = draw.card(display.frameCategoryResults);
    constexpr int columns_of_category = 4;
    constexpr int rows_of_group = 4;
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(between_controls);
    grid->setVerticalSpacing(close_together);
    int number = 0;
    for (const Category& category : categories) {
        const int group = number / rows_of_group;
        add_category(display, category, number, grid, 1 + number % rows_of_group,
                     group * (columns_of_category + 1), draw);
        ++number;
    }
    grid->addWidget(draw.caption(display.Label12), 0, columns_of_category + 1 + 2, 1, 2);
    grid->addWidget(draw.text(shown(display.Label12.text()), card), 0, 2, 1, 2);
    grid->setColumnMinimumWidth(columns_of_category, inside_card);

    auto* const whole = new QHBoxLayout;
    whole->setSpacing(inside_card);
    whole->addLayout(grid);
    whole->addSpacing(inside_card);
    whole->addLayout(legend(display, card, draw), 1);
    card->content()->addLayout(whole);
    return card;
}

Card* row_card(Display& display, Draw& draw) {
    Card* const card = draw.card(display.frameRowSelection);
    auto* const line = new QHBoxLayout;
    line->setSpacing(between_controls);
    QLabel* const note = draw.text(QStringLiteral("Click FIRST ROW of actual data"), card);
    ValueLabel* const number = draw.value(display.lblRowVis, shown(display.Label16.text()));
    number->setFixedWidth(number->fontMetrics().averageCharWidth() * 9);
    line->addWidget(note, 1);
    line->addWidget(draw.caption(display.Label16));
    line->addWidget(number);
    line->addWidget(draw.button(display.cmdRowClear, 'l'));
    line->addSpacing(inside_card);
    line->addWidget(draw.button(display.cmdRowIdBack, 'B'));
    line->addWidget(draw.filled(display.cmdRowContinue, 'C'));
    line->addWidget(draw.filled(display.cmdFormatConfirm, 'v'));
    card->content()->addLayout(line);
    return card;
}

// A question inside of another card.
Card* inner_question(Panel& panel, Button& yes, Button& no, Draw& draw) {
    Card* const card = draw.card(panel);
    const auto [yes_button, no_button] = draw.to_be_sure(card, yes, no);
    card->head()->addWidget(yes_button);
    card->head()->addWidget(no_button);
    return card;
}

Card* output_card(Display& display, Draw& draw) {
    Card* const card = draw.card(display.frameOutputFile);
    ListWidget* const files =
        draw.list(display.fileConvertedFiles, QStringLiteral("Existing Converted Files"));
    files->set_empty_text(QStringLiteral("No converted files yet."));
    files->setMaximumHeight(files->fontMetrics().height() * 8);
    auto* const line = new QHBoxLayout;
    line->setSpacing(between_controls);
    line->addWidget(draw.value(display.lblDeletedFile, QStringLiteral("File to delete")), 1);
    line->addWidget(draw.value(display.lblFileType, QStringLiteral("Format")));
    line->addWidget(draw.button(display.cmdExistingFileDelete, 'D'));
    card->content()->addWidget(draw.text(QStringLiteral("Existing Converted Files"), card));
    card->content()->addWidget(files);
    card->content()->addLayout(line);
    card->content()->addWidget(draw.text(QStringLiteral("Save Name of New Converted File"), card));
    card->content()->addWidget(
        draw.text_box(display.txtSave, QStringLiteral("Save Name of New Converted File")));
    card->content()->addWidget(inner_question(display.frameExistingFile, display.cmdOverwriteYes,
                                              display.cmdOverwriteNo, draw));
    card->content()->addWidget(
        inner_question(display.frameKillFileConfirm, display.cmdKillYes, display.cmdKillNo, draw));
    return card;
}

Card* converted_card(Display& display, Draw& draw) {
    Card* const card = draw.card(display.frameConverted);
    card->content()->addWidget(
        draw.value(display.lblConvertedFile, QStringLiteral("Converted file")));
    card->content()->addWidget(draw.note(display.lblConverted));
    auto* const line = new QHBoxLayout;
    line->setSpacing(inside_card);
    line->addWidget(draw.tick_box(display.chkView, 'w'));
    QRadioButton* const another_file = draw.option(display.optAnotherFile, 'A');
    draw.window().begins(card, another_file);
    line->addWidget(another_file);
    line->addWidget(draw.option(display.optQuit, 'Q'));
    line->addStretch(1);
    line->addWidget(draw.filled(display.cmdConfirm, 'f'));
    card->content()->addLayout(line);
    return card;
}

// The caption and the tint of the category that a column is assigned to; the results go on to the
// last column.
ColumnMark mark_of(const Display& display, int column) {
    ColumnMark found;
    int number = 0;
    for (const Category& category : categories) {
        const std::string& assigned = (display.*category.column).text();
        const QString name = shown((display.*category.button).text()).trimmed();
        const bool is_results = category.button == &Display::cmdResults;
        const int first = assigned.empty() ? -1 : position_in(assigned);
        if (first == column) {
            found.caption += (found.caption.isEmpty() ? QString() : QStringLiteral(" + ")) + name;
            found.tint = number;
        } else if (is_results && first >= 0 && column > first && !found.tint) {
            found.tint = number;
        }
        ++number;
    }
    return found;
}

Card* table_card(Display& display, Draw& draw) {
    Card* const card = draw.card(display.frameImportedFile);
    GridWidget* const table =
        draw.grid(display.MSFlexKeldarIN, shown(display.frameImportedFile.text()));
    table->set_empty_text(QStringLiteral("The file holds no lines."));
    table->set_column_marks([&display](int column) { return mark_of(display, column); });
    for (const Category& category : categories) {
        draw.follow_also(display.MSFlexKeldarIN, display.*category.column);
    }
    card->content()->addWidget(table, 1);
    card->lead_to(table, 'I');
    draw.begins_in(display.frameRowSelection, table);
    draw.begins_in(display.frameCharColumn, table);
    return card;
}

// A card is read across; on a wide display it does not grow with the table.
QHBoxLayout* of_readable_width(QWidget* card) {
    constexpr int widest_in_letters = 170;
    card->setMaximumWidth(card->fontMetrics().averageCharWidth() * widest_in_letters);
    keep_height(card);
    auto* const line = new QHBoxLayout;
    line->addWidget(card, 1);
    line->addStretch();
    return line;
}

}  // namespace

void lay_out_import(FrmImportFileDisplay& display, Draw& draw) {
    QVBoxLayout* const page = draw.window().page();
    page->addLayout(files_line(display, draw));
    for (Card* const card :
         {question(display.frameImportConfirm, display.cmdYes, display.cmdNo, draw),
          question(display.frameChar, display.cmdCharYes, display.cmdCharNo, draw),
          characteristics_card(display, draw), filler_card(display, draw),
          same_selections_card(display, draw), columns_card(display, draw), row_card(display, draw),
          output_card(display, draw), converted_card(display, draw)}) {
        page->addLayout(of_readable_width(card));
    }
    page->addWidget(table_card(display, draw), 1);
    page->addStretch(0);
}

}  // namespace brooklander::desktop
