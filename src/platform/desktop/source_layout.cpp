#include <QPushButton>
#include <QRadioButton>

#include "platform/desktop/file_choice.h"
#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

using Source = FrmCharSource;

// Its title is the sentence that says what the screen is for.
Card* message_card(Source& source, Draw& draw) {
    Card* const card = draw.card(source.framChar);
    keep_width(card, file_choice_in_letters);
    return card;
}

Card* configuration_file_card(Source& source, Draw& draw) {
    Card* const card = draw.card(source.frameFile);
    keep_width(card, file_choice_in_letters);
    card->head()->addWidget(draw.value(source.lblFile, shown(source.frameFile.text())), 3);
    return card;
}

Card* kind_card(Source& source, Draw& draw) {
    Card* const card = draw.card(source.frameLog);
    keep_width(card, file_choice_in_letters);
    card->content()->addLayout(
        row({draw.option(source.optLogYes, 'Y'), draw.option(source.optLogNo, 'N')}));
    return card;
}

Card* files_card(Source& source, Draw& draw) {
    return file_choice_card({.panel = source.frameFiles,
                             .drives = source.Drive1,
                             .folders = source.Dir1,
                             .files_caption = source.lblAvailableFiles,
                             .files = source.lstImportFileBox,
                             .chosen_caption = source.lblSelectedFileCaption,
                             .chosen = source.lblSelectedFile,
                             .view = source.cmdView},
                            draw);
}

}  // namespace

// One column in the middle, as wide as the start screen's choice of a file.
void lay_out_source(FrmCharSource& source, Draw& draw) {
    auto* const column = new QVBoxLayout;
    column->setSpacing(between_cards);
    column->addWidget(draw.title());
    column->addWidget(message_card(source, draw));
    column->addWidget(configuration_file_card(source, draw));
    column->addWidget(files_card(source, draw), 1);
    column->addWidget(kind_card(source, draw));
    column->addStretch(0);

    auto* const middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addLayout(column);
    middle->addStretch(1);
    draw.window().page()->addLayout(middle, 1);
}

}  // namespace brooklander::desktop
