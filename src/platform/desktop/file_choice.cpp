#include "platform/desktop/file_choice.h"

#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>

#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

// A caption that leads to a widget: a field's or, without one, the layout's own.
QLabel* caption_of(Label* label, const char* own, char letter, QWidget* to, Card* card,
                   Draw& draw) {
    QLabel* const caption = label != nullptr ? draw.caption(*label, letter)
                                             : draw.text(with_mnemonic(own, letter), card);
    caption->setWordWrap(false);
    caption->setBuddy(to);
    return caption;
}

QGridLayout* lists(const FileChoice& choice, int folder_lines, Card* card, Draw& draw) {
    QLabel* const files_caption = draw.caption(choice.files_caption, 'l');
    QComboBox* const drives = draw.pick_list(choice.drives, QStringLiteral("Drive:"));
    ListWidget* const folders = draw.list(choice.folders, QStringLiteral("Directory:"));
    ListWidget* const files = draw.list(choice.files, shown(choice.files_caption.text()));
    files->set_empty_text(QStringLiteral("No text files here. Open another directory."));
    folders->setMinimumHeight(folders->fontMetrics().height() * folder_lines);
    files_caption->setBuddy(files);
    for (ListWidget* const list : {folders, files}) {  // as high as the card lets them be
        list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    }

    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(inside_card);
    grid->setVerticalSpacing(close_together);
    grid->addWidget(caption_of(choice.drives_caption, "Drive:", 'D', drives, card, draw), 0, 0);
    grid->addWidget(drives, 1, 0);
    grid->addWidget(caption_of(choice.folders_caption, "Directory:", 'i', folders, card, draw), 2,
                    0);
    grid->addWidget(folders, 3, 0);
    grid->addWidget(files_caption, 0, 1);
    grid->addWidget(files, 1, 1, 3, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
    return grid;
}

// The buttons, of which one is filled.
void add_buttons(const FileChoice& choice, QHBoxLayout* line, Draw& draw) {
    if (choice.convert == nullptr) {
        line->addWidget(draw.filled(choice.view, 'V'));
        return;
    }
    QPushButton* const view = draw.button(choice.view, 'y');
    draw.window().moves_on(view);
    line->addWidget(view);
    line->addWidget(draw.filled(*choice.convert, 'C'));
}

}  // namespace

Card* file_choice_card(const FileChoice& choice, Draw& draw, FileChoiceRoom room) {
    Card* const card = draw.card(choice.panel);
    keep_width(card, room.letters);
    card->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    card->content()->addLayout(lists(choice, room.folder_lines, card, draw), 1);
    if (choice.hint != nullptr) card->content()->addWidget(draw.note(*choice.hint));
    auto* const chosen = new QHBoxLayout;
    chosen->setSpacing(between_controls);
    chosen->addWidget(draw.caption(choice.chosen_caption));
    chosen->addWidget(draw.value(choice.chosen, shown(choice.chosen_caption.text())), 1);
    add_buttons(choice, chosen, draw);
    card->content()->addLayout(chosen);
    return card;
}

}  // namespace brooklander::desktop
