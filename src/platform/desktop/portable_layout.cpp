#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"
#include "platform/desktop/wizard_parts.h"

namespace brooklander::desktop {
namespace {

using Portable = FrmPortableDataLogger;

// Where the results belong to, in rows of so many pairs.
Card* display_card(Portable& portable, Draw& draw) {
    constexpr int in_a_row = 4;
    Card* const card = draw.card(portable.frameDisplay);
    auto* const form = new QGridLayout;
    form->setHorizontalSpacing(between_controls);
    form->setVerticalSpacing(close_together);
    int place = 0;
    const auto add = [&](Label& caption, Label& value) {
        const int column = place % in_a_row * 2;
        form->addWidget(draw.caption(caption), place / in_a_row, column);
        form->addWidget(draw.value(value, shown(caption.text())), place / in_a_row, column + 1);
        form->setColumnStretch(column + 1, 1);
        ++place;
    };
    add(portable.lblTripCaption, portable.lblTrip);
    add(portable.lblStationCaption, portable.lblStation);
    add(portable.lblVisitCaption, portable.lblVisit);
    add(portable.lblActivityCaption, portable.lblActivity);
    add(portable.lblProjectCaption, portable.lblProject);
    add(portable.lblStartDateCaption, portable.lblStartDate);
    add(portable.lblStartTimeCaption, portable.lblStartTime);
    card->content()->addLayout(form);
    keep_height(card);
    return card;
}

Card* lines_card(Portable& portable, Draw& draw) {
    Card* const card = draw.card(portable.frameLines);
    QLabel* const caption = draw.caption(portable.lblLines, 'D');
    caption->setWordWrap(false);
    QLineEdit* const box = draw.text_box(portable.txtLines, caption);
    box->setMaximumWidth(box->fontMetrics().averageCharWidth() * 16);
    QLabel* const note = draw.still_needed(
        portable.cmdContinue,
        {{portable.txtLines, portable.txtLines, QStringLiteral("number of data lines")}});
    card->content()->addLayout(foot({caption, box}, note, draw.filled(portable.cmdContinue, 'C')));
    keep_height(card);
    return card;
}

Card* labels_card(Portable& portable, Draw& draw) {
    Card* const card = draw.card(portable.frameLabelLines);
    GridWidget* const labels =
        draw.grid(portable.MSHFlexLabels, shown(portable.frameLabelLines.text()));
    labels->use_all_width();
    labels->drop_row_numbers();
    labels->set_empty_text(QStringLiteral(
        "No data lines. Enter a whole number of lines above, or go on with row IDs alone."));
    draw.name_column(labels, 0, portable.lblLineColumn);
    draw.name_column(labels, Portable::label_column, portable.lblLabelColumn);
    card->lead_to(labels, 'L');
    card->content()->addWidget(labels, 1);
    card->content()->addLayout(row({draw.filled(portable.cmdLinesContinue, 'o')}, Side::right));
    return card;
}

// The row of ids is the first one, and says so in its heading.
GridWidget* results_grid(Portable& portable, Draw& draw) {
    GridWidget* const results =
        draw.grid(portable.MSHFlexResults, shown(portable.frameResults.text()));
    results->use_all_width();
    results->drop_row_numbers();
    draw.name_row(results, 0, portable.lblRowId);
    draw.name_column(results, 0, portable.lblResultLineColumn);
    draw.name_column(results, Portable::label_column, portable.lblResultLabelColumn);
    QStringList names;
    for (int column = Portable::first_result_column; column < Portable::result_columns; ++column) {
        names.push_back(QStringLiteral("Result %1").arg(names.size() + 1));
    }
    results->name_columns(Portable::first_result_column, names);
    return results;
}

Card* results_card(Portable& portable, Draw& draw) {
    Card* const card = draw.card(portable.frameResults);
    GridWidget* const results = results_grid(portable, draw);
    card->lead_to(results, 'R');
    card->content()->addWidget(results, 1);
    card->content()->addWidget(draw.note(portable.lblArrowKeys));

    QPushButton* const back = draw.button(portable.cmdBack, 'B');
    QLabel* const caption = draw.caption(portable.lblFileName, 'i');
    caption->setWordWrap(false);
    QLineEdit* const name = draw.text_box(portable.txtFileName, caption);
    name->setMaximumWidth(name->fontMetrics().averageCharWidth() * 40);
    QLabel* const note = draw.still_needed(
        portable.cmdSave,
        {{portable.txtFileName, portable.txtFileName, QStringLiteral("file name")}},
        QStringLiteral("The name must be one that a file may have."));
    card->content()->addLayout(
        foot({back, caption, name}, note, draw.filled(portable.cmdSave, 'S')));
    return card;
}

Card* enter_more_card(Portable& portable, Draw& draw) {
    Card* const card = draw.card(portable.frameEnterMoreData);
    ask_by_boxes(card, {portable.chkDataYes, 'Y'}, {portable.chkDataNo, 'N'}, portable.cmdMoreData,
                 'm', QStringLiteral("Yes or No?"), draw);
    return card;
}

Card* more_data_card(Portable& portable, Draw& draw) {
    Card* const card = draw.card(portable.frameMoreData);
    card->head()->setStretch(0, 0);
    card->title()->setWordWrap(false);
    card->head()->addWidget(draw.note(portable.lblSame), 1);
    QCheckBox* const station = draw.tick_box(portable.chkStationYes, 't');
    QCheckBox* const visit = draw.tick_box(portable.chkVisitYes, 'V');
    auto* const line = new QHBoxLayout;
    line->setSpacing(inside_card);
    line->addWidget(station);
    line->addWidget(visit);
    line->addStretch(1);
    line->addWidget(draw.button(portable.cmdMoreDataContinue, 'u'));
    card->content()->addLayout(line);
    return card;
}

}  // namespace

// From the top down: the number of lines and their labels, or the results; what comes after a save
// below. The room that is left over lies below all.
void lay_out_portable(FrmPortableDataLogger& portable, Draw& draw) {
    QVBoxLayout* const page = draw.window().page();
    page->addWidget(draw.title());
    page->addWidget(display_card(portable, draw));
    page->addWidget(lines_card(portable, draw));
    page->addWidget(labels_card(portable, draw), 1);
    page->addWidget(results_card(portable, draw), 1);
    draw.lead_on(portable.cmdContinue, portable.MSHFlexLabels);

    auto* const after = new QHBoxLayout;
    after->setSpacing(between_cards);
    for (Card* const card : {enter_more_card(portable, draw), more_data_card(portable, draw)}) {
        keep_height(card);
        after->addWidget(card, 1);
    }
    page->addLayout(after);
    page->addStretch(0);
}

}  // namespace brooklander::desktop
