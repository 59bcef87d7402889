#include <QPushButton>

#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"
#include "platform/desktop/wizard_parts.h"

namespace brooklander::desktop {
namespace {

Card* file_sheet(FrmLogger& logger, Draw& draw) {
    Card* const sheet = draw.sheet();
    QGridLayout* const chosen = chosen_form();
    add_chosen(chosen, QStringLiteral("Data Logger File:"), sheet, logger.lblSelectedFile, draw);
    sheet->content()->addLayout(chosen);
    return sheet;
}

Card* note_card(FrmLogger& logger, Draw& draw) {
    Card* const card = draw.card(logger.frameNote);
    card->content()->addWidget(draw.note(logger.lblNote));
    return card;
}

Card* contents_sheet(FrmLogger& logger, Draw& draw) {
    Card* const sheet = draw.sheet();
    QLabel* const caption = draw.caption(logger.lblLoggerDetails, 'L');
    ListWidget* const lines = draw.list(logger.lstDetails, shown(logger.lblLoggerDetails.text()));
    lines->set_empty_text(QStringLiteral("The file has no lines."));
    caption->setBuddy(lines);
    sheet->content()->addWidget(caption);
    sheet->content()->addWidget(lines, 1);
    there_while_shown(sheet, {caption, lines});
    return sheet;
}

QVBoxLayout* organizations(FrmLogger& logger, Card* card, Draw& draw) {
    QLabel* const caption = draw.text(with_mnemonic("Organizations", 'O'), card);
    return captioned(caption, draw.choices(logger.MSHFlexOrganization,
                                           QStringLiteral("Organizations"), organization_texts()));
}

// A list that waits for a choice in another one; its caption comes with its rows.
QVBoxLayout* waiting_list(Label& label, char letter, Grid& grid, const Draw::ListTexts& texts,
                          Draw& draw) {
    QLabel* const caption = draw.caption(label, letter);
    keep_place(caption);
    return captioned(caption, draw.choices(grid, shown(label.text()), texts));
}

// The organizations on the left, what hangs on them on the right.
Card* lists_card(FrmLogger& logger, Draw& draw) {
    Card* const card = draw.card(logger.frameDetails);
    auto* const lists = new QHBoxLayout;
    lists->setSpacing(inside_card);
    lists->addLayout(organizations(logger, card, draw), 1);
    auto* const right = new QVBoxLayout;
    right->setSpacing(between_controls);
    right->addLayout(
        waiting_list(logger.lblInstallationLabel, 'I', logger.MSHFlexADL,
                     {.waiting = QStringLiteral("Choose an organization first."),
                      .none = QStringLiteral("This organization has no installations in KELDAR.")},
                     draw),
        1);
    right->addLayout(
        waiting_list(logger.lblLogFileLabel, 'F', logger.MSHFlexLogFile,
                     {.waiting = QStringLiteral("Choose an installation first."),
                      .none = QStringLiteral("This organization has no log files in KELDAR.")},
                     draw),
        1);
    lists->addLayout(right, 1);
    card->content()->addLayout(lists, 1);
    return card;
}

Card* chosen_card(FrmLogger& logger, Draw& draw) {
    Card* const card = draw.card(logger.FrameDetailsDisplay);
    QGridLayout* const form = chosen_form();
    add_chosen(form, QStringLiteral("Organization:"), card, logger.lblOrganization, draw,
               &logger.lblOrganizationName);
    add_chosen(form, QStringLiteral("Installation ID:"), card, logger.lblInstallationID, draw);
    add_chosen(form, QStringLiteral("Log File:"), card, logger.lblLogFile, draw);
    card->content()->addLayout(form);
    return card;
}

Card* foot_sheet(FrmLogger& logger, Draw& draw) {
    Card* const sheet = draw.sheet();
    QPushButton* const back = draw.button(logger.cmdBack, 'B');
    QLabel* const note = draw.still_needed(
        logger.cmdContinue,
        {{logger.lblOrganization, logger.MSHFlexOrganization, QStringLiteral("organization")},
         {logger.lblInstallationID, logger.MSHFlexADL, QStringLiteral("installation")},
         {logger.lblLogFile, logger.MSHFlexLogFile, QStringLiteral("log file")}},
        QStringLiteral("Answer the question first."));
    sheet->content()->addLayout(foot({back}, note, draw.filled(logger.cmdContinue, 'C')));
    return sheet;
}

}  // namespace

void lay_out_logger(FrmLogger& logger, Draw& draw) {
    QVBoxLayout* const page = draw.window().page();
    page->addWidget(draw.title());
    const auto add = [page](Card* card) {
        keep_height(card);
        page->addWidget(card);
    };
    add(file_sheet(logger, draw));
    add(note_card(logger, draw));
    add(question(logger.frameImport, logger.cmdYes, logger.cmdNo, draw));
    page->addWidget(contents_sheet(logger, draw), 1);
    page->addWidget(lists_card(logger, draw), 1);
    add(chosen_card(logger, draw));
    page->addStretch(0);
    add(foot_sheet(logger, draw));
}

}  // namespace brooklander::desktop
