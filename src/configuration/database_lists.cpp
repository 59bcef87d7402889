#include "configuration/database_lists.h"

#include <initializer_list>

#include "platform/code_page.h"
#include "shared/text.h"
#include "sweeps/keldar.h"

namespace brooklander {
namespace {

std::string joined(std::initializer_list<std::string_view> parts) {
    std::string statement;
    for (const std::string_view part : parts) statement += part;
    return statement;
}

}  // namespace

std::string organization_id(const FrmPreferencesSettings& settings) {
    return upper(trim(settings.lblSelectedOrganization.text()));
}

void list_organizations(Screens& screens, Database& database) {
    ask_keldar(screens.frmPreferencesSettings.AdodcOrganization, screens.frmStart,
               organizations_by_id, database);
}

void list_trips(Screens& screens, std::string_view organization, Database& database) {
    ask_keldar(screens.frmPreferencesSettings.AdodcTrip, screens.frmStart,
               joined({"SELECT DISTINCT tsrtrip.id_code, tsrtrip.tsrtrip_org_id, tsrtrip.name, "
                       "tsrtrip.tsrtrip_is_number from tsrtrip WHERE tsrtrip.tsrtrip_org_id = '",
                       organization, "'"}),
               database);
}

void list_procedures(Screens& screens, std::string_view organization, Database& database) {
    FrmPreferencesSamples& samples = screens.frmPreferencesSamples;
    samples.MSHFlexSampleCollection.set_column_widths({1300, 3800, 3000});
    ask_keldar(
        samples.AdodcSampleCollection, screens.frmStart,
        joined({"SELECT tsrfldpr.tsrfldpr_org_id, tsrfldpr.id_code, tsrfldpr.name, "
                "tsrfldpr.tsrfldpr_is_number, tsrfldpr.fld_gear_type_name FROM tsrfldpr WHERE "
                "tsrfldpr.tsrfldpr_org_id = '",
                organization, "' Order By tsrfldpr.id_code"}),
        database);
}

void list_sample_transports(Screens& screens, std::string_view organization, Database& database) {
    FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    options.MSHFlexSampleTransportation.set_column_widths({1300, 3400});
    ask_keldar(
        options.AdodcSampleTransportation, screens.frmStart,
        joined({"SELECT DISTINCT tsrsdp.tsrsdp_org_id, tsrsdp.id_code, tsrsdp.name FROM tsrsdp "
                "WHERE tsrsdp.tsrsdp_org_id = '",
                organization, "' Order By tsrsdp.id_code"}),
        database);
}

void list_persons(Screens& screens, std::string_view organization, Database& database) {
    FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    options.MSHFlexPerson.set_column_widths({2500, 2500});
    ask_keldar(
        options.AdodcPerson, screens.frmStart,
        joined({"SELECT DISTINCT "
                "tsmpersn.tsmpersn_org_id,tsmpersn.last_name,tsmpersn.first_name,tsmpersn."
                "active_indicatr_cd FROM tsmpersn WHERE tsmpersn.active_indicatr_cd = 'Y' and "
                "tsmpersn.tsmpersn_org_id = '",
                organization, "' Order By tsmpersn.last_name"}),
        database);
}

void list_projects(Screens& screens, std::string_view organization, std::string_view trip_number,
                   Database& database) {
    FrmPreferencesSampleOption& options = screens.frmPreferencesSampleOption;
    options.MSHFlexProjects.set_column_widths({1300, 4000});
    // The statement without a trip names the table of trips' projects, too, and joins it to
    // nothing: it finds no project as long as no trip has any.
    const std::string of_organization =
        joined({"SELECT DISTINCT tsmproj.tsmproj_is_number, tsmproj.identification_cd, "
                "tsmproj.name, tsmproj.tsmproj_org_id FROM tsrtpa, tsmproj WHERE "
                "tsmproj.tsmproj_org_id = '",
                organization, "' Order By tsmproj.identification_cd"});
    const std::string of_trip =
        joined({"SELECT DISTINCT tsmproj.tsmproj_is_number, tsmproj.identification_cd, "
                "tsmproj.name, tsmproj.tsmproj_org_id, tsrtpa.tsrtrip_is_number, "
                "tsrtpa.tsmproj_is_number, tsrtpa.tsmproj_org_id FROM tsrtpa, tsmproj WHERE "
                "tsmproj.tsmproj_is_number = tsrtpa.tsmproj_is_number AND tsrtpa.tsmproj_org_id = "
                "tsmproj.tsmproj_org_id AND tsmproj.tsmproj_org_id = '",
                organization, "' AND tsrtpa.tsrtrip_is_number = '", trip_number,
                "' Order By tsmproj.identification_cd"});
    ask_keldar(options.AdodcProjects, screens.frmStart,
               trip_number.empty() ? of_organization : of_trip, database);
}

void list_gear(Screens& screens, std::string_view gear_type, Database& database) {
    ask_keldar(
        screens.frmPreferencesSamples.AdodcGear, screens.frmStart,
        joined({"SELECT DISTINCT tsrfldgr.id_code, tsrfldgr.type_name, tsrfldgr.name, "
                "tsrfldpr.fld_gear_type_name from tsrfldgr, tsrfldpr WHERE tsrfldgr.type_name "
                "= '",
                gear_type,
                "' And tsrfldgr.type_name = tsrfldpr.fld_gear_type_name Order By "
                "tsrfldgr.id_code"}),
        database);
}

void list_gear_configurations(Screens& screens, std::string_view organization,
                              std::string_view gear_id, Database& database) {
    constexpr std::string_view of_organization =
        "SELECT DISTINCT tsrgrcfg.tsrgrcfg_org_id, tsrgrcfg.id_code, tsrgrcfg.name, "
        "tsrgrcfg.tsrfldgr_is_number, tsrfldgr.tsrfldgr_is_number, tsrfldgr.id_code FROM tsrgrcfg, "
        "tsrfldgr WHERE tsrgrcfg.tsrfldgr_is_number = tsrfldgr.tsrfldgr_is_number(+) AND "
        "tsrgrcfg.tsrgrcfg_org_id = '";
    ask_keldar(screens.frmPreferencesSamples.AdodcGearConfiguration, screens.frmStart,
               joined({of_organization, organization, "' AND tsrfldgr.id_code = '", gear_id,
                       "' Order By tsrgrcfg.id_code"}),
               database);
}

}  // namespace brooklander
