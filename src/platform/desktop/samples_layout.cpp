#include <QLineEdit>
#include <QPushButton>

#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"
#include "platform/desktop/wizard_parts.h"

namespace brooklander::desktop {
namespace {

using Samples = FrmPreferencesSamples;

// What is chosen, in two columns, and beside it whether to change or to keep that.
Card* display_card(Samples& samples, Draw& draw) {
    Card* const card = draw.card(samples.frameDisplay);
    QGridLayout* const left = chosen_form();
    add_chosen(left, {samples.lblSampleCollectionCaption, samples.lblSampleCollectionProcedureID},
               draw);
    add_chosen(left, {samples.lblFieldGearIDLabel, samples.lblFieldGearIDSelected}, draw);
    QGridLayout* const right = chosen_form();
    add_chosen(right, {samples.lblGearCaption, samples.lblFieldGearID}, draw);
    add_chosen(right, {samples.lblGearConfigurationLabel, samples.lblGearConfiguration}, draw);

    QPushButton* const change = draw.button(samples.cmdChange, 'n');
    QPushButton* const keep = draw.filled(samples.cmdKeep, 'K');
    auto* const answers = new QVBoxLayout;
    answers->setSpacing(between_controls);
    for (QPushButton* const button : {change, keep}) {
        leave_no_place(button);  // they are only there for a file that is edited
        answers->addWidget(button);
    }
    draw.begins_in(samples.frameDisplay, keep);

    auto* const whole = new QHBoxLayout;
    whole->setSpacing(inside_card);
    whole->addLayout(left, 1);
    whole->addLayout(right, 1);
    whole->addLayout(answers);
    card->content()->addLayout(whole);
    keep_height(card);
    return card;
}

// The procedures on the left; the gear and, below it, its configurations on the right. A procedure
// that needs no gear leaves the room to the left. The caption of the configurations stands over the
// word that there are none, and not over their list.
QHBoxLayout* lists(Samples& samples, Draw& draw) {
    QLabel* const of_procedures = draw.caption(samples.lblSampleCollection, 'P');
    GridWidget* const procedures =
        draw.choices(samples.MSHFlexSampleCollection, shown(samples.lblSampleCollection.text()),
                     {.waiting = QStringLiteral("The organization's procedures are listed here."),
                      .none = QStringLiteral("This organization has no sample collection "
                                             "procedures in KELDAR.")});
    QLabel* const of_gear = draw.caption(samples.lblFieldGear, 'F');
    GridWidget* const gear =
        draw.choices(samples.MSHFlexGear, shown(samples.lblFieldGear.text()),
                     {.waiting = QStringLiteral("Choose a procedure first."),
                      .none = QStringLiteral("KELDAR holds no gear of this type. Choose another "
                                             "procedure.")});
    QLabel* const of_configurations = draw.caption(samples.lblGearConfigurationList);
    Card* const none = draw.card(samples.frameGearConfigurationError);
    GridWidget* const configurations = draw.choices(
        samples.MSHFlexGearConfiguration, shown(samples.lblGearConfigurationList.text()),
        {.waiting = QStringLiteral("Choose the field gear first."),
         .none = shown(samples.frameGearConfigurationError.text())});

    auto* const right = new QVBoxLayout;
    right->setSpacing(between_controls);
    right->addLayout(captioned(of_gear, gear));
    right->addLayout(stacked({of_configurations, none, configurations}));
    share_while_shown(right, 0, 1, {gear});
    share_while_shown(right, 1, 1, {configurations});

    auto* const both = new QHBoxLayout;
    both->setSpacing(inside_card);
    both->addLayout(captioned(of_procedures, procedures));
    both->addLayout(right);
    share_while_shown(both, 0, 6, {procedures});
    share_while_shown(both, 1, 5, {gear, none, configurations});
    return both;
}

Card* entry_card(Samples& samples, Draw& draw) {
    Card* const card = draw.card(samples.frameSampleCollection);
    card->content()->addLayout(lists(samples, draw), 1);

    QLabel* const comments = draw.caption(samples.lblGearDeploymentComments, 'D');
    auto* const line = new QHBoxLayout;
    line->setSpacing(between_controls);
    line->addWidget(comments);
    line->addWidget(draw.text_box(samples.txtGearDeploymentComments, comments), 1);
    card->content()->addLayout(line);

    QLabel* const note = draw.still_needed(
        samples.cmdContinue,
        {{samples.lblSampleCollectionProcedureID, samples.MSHFlexSampleCollection,
          QStringLiteral("procedure")},
         {samples.lblFieldGearIDSelected, samples.MSHFlexGear, QStringLiteral("field gear")},
         {samples.lblGearConfiguration, samples.MSHFlexGearConfiguration,
          QStringLiteral("gear configuration")}},
        QStringLiteral("Choose a procedure again."));
    card->content()->addLayout(foot({}, note, draw.filled(samples.cmdContinue, 'C')));
    return card;
}

}  // namespace

void lay_out_samples(FrmPreferencesSamples& samples, Draw& draw) {
    begin_step(samples.lblFileNameCaption, samples.lblFileName, draw);
    QVBoxLayout* const page = draw.window().page();
    page->addWidget(display_card(samples, draw));
    page->addWidget(entry_card(samples, draw), 1);
    page->addStretch(0);
}

}  // namespace brooklander::desktop
