-- Every statement that the screens send to KELDAR, word for word as they put it together, with values
-- of the sample database where the screens join theirs in. A statement stands on one line, as it is
-- sent; the comment above it says which grid or step sends it, and what for. Statements behind
-- a comment that begins with "No rows" find nothing in the sample database; all others find something.
--
-- Loaded into sqlite3 or psql, the file runs as it stands; on SQLite, KELDAR1 has to be attached and
-- LIKE to be sensitive to case. The one word that differs from what is sent is told at its statement.

-- frmDataLogger.MSHFlexOrganization: the organizations to choose from.
Select org_id, name From tsmorgan Where org_id <> 'ZZZZZZZZ';

-- frmPreferencesSettings and frmLogger, MSHFlexOrganization: the organizations to choose from, by id.
Select org_id, name From tsmorgan Where org_id < 'ZZZZZZZZ' or org_id > 'ZZZZZZZZ' Order By org_id;

-- frmPreferences, replacing a configuration: whether the database answers.
SELECT org_id FROM KELDAR1.TSMORGAN;

-- frmPreferencesSettings.MSHFlexTrip: the trips of an organization.
SELECT DISTINCT tsrtrip.id_code, tsrtrip.tsrtrip_org_id, tsrtrip.name, tsrtrip.tsrtrip_is_number from tsrtrip WHERE tsrtrip.tsrtrip_org_id = 'ALDER';

-- frmPreferencesSamples.MSHFlexSampleCollection: the sample collection procedures of an organization.
SELECT tsrfldpr.tsrfldpr_org_id, tsrfldpr.id_code, tsrfldpr.name, tsrfldpr.tsrfldpr_is_number, tsrfldpr.fld_gear_type_name FROM tsrfldpr WHERE tsrfldpr.tsrfldpr_org_id = 'ALDER' Order By tsrfldpr.id_code;

-- No rows: the same for an organization that takes no samples.
SELECT tsrfldpr.tsrfldpr_org_id, tsrfldpr.id_code, tsrfldpr.name, tsrfldpr.tsrfldpr_is_number, tsrfldpr.fld_gear_type_name FROM tsrfldpr WHERE tsrfldpr.tsrfldpr_org_id = 'FENMOOR' Order By tsrfldpr.id_code;

-- frmPreferencesSamples.MSHFlexGear: the gear of the type that a procedure asks for.
SELECT DISTINCT tsrfldgr.id_code, tsrfldgr.type_name, tsrfldgr.name, tsrfldpr.fld_gear_type_name from tsrfldgr, tsrfldpr WHERE tsrfldgr.type_name = 'Water Sampler' And tsrfldgr.type_name = tsrfldpr.fld_gear_type_name Order By tsrfldgr.id_code;

-- No rows: the same for a type of which there is no gear.
SELECT DISTINCT tsrfldgr.id_code, tsrfldgr.type_name, tsrfldgr.name, tsrfldpr.fld_gear_type_name from tsrfldgr, tsrfldpr WHERE tsrfldgr.type_name = 'Electrofisher' And tsrfldgr.type_name = tsrfldpr.fld_gear_type_name Order By tsrfldgr.id_code;

-- No rows: the same for a procedure without gear.
SELECT DISTINCT tsrfldgr.id_code, tsrfldgr.type_name, tsrfldgr.name, tsrfldpr.fld_gear_type_name from tsrfldgr, tsrfldpr WHERE tsrfldgr.type_name = '' And tsrfldgr.type_name = tsrfldpr.fld_gear_type_name Order By tsrfldgr.id_code;

-- frmPreferencesSamples.MSHFlexGearConfiguration: how an organization sets up a piece of gear. Oracle
-- gets its outer-join mark, a plus sign in parentheses, behind the second tsrfldgr_is_number of the
-- condition; the condition on the gear's id undoes what the mark would add.
SELECT DISTINCT tsrgrcfg.tsrgrcfg_org_id, tsrgrcfg.id_code, tsrgrcfg.name, tsrgrcfg.tsrfldgr_is_number, tsrfldgr.tsrfldgr_is_number, tsrfldgr.id_code FROM tsrgrcfg, tsrfldgr WHERE tsrgrcfg.tsrfldgr_is_number = tsrfldgr.tsrfldgr_is_number AND tsrgrcfg.tsrgrcfg_org_id = 'LONGLAKE' AND tsrfldgr.id_code = 'KEMMERER' Order By tsrgrcfg.id_code;

-- No rows: the same for gear that is used as it comes.
SELECT DISTINCT tsrgrcfg.tsrgrcfg_org_id, tsrgrcfg.id_code, tsrgrcfg.name, tsrgrcfg.tsrfldgr_is_number, tsrfldgr.tsrfldgr_is_number, tsrfldgr.id_code FROM tsrgrcfg, tsrfldgr WHERE tsrgrcfg.tsrfldgr_is_number = tsrfldgr.tsrfldgr_is_number AND tsrgrcfg.tsrgrcfg_org_id = 'LONGLAKE' AND tsrfldgr.id_code = 'BUCKET' Order By tsrgrcfg.id_code;

-- frmPreferencesSampleOption.MSHFlexProjects: the projects of an organization.
SELECT DISTINCT tsmproj.tsmproj_is_number, tsmproj.identification_cd, tsmproj.name, tsmproj.tsmproj_org_id FROM tsrtpa, tsmproj WHERE tsmproj.tsmproj_org_id = 'ALDER' Order By tsmproj.identification_cd;

-- frmPreferencesSampleOption.MSHFlexProjects: the projects that a trip was made for.
SELECT DISTINCT tsmproj.tsmproj_is_number, tsmproj.identification_cd, tsmproj.name, tsmproj.tsmproj_org_id, tsrtpa.tsrtrip_is_number, tsrtpa.tsmproj_is_number, tsrtpa.tsmproj_org_id FROM tsrtpa, tsmproj WHERE tsmproj.tsmproj_is_number = tsrtpa.tsmproj_is_number AND tsrtpa.tsmproj_org_id = tsmproj.tsmproj_org_id AND tsmproj.tsmproj_org_id = 'ALDER' AND tsrtpa.tsrtrip_is_number = '222' Order By tsmproj.identification_cd;

-- frmPreferencesSampleOption.MSHFlexPerson: the persons of an organization who still collect samples.
SELECT DISTINCT tsmpersn.tsmpersn_org_id,tsmpersn.last_name,tsmpersn.first_name,tsmpersn.active_indicatr_cd FROM tsmpersn WHERE tsmpersn.active_indicatr_cd = 'Y' and tsmpersn.tsmpersn_org_id = 'ALDER' Order By tsmpersn.last_name;

-- frmPreferencesSampleOption.MSHFlexSampleTransportation: how samples reach the laboratory.
SELECT DISTINCT tsrsdp.tsrsdp_org_id, tsrsdp.id_code, tsrsdp.name FROM tsrsdp WHERE tsrsdp.tsrsdp_org_id = 'ALDER' Order By tsrsdp.id_code;

-- frmImport.MSHFlexSystemHabitat: the rows of the group S, defined by the system.
SELECT DISTINCT tsrccga.tsrchgrp_is_number, tsrccga.tsrchar_is_number, tsrccga.tsrccga_is_number, tsrccga.tsrccga_org_id, tsrccga.sequence_number, tsrchdef.tsrccga_is_number, tsrchdef.tsrchdef_is_number, tsrchdef.row_id, tsrchdef.uom_name, tsrchdef.smpl_frac_type_nm, tsrchdef.tsrchdef_org_id, tsrchgrp.tsrchgrp_is_number, tsrchgrp.id_code, tsrchgrp.tsrchgrp_org_id, tsrchgrp.fld_act_type_nm, tsrchgrp.medium_type_name, tsrchar.tsrchar_is_number, tsrchar.display_name, tsrchar.d_scr_type_cd, tsrchgrp.habitat_assess_ind, tsrchgrp.char_defined_ind FROM tsrccga, tsrchdef, tsrchgrp, tsrchar WHERE tsrchgrp.tsrchgrp_org_id = tsrchdef.tsrchdef_org_id AND tsrchgrp.tsrchgrp_org_id = tsrccga.tsrccga_org_id AND tsrchgrp.tsrchgrp_is_number = tsrccga.tsrchgrp_is_number AND tsrchar.tsrchar_is_number = tsrccga.tsrchar_is_number AND tsrccga.tsrccga_is_number = tsrchdef.tsrccga_is_number AND tsrchgrp.tsrchgrp_org_id= 'LONGLAKE' AND tsrchgrp.id_code = 'S' ORDER BY tsrccga.sequence_number;

-- frmImport.MSHFlexUserHabitat: the rows of the group U, defined by the organization.
SELECT DISTINCT tsrchgrp.tsrchgrp_org_id, tsrchgrp.tsrchgrp_is_number, tsrchgrp.id_code, tsrhcsc.tsrhcsc_org_id, tsrhcsc.tsrchgrp_is_number, tsrhcsc.characterstc_name, tsrhcsc.description_text, tsrhcsc.row_id, tsrhcsc.tsrhcsc_is_number, tsrchgrp.char_defined_ind FROM tsrchgrp, tsrhcsc WHERE tsrchgrp.tsrchgrp_org_id = tsrhcsc.tsrhcsc_org_id AND tsrchgrp.tsrchgrp_is_number = tsrhcsc.tsrchgrp_is_number AND tsrchgrp.tsrchgrp_org_id = 'LONGLAKE' AND tsrchgrp.id_code= 'U' ORDER BY tsrhcsc.tsrhcsc_is_number;

-- frmImport.MSHFlexCharacteristics: the characteristics of a group that a configuration names.
Select tsrchgrp.tsrchgrp_org_id, tsrchgrp.tsrchgrp_is_number, tsrchgrp.id_code, tsrchgrp.name, tsrccga.tsrccga_is_number, tsrccga.tsrccga_org_id, tsrccga.sequence_number, tsrccga.tsrchar_is_number, tsrccga.tsrchgrp_is_number, tsrccga.tsrchgrp_org_id, tsrchdef.tsrchdef_org_id, tsrchdef.row_id, tsrchdef.tsrccga_is_number, tsrchdef.tsrccga_org_id, tsrchar.tsrchar_is_number, tsrchar.display_name FROM tsrchgrp, tsrccga, tsrchdef, tsrchar Where tsrchgrp.id_code = 'RIVCHEM' AND tsrccga.tsrccga_org_id = 'ALDER' AND tsrchdef.tsrchdef_org_id = 'ALDER' AND tsrccga.tsrchgrp_org_id = 'ALDER' AND tsrchdef.tsrccga_org_id = 'ALDER' AND tsrccga.tsrchgrp_is_number = tsrchgrp.tsrchgrp_is_number AND tsrccga.tsrccga_is_number = tsrchdef.tsrccga_is_number AND tsrccga.tsrchar_is_number = tsrchar.tsrchar_is_number AND tsrchgrp.id_code = 'RIVCHEM' ORDER BY tsrccga.sequence_number ;

-- No rows: the same for a configuration that names no group, the usual case.
Select tsrchgrp.tsrchgrp_org_id, tsrchgrp.tsrchgrp_is_number, tsrchgrp.id_code, tsrchgrp.name, tsrccga.tsrccga_is_number, tsrccga.tsrccga_org_id, tsrccga.sequence_number, tsrccga.tsrchar_is_number, tsrccga.tsrchgrp_is_number, tsrccga.tsrchgrp_org_id, tsrchdef.tsrchdef_org_id, tsrchdef.row_id, tsrchdef.tsrccga_is_number, tsrchdef.tsrccga_org_id, tsrchar.tsrchar_is_number, tsrchar.display_name FROM tsrchgrp, tsrccga, tsrchdef, tsrchar Where tsrchgrp.id_code = '' AND tsrccga.tsrccga_org_id = 'ALDER' AND tsrchdef.tsrchdef_org_id = 'ALDER' AND tsrccga.tsrchgrp_org_id = 'ALDER' AND tsrchdef.tsrccga_org_id = 'ALDER' AND tsrccga.tsrchgrp_is_number = tsrchgrp.tsrchgrp_is_number AND tsrccga.tsrccga_is_number = tsrchdef.tsrccga_is_number AND tsrccga.tsrchar_is_number = tsrchar.tsrchar_is_number AND tsrchgrp.id_code = '' ORDER BY tsrccga.sequence_number ;

-- frmCharacteristics.cmbCharacteristics, taxa left out: the names that hold a text.
Select Distinct search_name, display_name, d_scr_type_cd from tsrchar Where d_scr_type_cd <> 'TAXA' And search_name LIKE '%PHOSPHORUS%';

-- frmCharacteristics.cmbCharacteristics: a name in capitals that is the only match, and so is taken
-- without the user.
Select Distinct search_name, display_name, d_scr_type_cd from tsrchar Where d_scr_type_cd <> 'TAXA' And search_name LIKE '%MTBE%';

-- No rows: the same search for a taxon.
Select Distinct search_name, display_name, d_scr_type_cd from tsrchar Where d_scr_type_cd <> 'TAXA' And search_name LIKE '%DREISSENA%';

-- frmCharacteristics.cmbCharacteristics, taxa only: the names that hold a text.
Select Distinct search_name, display_name, d_scr_type_cd  from tsrchar Where d_scr_type_cd = 'TAXA' And search_name LIKE '%DREISSENA%';

-- frmSubjectTaxon.cmbCharacteristics: the taxa that hold the letters of pH, which are no exception here.
Select Distinct search_name, display_name, d_scr_type_cd  from tsrchar Where d_scr_type_cd = 'TAXA' And search_name LIKE '%PH%';

-- No rows: LIKE minds capitals, and search names are all in capitals.
Select Distinct search_name, display_name, d_scr_type_cd  from tsrchar Where d_scr_type_cd = 'TAXA' And search_name LIKE '%Dreissena%';

-- frmCharacteristicDetails.MSHFlexUOM: all units.
Select Distinct short_form_name, description_text From tsruom;

-- frmCharacteristicDetails.MSHFlexSource: the sources of analytical procedures.
Select Distinct source_acr, source_name From tsranlpr Order By source_acr;

-- frmCharacteristicDetails.cmbLab: the laboratories of an organization.
Select tsrlab_org_id, name, id_code From tsrlab Where tsrlab_org_id = 'LONGLAKE';

-- No rows: the same for an organization that sends no samples to a laboratory.
Select tsrlab_org_id, name, id_code From tsrlab Where tsrlab_org_id = 'FENMOOR';

-- frmCharacteristicDetails.MSHFlexProc: all procedures of a source.
Select source_acr, procedure_id, name From tsranlpr Where source_acr = 'KELDAR' Order By procedure_id;

-- frmCharacteristicDetails.MSHFlexProc: the procedures of a source whose id holds "k-no", typed so, in
-- one of three spellings.
Select source_acr, procedure_id, name From tsranlpr Where source_acr = 'KELDAR' And (procedure_id LIKE '%K-no%' Or procedure_id LIKE '%k-no%' Or procedure_id LIKE '%K-NO%') Order By procedure_id;

-- frmCharacteristicDetails.MSHFlexProc: the procedures of a source whose name holds "chlorophyll",
-- typed so, with a capital in first place.
Select source_acr, procedure_id, name From tsranlpr Where source_acr = 'LIMNOMETHODS' And name LIKE '%Chlorophyll%' Order By procedure_id;

-- No rows: a name search for "fluorometer" finds only names that spell it with a capital.
Select source_acr, procedure_id, name From tsranlpr Where source_acr = 'KELDAR' And name LIKE '%Fluorometer%' Order By procedure_id;

-- frmCharacteristicDetails.MSHFlexUOM: the units that hold "mg", typed so, in one of two spellings.
Select Distinct short_form_name, description_text From tsruom Where short_form_name Like '%Mg%' Or short_form_name Like '%mg%';

-- frmCharacteristicDetails.MSHFlexUOM: every unit, for a typed percent sign.
Select Distinct short_form_name, description_text From tsruom Where short_form_name Like '%%%' Or short_form_name Like '%%%';

-- frmLogger.MSHFlexADL: the logger installations of an organization.
Select tsradl_org_id, id_code, serial_number, model, make From tsradl Where tsradl_org_id = 'FENMOOR';

-- frmLogger.MSHFlexLogFile: the log files of an organization.
Select tsradl.tsradl_is_number, tsradl.tsradl_org_id, tsropprd.tsropprd_org_id, tsropprd.tsropprd_is_number, tsropprd.log_file_name, tsropprd.tsradl_is_number, tsropprd.tsradl_org_id, tsropprd.start_date, tsropprd.stop_date From tsradl, tsropprd Where tsradl.tsradl_org_id = tsropprd.tsradl_org_id AND tsradl.tsradl_is_number = tsropprd.tsradl_is_number And tsropprd.tsropprd_org_id = 'LONGLAKE';

-- frmLoggerResults.MSHFlexCharGroup: the characteristic groups of an organization's loggers.
Select tsrchgrp_org_id, tsrchgrp_is_number, id_code, name, fld_act_type_nm From tsrchgrp Where fld_act_type_nm = 'Data Logger' And tsrchgrp_org_id = 'ALDER';

-- frmLoggerResults.MSHFlexChars: the characteristics of a logger's group, in their order. No blank
-- stands between the group and the last condition.
Select tsrchgrp.tsrchgrp_is_number, tsrchgrp.tsrchgrp_org_id, tsrchgrp.id_code, tsrchgrp.name, tsrchgrp.fld_act_type_nm, tsrchdef.tsrchdef_is_number, tsrchdef.tsrchdef_org_id, tsrchdef.row_id, tsrchdef.uom_name, tsrchdef.tsrccga_is_number, tsrchdef.tsrccga_org_id, tsrccga.tsrccga_is_number, tsrccga.tsrccga_org_id, tsrccga.sequence_number, tsrccga.tsrchar_is_number, tsrccga.tsrchgrp_is_number, tsrccga.tsrchgrp_org_id, tsrchar.tsrchar_is_number, tsrchar.display_name From tsrchgrp, tsrchdef, tsrccga, tsrchar Where tsrchgrp.fld_act_type_nm = 'Data Logger' And tsrchgrp.tsrchgrp_org_id = tsrchdef.tsrchdef_org_id And tsrchgrp.tsrchgrp_org_id = tsrccga.tsrchgrp_org_id And tsrchdef.tsrccga_is_number = tsrccga.tsrccga_is_number And tsrchgrp.tsrchgrp_is_number = tsrccga.tsrchgrp_is_number And tsrccga.tsrchar_is_number = tsrchar.tsrchar_is_number And tsrchgrp.tsrchgrp_org_id='LONGLAKE' And tsrchgrp.id_code = 'BUOY'And tsrchdef.tsrchdef_org_id= 'LONGLAKE' Order By tsrccga.sequence_number;

-- frmDataLogger, AdodcLogger: the loggers of an organization and the stations at which they stand.
Select tsradl_org_id, tsradl_is_number, id_code, tsmstatn_org_id, tsmstatn_is_number, model FROM tsradl Where tsradl_org_id = 'ALDER   ';

-- frmDataLogger.MSHFlexGroups: the characteristic groups of an organization's loggers. A blank stands
-- behind the organization.
Select tsrchgrp_org_id, id_code, name, fld_act_type_nm From tsrchgrp Where fld_act_type_nm = 'Data Logger' And tsrchgrp_org_id= 'ALDER    ';

-- frmDataLogger.MSHFlexContents: the characteristics of a logger's group that have a row id.
SELECT tsrccga.tsrchgrp_is_number, tsrccga.tsrchar_is_number, tsrccga.tsrccga_is_number, tsrccga.tsrccga_org_id, tsrccga.sequence_number, tsrchdef.tsrccga_is_number, tsrchdef.tsrchdef_is_number, tsrchdef.row_id, tsrchdef.uom_name, tsrchdef.smpl_frac_type_nm, tsrchdef.tsrchdef_org_id, tsrchgrp.tsrchgrp_is_number, tsrchgrp.id_code, tsrchgrp.tsrchgrp_org_id, tsrchgrp.fld_act_type_nm, tsrchgrp.medium_type_name, tsrchar.tsrchar_is_number, tsrchar.display_name, tsrchar.d_scr_type_cd FROM tsrccga, tsrchdef, tsrchgrp, tsrchar WHERE tsrchgrp.tsrchgrp_org_id = 'ALDER   ' And tsrchgrp.tsrchgrp_org_id = tsrchdef.tsrchdef_org_id And tsrchgrp.tsrchgrp_org_id = tsrccga.tsrccga_org_id AND tsrchgrp.tsrchgrp_is_number = tsrccga.tsrchgrp_is_number AND tsrchar.tsrchar_is_number = tsrccga.tsrchar_is_number AND tsrccga.tsrccga_is_number = tsrchdef.tsrccga_is_number AND tsrchgrp.id_code = 'SONDE   ' AND tsrchdef.row_id > ' ' ORDER BY tsrccga.sequence_number ;

-- No rows: the same for a group whose characteristics have no row ids yet.
SELECT tsrccga.tsrchgrp_is_number, tsrccga.tsrchar_is_number, tsrccga.tsrccga_is_number, tsrccga.tsrccga_org_id, tsrccga.sequence_number, tsrchdef.tsrccga_is_number, tsrchdef.tsrchdef_is_number, tsrchdef.row_id, tsrchdef.uom_name, tsrchdef.smpl_frac_type_nm, tsrchdef.tsrchdef_org_id, tsrchgrp.tsrchgrp_is_number, tsrchgrp.id_code, tsrchgrp.tsrchgrp_org_id, tsrchgrp.fld_act_type_nm, tsrchgrp.medium_type_name, tsrchar.tsrchar_is_number, tsrchar.display_name, tsrchar.d_scr_type_cd FROM tsrccga, tsrchdef, tsrchgrp, tsrchar WHERE tsrchgrp.tsrchgrp_org_id = 'LONGLAKE' And tsrchgrp.tsrchgrp_org_id = tsrchdef.tsrchdef_org_id And tsrchgrp.tsrchgrp_org_id = tsrccga.tsrccga_org_id AND tsrchgrp.tsrchgrp_is_number = tsrccga.tsrchgrp_is_number AND tsrchar.tsrchar_is_number = tsrccga.tsrchar_is_number AND tsrccga.tsrccga_is_number = tsrchdef.tsrccga_is_number AND tsrchgrp.id_code = 'NEWBUOY ' AND tsrchdef.row_id > ' ' ORDER BY tsrccga.sequence_number ;
