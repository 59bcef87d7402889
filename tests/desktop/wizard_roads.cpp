#include "desktop/wizard_roads.h"

#include "desktop/road_answers.h"

namespace brooklander::test {
namespace {

const std::vector<AnswerTable>& tables() {
    static const std::vector<AnswerTable> all{
        two_organizations(),
        {"from tsrtrip",
         {{"ID_CODE", "TSRTRIP_ORG_ID", "NAME", "TSRTRIP_IS_NUMBER"},
          {{"SPRING         ", "MERES   ", "All meres, spring turnover", "11"}}}},
        {"FROM tsrgrcfg",
         {{"TSRGRCFG_ORG_ID", "ID_CODE", "NAME", "TSRFLDGR_IS_NUMBER", "NUMBER", "ID_CODE"},
          {{"MERES   ", "SHORT     ", "Short line", "1", "1", "BOTTLE    "},
           {"MERES   ", "LONG      ", "Line of 60 m with a messenger and a stop ring, second reel",
            "1", "1", "BOTTLE    "}}}},
        {"from tsrfldgr",
         {{"ID_CODE", "TYPE_NAME", "NAME", "FLD_GEAR_TYPE_NAME"},
          {{"BOTTLE    ", "Water Sampler", "Sampling bottle", "Water Sampler"},
           {"TUBE      ", "Water Sampler", "Tube sampler of clear plastic, weighted, with a valve",
            "Water Sampler"}}}},
        {"FROM tsrfldpr",
         {{"TSRFLDPR_ORG_ID", "ID_CODE", "NAME", "TSRFLDPR_IS_NUMBER", "FLD_GEAR_TYPE_NAME"},
          {{"MERES   ", "DIP       ", "Dip by hand", "1", ""},
           {"MERES   ", "PROFILE   ", "Profile of five depths above the deepest point of the mere",
            "2", "Water Sampler"}}}},
        {"tsmproj.identification_cd",
         {{"TSMPROJ_IS_NUMBER", "IDENTIFICATION_CD", "NAME", "TSMPROJ_ORG_ID"},
          {{"1", "ALGAE   ", "Blooms", "MERES   "},
           {"2", "REEDS   ", "Return of the reed beds along the shores of the northern meres",
            "MERES   "}}}},
        {"FROM tsmpersn",
         {{"TSMPERSN_ORG_ID", "LAST_NAME", "FIRST_NAME", "ACTIVE_INDICATR_CD"},
          {{"MERES   ", "Ash", "Mo", "Y"},
           {"MERES   ", "Featherstonehaugh-Underhill", "Wilhelmina Josephine", "Y"}}}},
        {"FROM tsrsdp",
         {{"TSRSDP_ORG_ID", "ID_CODE", "NAME"},
          {{"MERES   ", "COOL      ", "Cooled"},
           {"MERES   ", "COOLACID  ", "Cooled to 4 degrees, acid added within fifteen minutes"}}}},
    };
    return all;
}

FrmPreferencesSettings& settings_of(DrawnProgram& drawn) {
    return drawn.screens().frmPreferencesSettings;
}
FrmPreferencesSamples& samples_of(DrawnProgram& drawn) {
    return drawn.screens().frmPreferencesSamples;
}
FrmPreferencesSampleOption& options_of(DrawnProgram& drawn) {
    return drawn.screens().frmPreferencesSampleOption;
}

void choose_organization(DrawnProgram& drawn, int row) {
    name_configuration(drawn);
    drawn.act([&] { settings_of(drawn).MSHFlexOrganization.click_cell({row, 0}); });
}

void choose_water(DrawnProgram& drawn) {
    choose_organization(drawn, 1);
    drawn.act([&] {
        settings_of(drawn).chkSample.turn_over();
        settings_of(drawn).chkWater.turn_over();
    });
}

void go_to_samples(DrawnProgram& drawn) {
    choose_water(drawn);
    drawn.act([&] {
        settings_of(drawn).lstTimeZone.click_entry(2);
        settings_of(drawn).cmdSave.press();
    });
}

void choose_procedure(DrawnProgram& drawn) {
    go_to_samples(drawn);
    drawn.act([&] { samples_of(drawn).MSHFlexSampleCollection.click_cell({2, 0}); });
}

void choose_configuration(DrawnProgram& drawn) {
    choose_procedure(drawn);
    drawn.act([&] { samples_of(drawn).MSHFlexGear.click_cell({1, 0}); });
    drawn.act([&] { samples_of(drawn).MSHFlexGearConfiguration.click_cell({2, 0}); });
}

void edit(DrawnProgram& drawn) {
    choose_water(drawn);
    drawn.act([&] {
        drawn.screens().frmPreferences.lblSelectedFile.set_text("meres in the north, monthly.txt");
        samples_of(drawn).lblSampleCollectionProcedureID.set_text("PROFILE");
        settings_of(drawn).chkAir.turn_over();
    });
    drawn.act([&] { settings_of(drawn).cmdSave.press(); });
}

void fill_options(DrawnProgram& drawn) {
    choose_configuration(drawn);
    drawn.act([&] { samples_of(drawn).cmdContinue.press(); });
    drawn.act([&] {
        FrmPreferencesSampleOption& options = options_of(drawn);
        options.lblDepthUnits.set_text("m");
        options.lblSelectedProject.set_text("REEDS   ");
        options.lblProjectName.set_text(
            "Return of the reed beds along the shores of the northern meres");
        options.lblSelectedProjectTwo.set_text("ALGAE   ");
        options.lblProjectNameTwo.set_text("Blooms");
        options.lblSelectedName.set_text("Featherstonehaugh-Underhill Wilhelmina Josephine");
        options.lblSampleTransportID.set_text("COOLACID  ");
        options.lblSampleTransportName.set_text(
            "Cooled to 4 degrees, acid added within fifteen minutes");
        options.cmdNext.enable();
    });
}

void choose_habitat(DrawnProgram& drawn, int organization) {
    choose_organization(drawn, organization);
    drawn.act([&] {
        settings_of(drawn).chkField.turn_over();
        settings_of(drawn).chkHabitat.turn_over();
    });
}

}  // namespace

QueryResult answer_of_two_lakes(const Query& query) { return answer_from(tables(), query); }

void name_configuration(DrawnProgram& drawn) {
    drawn.database.answers = answer_of_two_lakes;
    drawn.log_on();
    drawn.act([&] { drawn.start_screen().mnuPreferences.choose(); });
    drawn.act([&] { drawn.screens().frmPreferences.optBrooklanderNew.choose(); });
    drawn.act([&] {
        drawn.screens().frmPreferences.txtFileName.type("meres");
        drawn.screens().frmPreferences.cmdNewFileSave.press();
    });
}

Roads wizard_roads() {
    return {
        {"settings 1 organizations", name_configuration},
        {"settings 2 organization", [](DrawnProgram& drawn) { choose_organization(drawn, 2); }},
        {"settings 3 water", choose_water},
        {"settings 4 habitat", [](DrawnProgram& drawn) { choose_habitat(drawn, 1); }},
        {"settings 5 all sections",
         [](DrawnProgram& drawn) {
             choose_water(drawn);
             drawn.act([&] { settings_of(drawn).frameActivityCategory.show(); });
         }},
        {"settings 6 trips",
         [](DrawnProgram& drawn) {
             choose_water(drawn);
             drawn.act([&] { settings_of(drawn).frameTrip.show(); });
         }},
        {"settings 7 stations",
         [](DrawnProgram& drawn) {
             choose_water(drawn);
             drawn.act([&] {
                 settings_of(drawn).frameStations.show();
                 settings_of(drawn).lstStations.add("MERE-1");
             });
         }},
        {"samples 1 procedures", go_to_samples},
        {"samples 2 procedure", choose_procedure},
        {"samples 3 configuration", choose_configuration},
        {"samples 4 gear without configuration",
         [](DrawnProgram& drawn) {
             choose_procedure(drawn);
             drawn.database.answers = {};
             drawn.act([&] { samples_of(drawn).MSHFlexGear.click_cell({2, 0}); });
         }},
        {"samples 5 procedure without gear",
         [](DrawnProgram& drawn) {
             go_to_samples(drawn);
             drawn.act([&] { samples_of(drawn).MSHFlexSampleCollection.click_cell({1, 0}); });
         }},
        {"samples 6 kept or changed", edit},
        {"samples 7 changed",
         [](DrawnProgram& drawn) {
             edit(drawn);
             drawn.act([&] { samples_of(drawn).cmdChange.press(); });
         }},
        {"samples 8 without procedures",
         [](DrawnProgram& drawn) {
             choose_organization(drawn, 2);
             drawn.act([&] {
                 settings_of(drawn).chkSample.turn_over();
                 settings_of(drawn).chkAir.turn_over();
                 settings_of(drawn).cmdSave.press();
             });
         }},
        {"options 1 sample",
         [](DrawnProgram& drawn) {
             choose_configuration(drawn);
             drawn.act([&] { samples_of(drawn).cmdContinue.press(); });
         }},
        {"options 2 chosen", fill_options},
        {"options 3 field",
         [](DrawnProgram& drawn) {
             choose_habitat(drawn, 1);
             drawn.act([&] { settings_of(drawn).cmdSave.press(); });
         }},
        {"options 4 empty lists",
         [](DrawnProgram& drawn) {
             choose_habitat(drawn, 2);
             drawn.act([&] { settings_of(drawn).cmdSave.press(); });
         }},
    };
}

}  // namespace brooklander::test
