#include <QPushButton>

#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"
#include "platform/desktop/wizard_parts.h"

namespace brooklander::desktop {
namespace {

GridWidget* groups(FrmLoggerResults& results, Draw& draw) {
    return draw.choices(
        results.MSHFlexCharGroup, shown(results.frameCharacteristicGroup.text()),
        {.waiting = QStringLiteral("The characteristic groups of the organization are listed "
                                   "here."),
         .none = QStringLiteral("This organization has no groups for data loggers in KELDAR.")});
}

// A query without an answer leaves the list as it waits, so that one sentence serves both.
GridWidget* characteristics(FrmLoggerResults& results, Draw& draw) {
    GridWidget* const list =
        draw.choices(results.MSHFlexChars, QStringLiteral("Characteristics of the group"),
                     {.waiting = QStringLiteral("Choose a group with characteristics: they are "
                                                "listed here, in the order of the file's columns."),
                      .none = {}});
    draw.name_column(list, 0, results.lblRowIdColumn);
    draw.name_column(list, 1, results.lblNameColumn);
    draw.name_column(list, 2, results.lblUnitsColumn);
    return list;
}

Card* group_card(FrmLoggerResults& results, Draw& draw) {
    Card* const card = draw.card(results.frameCharacteristicGroup);
    GridWidget* const all = groups(results, draw);
    card->lead_to(all, 'G');
    auto* const lists = new QHBoxLayout;
    lists->setSpacing(inside_card);
    lists->addWidget(all, 2);
    lists->addWidget(characteristics(results, draw), 3);
    card->content()->addLayout(lists, 1);

    QGridLayout* const chosen = chosen_form();
    add_chosen(chosen, QStringLiteral("Characteristic Group:"), card, results.lblCharGroup, draw);
    chosen->addWidget(draw.filled(results.cmdConvert, 'v'), 0, 3);
    card->content()->addLayout(chosen);
    return card;
}

// Asks what comes next, at the answer that goes on.
Card* converted_card(FrmLoggerResults& results, Draw& draw) {
    Card* const card = draw.card(results.frameConverted);
    card->content()->addWidget(
        draw.value(results.lblConvertedFile, shown(results.frameConverted.text())));
    card->content()->addWidget(draw.note(results.lblReady));
    ask_by_boxes(card, {results.chkYes, 'I'}, {results.chkNo, 'Q'}, results.cmdContinue, 'C',
                 QStringLiteral("Choose what comes next."), draw);
    keep_height(card);
    return card;
}

}  // namespace

void lay_out_logger_results(FrmLoggerResults& results, Draw& draw) {
    QVBoxLayout* const page = draw.window().page();
    page->addWidget(draw.title());
    page->addWidget(group_card(results, draw), 1);
    page->addWidget(converted_card(results, draw));
}

}  // namespace brooklander::desktop
