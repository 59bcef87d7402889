#include "platform/desktop/file_choice.h"

#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>

#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

constexpr int folders_in_lines = 18;

// A caption that leads to a widget: a field's or, without one, the layout's own.
QLabel* caption_of(Label* label, const char* own, char letter, QWidget* to, Card* card,
                   Draw& draw) {
    QLabel* const caption = label != nullptr ? draw.caption(*label, letter)
                                             : draw.text(with_mnemonic(own, letter), card);
    caption->setWordWrap(false);
    caption->setBuddy(to);
    return caption;
}

QGridLayout* lists(const FileChoice& choice, Card* card, Draw& draw) {
    QLabel* const files_caption = draw.caption(choice.files_caption, 'l');
    QComboBox* const drives = draw.pick_list(choice.drives, QStringLiteral("Drive:"));
    ListWidget* const folders = draw.list(choice.folders, QStringLiteral("Directory:"));
    ListWidget* const files = draw.list(choice.files, shown(choice.files_caption.text()));
    files->set_empty_text(QStringLiteral("No text files here. Open another directory."));
    folders->setMinimumHeight(folders->fontMetrics().height() * folders_in_lines);
    files_caption->setBuddy(files);

    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(inside_card);
    grid->setVerticalSpacing(4);
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

}  // namespace

void keep_width(QWidget* widget, int letters) {
    widget->setFixedWidth(widget->fontMetrics().averageCharWidth() * letters);
    widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Maximum);
}

Card* file_choice_card(const FileChoice& choice, Draw& draw) {
    Card* const card = draw.card(choice.panel);
    keep_width(card, file_choice_in_letters);
    card->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    card->content()->addLayout(lists(choice, card, draw), 1);
    if (choice.hint != nullptr) card->content()->addWidget(draw.note(*choice.hint));
    auto* const chosen = new QHBoxLayout;
    chosen->setSpacing(between_controls);
    chosen->addWidget(draw.caption(choice.chosen_caption));
    chosen->addWidget(draw.value(choice.chosen, shown(choice.chosen_caption.text())), 1);
    chosen->addWidget(draw.filled(choice.view, 'V'));
    card->content()->addLayout(chosen);
    return card;
}

}  // namespace brooklander::desktop
