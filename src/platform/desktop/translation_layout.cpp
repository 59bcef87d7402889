#include <QCheckBox>

#include "platform/desktop/layouts.h"
#include "platform/desktop/name_translation_view.h"
#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

constexpr int names_in_letters = 20;

// Beside the names, quietly, the list with its stars.
void list_beside(FrmCharacteristics& translation, QGridLayout* grid, Card* card, Draw& draw) {
    ListWidget* const list =
        draw.list(translation.lstCharacteristics, QStringLiteral("Characteristics, done with *"));
    list->set_empty_text(QStringLiteral("No characteristics yet."));
    list->setFixedWidth(list->fontMetrics().averageCharWidth() * names_in_letters);
    grid->addWidget(draw.text(QStringLiteral("* Translated"), card), 0, 1);
    grid->addWidget(list, 1, 1);
}

void filter_above(FrmCharacteristics& translation, Card* card, Draw& draw) {
    Card* const filter = draw.section(translation.frameTaxa);
    filter->content()->addWidget(draw.tick_box(translation.chkTaxa, 'O'));
    filter->content()->addWidget(draw.tick_box(translation.chkNoTaxa, 'C'));
    card->content()->addWidget(filter);
}

}  // namespace

void lay_out_translation(FrmCharacteristics& translation, Draw& draw) {
    lay_out_name_translation(
        translation,
        {.names = QStringLiteral("Characteristics"),
         .name = QStringLiteral("Name in the file"),
         .no_names = QStringLiteral("No characteristics yet. Go back by Exit and choose a file."),
         .beside_names = [&](QGridLayout* grid,
                             Card* card) { list_beside(translation, grid, card, draw); },
         .above_search = [&](Card* card) { filter_above(translation, card, draw); }},
        draw);
}

}  // namespace brooklander::desktop
