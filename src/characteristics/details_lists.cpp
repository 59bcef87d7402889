#include "characteristics/details_lists.h"

#include <string>

#include "shared/workspace.h"
#include "sweeps/keldar.h"

namespace brooklander {

void prepare_details(Screens& screens, Platform& platform, std::string_view organization) {
    FrmCharacteristicDetails& details = screens.frmCharacteristicDetails;
    for (DataSource* const source :
         {&details.AdodcProc, &details.AdodcUOM, &details.AdodcProcSource, &details.AdodcLab}) {
        connect_to_keldar(*source, screens.frmStart);
    }
    details.AdodcUOM.set_record_source(
        "Select Distinct short_form_name, description_text From tsruom");
    details.AdodcProcSource.set_record_source(
        "Select Distinct source_acr, source_name From tsranlpr Order By source_acr");
    details.AdodcLab.set_record_source(
        "Select tsrlab_org_id, name, id_code From tsrlab Where tsrlab_org_id = '" +
        std::string(organization) + "'");
    for (DataSource* const source :
         {&details.AdodcUOM, &details.AdodcProcSource, &details.AdodcLab}) {
        source->refresh(platform.database);
    }
    read_reference_lists(platform.files, {.fractions = details.cmbFraction,
                                          .statistic_types = details.cmbStatistic,
                                          .durations = details.cmbDuration,
                                          .temperatures = details.cmbTemperature});
}

}  // namespace brooklander
