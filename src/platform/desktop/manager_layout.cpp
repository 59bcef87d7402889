#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "platform/desktop/configuration_view.h"
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

Card* file_options_card(Manager& manager, Draw& draw) {
    Card* const card = draw.card(manager.frameFileOptions);
    QPushButton* const close = draw.button(manager.cmdClose, 'l');
    QPushButton* const remove = draw.button(manager.cmdDelete, 'D');
    QPushButton* const open = draw.filled(manager.cmdOpen, 'E');
    for (QPushButton* const button : {close, remove, open}) card->head()->addWidget(button);
    return card;
}

Card* no_characteristics_card(Manager& manager, Draw& draw) {
    Card* const card = draw.card(manager.frameNoChar);
    card->content()->addLayout(row({draw.filled(manager.cmdContinue, 'o')}, Side::right));
    return card;
}

Card* view_card(Manager& manager, Draw& draw) {
    Card* const card = configuration_card(manager, QStringLiteral("Project Name:"), draw);
    card->head()->addWidget(draw.note(manager.lblWait));
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
        keep_width(card, left_in_letters);
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
    keep_height(remove);
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
