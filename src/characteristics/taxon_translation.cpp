#include "characteristics/taxon_translation.h"

#include "characteristics/name_translation.h"
#include "platform/code_page.h"
#include "platform/fatal_failure.h"
#include "shared/text.h"

namespace brooklander {

void MSFlexChar_Click(FrmSubjectTaxon& translation) { take_clicked_name(translation); }

void cmdDisplay_Click(Screens& screens, FrmSubjectTaxon& translation, Database& database) {
    translation.txtCharacteristic.set_text(upper(translation.txtCharacteristic.text()));
    search(translation, screens.frmStart, search_statement::taxa, database);
    if (!names_itself(translation)) {
        translation.frameMatch.show();
        return;
    }
    offer_of_itself(translation);
    throw FatalFailure("The taxon cannot be translated by itself: there is no list of names.");
}

void cmdYes_Click(FrmSubjectTaxon& translation) {
    put_translation(translation, trim(translation.lblSelectedCharacteristic.text()));
}

}  // namespace brooklander
