#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

using Manager = FrmPreferences;

constexpr int left_in_letters = 60;

Card* question(Panel& panel, Button& yes, Button& no, Draw& draw) {
    Card* const card = draw.card(panel);
    const auto [yes_button, no_button] = draw.to_be_sure(card, yes, no);
    card->content()->addLayout(row({yes_button, no_button}, Side::right));
    return card;
}

Card* options_card(Manager& manager, Draw& draw) {
    Card* const card = draw.card(manager.frameOptions);
    card->content()->addWidget(draw.option(manager.optBrookLanderEdit, 'V'));
    card->content()->addWidget(draw.option(manager.optBrooklanderNew, 'C'));
    card->content()->addWidget(draw.option(manager.optUseConfig, 'U'));
    card->content()->addWidget(draw.option(manager.optVox, 'X'));
    card->content()->addWidget(draw.note(manager.lblOption));
    return card;
}

Card* files_card(Manager& manager, Draw& draw) {
    Card* const card = draw.card(manager.frameFiles);
    ListWidget* const files = draw.list(manager.filePreferences, shown(manager.frameFiles.text()));
    files->set_empty_text(shown(manager.frameNoFile.text()));
    card->content()->addWidget(files, 1);
    card->content()->addWidget(
        draw.value(manager.lblSelectedFile, QStringLiteral("Selected file")));
    return card;
}

Card* new_file_card(Manager& manager, Draw& draw) {
    Card* const card = draw.card(manager.frameNewFile);
    auto* const line = new QHBoxLayout;
    line->setSpacing(between_controls);
    line->addWidget(draw.text_box(manager.txtFileName, QStringLiteral("File Name:")), 1);
    line->addWidget(draw.filled(manager.cmdNewFileSave, 'S'));
    card->content()->addWidget(draw.text(QStringLiteral("File Name:"), card));
    card->content()->addLayout(line);
    return card;
}

Card* no_file_card(Manager& manager, Draw& draw) {
    Card* const card = draw.card(manager.frameNoFile);
    card->content()->addLayout(row({draw.filled(manager.cmdCreate, 'r')}, Side::right));
    return card;
}

Card* converted_file_card(Manager& manager, Draw& draw) {
    Card* const card = draw.card(manager.frameFileConverted);
    card->content()->addWidget(
        draw.value(manager.lblFileConverted, shown(manager.frameFileConverted.text())));
    return card;
}

Card* description_card(Manager& manager, Draw& draw) {
    Card* const card = draw.card(manager.frameDescription);
    card->content()->addWidget(draw.note(manager.lblDefaults));
    card->content()->addWidget(draw.note(manager.lblDescription));
    return card;
}

// A value of the selected file, with its caption on the left.
struct ValueRow {
    const char* caption;
    Label Manager::*value;
};

// From left to right, two in a row.
constexpr std::array<ValueRow, 18> value_rows{{
    {"File Name:", &Manager::lblViewFileName},
    {"Characteristics:", &Manager::lblChar},
    {"Organization ID:", &Manager::lblOrganization},
    {"Organization Name:", &Manager::lblOrganizationName},
    {"Activity Type:", &Manager::lblActivityType},
    {"Activity Category:", &Manager::lblActivityCategory},
    {"Medium:", &Manager::lblMedium},
    {"Depth Units:", &Manager::lblDepthUnits},
    {"Sample Collection ID:", &Manager::lblSampleCollectionID},
    {"Sample Transport:", &Manager::lblSampleTransport},
    {"Field Gear ID:", &Manager::lblFieldGearID},
    {"Gear Type", &Manager::lblGearType},
    {"Gear Configuration", &Manager::lblGearConfiguration},
    {"Person:", &Manager::lblPerson},
    {"Project ID:", &Manager::lblProjectID},
    {"Project Name:", &Manager::lblProjectName},
    {"Time Zone:", &Manager::lblTimeZone},
    {"Trip ID:", &Manager::lblTrip},
}};

QGridLayout* values(Manager& manager, Card* card, Draw& draw) {
    auto* const form = new QGridLayout;
    form->setHorizontalSpacing(inside_card);
    form->setVerticalSpacing(2);
    int place = 0;
    for (const ValueRow& value : value_rows) {
        const QString caption = QLatin1String(value.caption);
        QLabel* const text = draw.text(caption, card);
        text->setWordWrap(false);
        form->addWidget(text, place / 2, place % 2 * 2);
        form->addWidget(draw.value(manager.*value.value, caption), place / 2, place % 2 * 2 + 1);
        ++place;
    }
    form->setColumnStretch(1, 1);
    form->setColumnStretch(3, 1);
    return form;
}

Card* file_options_card(Manager& manager, Draw& draw) {
    Card* const card = draw.card(manager.frameFileOptions);
    QPushButton* const close = draw.button(manager.cmdClose, 'l');
    QPushButton* const remove = draw.button(manager.cmdDelete, 'D');
    QPushButton* const open = draw.filled(manager.cmdOpen, 'E');
    for (QPushButton* const button : {close, remove, open}) card->head()->addWidget(button);
    return card;
}

Card* use_card(Manager& manager, Draw& draw) {
    Card* const card = draw.card(manager.frameUseFile);
    QCheckBox* const yes = draw.tick_box(manager.chkYes, 'Y');
    card->head()->addWidget(yes);
    card->head()->addWidget(draw.filled(manager.cmdConfirm, 'f'));
    return card;
}

Card* no_characteristics_card(Manager& manager, Draw& draw) {
    Card* const card = draw.card(manager.frameNoChar);
    card->content()->addLayout(row({draw.filled(manager.cmdContinue, 'o')}, Side::right));
    return card;
}

Card* view_card(Manager& manager, Draw& draw) {
    Card* const card = draw.card(manager.frameView);
    card->head()->addWidget(draw.note(manager.lblWait));
    card->content()->addLayout(values(manager, card, draw));
    card->content()->addWidget(draw.tick_box(manager.chkEdit, 'i'));
    card->content()->addStretch(1);
    card->content()->addWidget(file_options_card(manager, draw));
    card->content()->addWidget(use_card(manager, draw));
    card->content()->addWidget(no_characteristics_card(manager, draw));
    return card;
}

}  // namespace

void lay_out_manager(FrmPreferences& manager, Draw& draw) {
    auto* const left = new QVBoxLayout;
    left->setSpacing(between_cards);
    for (Card* const card : {converted_file_card(manager, draw), options_card(manager, draw),
                             new_file_card(manager, draw), no_file_card(manager, draw),
                             question(manager.frameFileExistsWarning, manager.cmdReplaceYes,
                                      manager.cmdReplaceNo, draw),
                             question(manager.frameConfirm, manager.cmdYes, manager.cmdNo, draw),
                             description_card(manager, draw)}) {
        card->setFixedWidth(card->fontMetrics().averageCharWidth() * left_in_letters);
        card->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Maximum);
        left->addWidget(card);
    }
    Card* const files = files_card(manager, draw);
    files->setFixedWidth(files->fontMetrics().averageCharWidth() * left_in_letters);
    left->addWidget(files, 1);
    left->addStretch();

    auto* const right = new QVBoxLayout;
    right->setSpacing(between_cards);
    right->addWidget(view_card(manager, draw), 1);
    Card* const remove = question(manager.frameConfirmDelete, manager.cmdFileDeleteYes,
                                  manager.cmdFileDeleteNo, draw);
    remove->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    right->addWidget(remove);
    right->addStretch();

    auto* const whole = new QHBoxLayout;
    whole->setSpacing(between_cards);
    whole->addLayout(left);
    whole->addLayout(right, 1);
    draw.window().page()->addWidget(draw.title());
    draw.window().page()->addLayout(whole, 1);
}

}  // namespace brooklander::desktop
