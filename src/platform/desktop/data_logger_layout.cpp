#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"
#include "platform/desktop/wizard_parts.h"

namespace brooklander::desktop {
namespace {

Card* organization_card(FrmDataLogger& logger, Draw& draw) {
    Card* const card = draw.card(logger.frameOrganizations);
    add_choices(card, 'O', logger.MSHFlexOrganization, organization_texts(), draw);
    QGridLayout* const chosen = chosen_form();
    add_chosen(chosen, QStringLiteral("Organization:"), card, logger.lblOrganizationSelect, draw,
               &logger.lblOrgName);
    card->content()->addLayout(chosen);
    QLabel* const note = draw.still_needed(
        logger.cmdLoggerNext, {{logger.lblOrganizationSelect, logger.MSHFlexOrganization,
                                QStringLiteral("organization")}});
    card->content()->addLayout(foot({}, note, draw.filled(logger.cmdLoggerNext, 'C')));
    return card;
}

Card* installation_card(FrmDataLogger& logger, Draw& draw) {
    Card* const card = draw.card(logger.frameInstallation);
    QLabel* const installation = draw.caption(logger.lblInstallationCaption, 'I');
    QLabel* const period = draw.caption(logger.lblPeriodCaption, 'P');
    auto* const form = new QGridLayout;
    form->setHorizontalSpacing(inside_card);
    form->setVerticalSpacing(between_controls);
    form->addWidget(installation, 0, 0);
    form->addWidget(draw.text_box(logger.txtInstallationID, installation), 0, 1);
    form->addWidget(period, 1, 0);
    form->addWidget(draw.text_box(logger.txtOperatingPeriod, period), 1, 1);
    form->setColumnStretch(1, 1);
    card->content()->addLayout(form);
    QLabel* const note = draw.still_needed(
        logger.cmdCharContinue,
        {{logger.txtInstallationID, logger.txtInstallationID, QStringLiteral("installation ID")},
         {logger.txtOperatingPeriod, logger.txtOperatingPeriod,
          QStringLiteral("operating period")}});
    QPushButton* const go_on = draw.filled(logger.cmdCharContinue, 'n');
    // The button comes up where the note has stood, in a line of the same height.
    leave_no_place(go_on);
    QHBoxLayout* const line = foot({}, note, go_on);
    line->addStrut(go_on->sizeHint().height());
    card->content()->addLayout(line);
    keep_height(card);
    return card;
}

// The characteristics of a group come up with the first group that is chosen; their caption stands
// over the place until then.
QVBoxLayout* contents(FrmDataLogger& logger, Card* card, Draw& draw) {
    QVBoxLayout* const column = stacked({draw.caption(logger.lblContents)});
    QLabel* const waiting =
        draw.text(QStringLiteral("Choose a group: its characteristics are listed here."), card);
    GridWidget* const list = draw.choices(
        logger.MSHFlexContents, shown(logger.lblContents.text()),
        {.waiting = QStringLiteral("This group has no characteristics with row IDs."), .none = {}});
    draw.name_column(list, 0, logger.lblRowIdColumn);
    draw.name_column(list, 1, logger.lblDisplayNameColumn);
    draw.name_column(list, 2, logger.lblUnitsColumn);
    draw.name_column(list, 3, logger.lblFractionColumn);
    tell_of(waiting, {&logger.MSHFlexContents},
            [&logger, waiting] { waiting->setVisible(!logger.MSHFlexContents.visible()); });
    waiting->setAlignment(Qt::AlignTop);
    column->addWidget(waiting, 1);
    column->addWidget(list, 1);
    return column;
}

Card* group_card(FrmDataLogger& logger, Draw& draw) {
    Card* const card = draw.card(logger.frameCharacteristicGroup);
    GridWidget* const groups = add_choices(
        card, 'G', logger.MSHFlexGroups,
        {.waiting = QStringLiteral("The groups of the organization are listed here."),
         .none = QStringLiteral("This organization has no groups for data loggers in KELDAR.")},
        draw);
    draw.name_column(groups, 0, logger.lblGroupIdColumn);
    draw.name_column(groups, 1, logger.lblGroupNameColumn);
    QGridLayout* const chosen = chosen_form();
    add_chosen(chosen, QStringLiteral("Group:"), card, logger.lblGroupName, draw);
    card->content()->addLayout(chosen);
    card->content()->addLayout(contents(logger, card, draw), 1);
    QLabel* const note = draw.still_needed(
        logger.cmdConvertContinue,
        {{logger.lblGroupName, logger.MSHFlexGroups, QStringLiteral("characteristic group")}});
    card->content()->addLayout(foot({}, note, draw.filled(logger.cmdConvertContinue, 'u')));
    return card;
}

}  // namespace

// The organization, and below it what is typed; the groups come up beside both.
void lay_out_data_logger(FrmDataLogger& logger, Draw& draw) {
    auto* const left = new QVBoxLayout;
    left->setSpacing(between_cards);
    left->addWidget(organization_card(logger, draw), 1);
    left->addWidget(installation_card(logger, draw));
    auto* const whole = new QHBoxLayout;
    whole->setSpacing(between_cards);
    whole->addLayout(left, 1);
    whole->addWidget(group_card(logger, draw), 1);
    draw.lead_on(logger.cmdCharContinue, logger.MSHFlexGroups);
    draw.window().page()->addWidget(draw.title());
    draw.window().page()->addLayout(whole, 1);
}

}  // namespace brooklander::desktop
