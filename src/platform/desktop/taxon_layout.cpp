#include "platform/desktop/layouts.h"
#include "platform/desktop/name_translation_view.h"

namespace brooklander::desktop {

void lay_out_taxon(FrmSubjectTaxon& taxon, Draw& draw) {
    lay_out_name_translation(taxon,
                             {.names = QStringLiteral("Taxon names"),
                              .name = QStringLiteral("Taxon name"),
                              .no_names = QStringLiteral("No taxon names are listed."),
                              .beside_names = {},
                              .above_search = {}},
                             draw);
}

}  // namespace brooklander::desktop
