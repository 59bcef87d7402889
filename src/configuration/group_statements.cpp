#include "configuration/group_statements.h"

namespace brooklander {

std::string system_group_statement(std::string_view organization, std::string_view group) {
    std::string statement =
        "SELECT DISTINCT tsrccga.tsrchgrp_is_number, tsrccga.tsrchar_is_number, "
        "tsrccga.tsrccga_is_number, tsrccga.tsrccga_org_id, tsrccga.sequence_number, "
        "tsrchdef.tsrccga_is_number, tsrchdef.tsrchdef_is_number, tsrchdef.row_id, "
        "tsrchdef.uom_name, tsrchdef.smpl_frac_type_nm, tsrchdef.tsrchdef_org_id, "
        "tsrchgrp.tsrchgrp_is_number, tsrchgrp.id_code, tsrchgrp.tsrchgrp_org_id, "
        "tsrchgrp.fld_act_type_nm, tsrchgrp.medium_type_name, tsrchar.tsrchar_is_number, "
        "tsrchar.display_name, tsrchar.d_scr_type_cd, tsrchgrp.habitat_assess_ind, "
        "tsrchgrp.char_defined_ind FROM tsrccga, tsrchdef, tsrchgrp, tsrchar WHERE "
        "tsrchgrp.tsrchgrp_org_id = tsrchdef.tsrchdef_org_id AND tsrchgrp.tsrchgrp_org_id = "
        "tsrccga.tsrccga_org_id AND tsrchgrp.tsrchgrp_is_number = tsrccga.tsrchgrp_is_number AND "
        "tsrchar.tsrchar_is_number = tsrccga.tsrchar_is_number AND tsrccga.tsrccga_is_number = "
        "tsrchdef.tsrccga_is_number AND tsrchgrp.tsrchgrp_org_id= '";
    statement += organization;
    statement += "' AND tsrchgrp.id_code = '";
    statement += group;
    statement += "' ORDER BY tsrccga.sequence_number";
    return statement;
}

std::string user_group_statement(std::string_view organization, std::string_view group) {
    std::string statement =
        "SELECT DISTINCT tsrchgrp.tsrchgrp_org_id, tsrchgrp.tsrchgrp_is_number, tsrchgrp.id_code, "
        "tsrhcsc.tsrhcsc_org_id, tsrhcsc.tsrchgrp_is_number, tsrhcsc.characterstc_name, "
        "tsrhcsc.description_text, tsrhcsc.row_id, tsrhcsc.tsrhcsc_is_number, "
        "tsrchgrp.char_defined_ind FROM tsrchgrp, tsrhcsc WHERE tsrchgrp.tsrchgrp_org_id = "
        "tsrhcsc.tsrhcsc_org_id AND tsrchgrp.tsrchgrp_is_number = tsrhcsc.tsrchgrp_is_number AND "
        "tsrchgrp.tsrchgrp_org_id = '";
    statement += organization;
    statement += "' AND tsrchgrp.id_code= '";
    statement += group;
    statement += "' ORDER BY tsrhcsc.tsrhcsc_is_number";
    return statement;
}

std::string characteristic_group_statement(std::string_view organization, std::string_view group) {
    std::string statement =
        "Select tsrchgrp.tsrchgrp_org_id, tsrchgrp.tsrchgrp_is_number, tsrchgrp.id_code, "
        "tsrchgrp.name, tsrccga.tsrccga_is_number, tsrccga.tsrccga_org_id, "
        "tsrccga.sequence_number, tsrccga.tsrchar_is_number, tsrccga.tsrchgrp_is_number, "
        "tsrccga.tsrchgrp_org_id, tsrchdef.tsrchdef_org_id, tsrchdef.row_id, "
        "tsrchdef.tsrccga_is_number, tsrchdef.tsrccga_org_id, tsrchar.tsrchar_is_number, "
        "tsrchar.display_name FROM tsrchgrp, tsrccga, tsrchdef, tsrchar Where tsrchgrp.id_code = '";
    statement += group;
    statement += "' AND tsrccga.tsrccga_org_id = '";
    statement += organization;
    statement += "' AND tsrchdef.tsrchdef_org_id = '";
    statement += organization;
    statement += "' AND tsrccga.tsrchgrp_org_id = '";
    statement += organization;
    statement += "' AND tsrchdef.tsrccga_org_id = '";
    statement += organization;
    statement +=
        "' AND tsrccga.tsrchgrp_is_number = tsrchgrp.tsrchgrp_is_number AND "
        "tsrccga.tsrccga_is_number = tsrchdef.tsrccga_is_number AND tsrccga.tsrchar_is_number = "
        "tsrchar.tsrchar_is_number AND tsrchgrp.id_code = '";
    statement += group;
    statement += "' ORDER BY tsrccga.sequence_number ";
    return statement;
}

}  // namespace brooklander
