// The translation of names, drawn for the two screens that translate them.
#pragma once

#include <QGridLayout>
#include <QString>
#include <functional>

#include "characteristics/name_translation_panel.h"
#include "platform/desktop/draw.h"

namespace brooklander::desktop {

// In what the screens differ.
struct TranslationParts {
    QString names;     // what their names are called
    QString name;      // the heading of one
    QString no_names;  // what stands in place of the names while there are none

    // Draw what only one screen has, on the card that they get; either may be missing. The names
    // are in row 1 of the grid, below their instruction, in column 0.
    std::function<void(QGridLayout* grid, Card* card)> beside_names;
    std::function<void(Card* card)> above_search;
};

// The names are the work and take the height on the left; what is done with one goes down on the
// right. The keyboard is led from step to step and back to the names.
void lay_out_name_translation(NameTranslation& translation, const TranslationParts& parts,
                              Draw& draw);

}  // namespace brooklander::desktop
