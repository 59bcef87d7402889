#include <QPushButton>

#include "platform/desktop/configuration_view.h"
#include "platform/desktop/layouts.h"

namespace brooklander::desktop {

void lay_out_display(FrmConfigurationDisplay& display, Draw& draw) {
    Card* const card = configuration_card(display, QString(), draw);
    card->content()->addWidget(use_card(display, draw));
    QVBoxLayout* const page = draw.window().page();
    page->addWidget(draw.title());
    page->addWidget(card, 1);
    page->addLayout(row({draw.filled(display.cmdReturn, 'R')}, Side::right));
}

}  // namespace brooklander::desktop
