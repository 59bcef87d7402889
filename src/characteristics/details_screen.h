// The details of each characteristic of a configuration.
#pragma once

#include "shared/data_source.h"

namespace brooklander {

struct FrmCharacteristicDetails : Screen {
    explicit FrmCharacteristicDetails(Desk& desk)
        : Screen(desk, "frmCharacteristicDetails", "Characteristic Details") {
        MSHFlexSource.set_column_widths({1600, 3500});
        MSHFlexProc.set_column_widths({1500, 4000});
        MSHFlexUOM.set_column_widths({1000, 2200});
        AdodcProcSource.bind(MSHFlexSource);
        AdodcProc.bind(MSHFlexProc, bound::procedures);
        AdodcUOM.bind(MSHFlexUOM);
        AdodcLab.bind(cmbLab, laboratory_code);
    }

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};

    Label lblFileNameCaption{*this, "lblFileNameCaption", "Configuration File Name:"};
    Label lblFileName{*this, "lblFileName"};

    // Boxes that are used like options, with the further state that none is ticked. Each opens the
    // panel of its detail.
    Panel frameChoices{*this, "frameChoices", "Characteristic Detail Choices"};
    Label lblRequired{frameChoices, "lblRequired", "Required:"};
    TickBox chkProc{frameChoices, "chkProc", "Analytical Procedure"};
    TickBox chkUOM{frameChoices, "chkUOM", "Units Of Measure"};
    TickBox chkFraction{frameChoices, "chkFraction", "Sample Fraction"};
    Label lblOptional{frameChoices, "lblOptional", "Optional:"};
    TickBox chkValue{frameChoices, "chkValue", "Actual Value"};
    TickBox chkStat{frameChoices, "chkStat", "Statistic Type"};
    TickBox chkWeight{frameChoices, "chkWeight", "Weight Basis"};
    TickBox chkTemperature{frameChoices, "chkTemperature", "Temperature"};
    TickBox chkDuration{frameChoices, "chkDuration", "Duration"};
    TickBox chkLab{frameChoices, "chkLab", "Lab"};

    // The analytical procedure, in two stages: its source, then its name. lblProcSource repeats
    // the chosen source beside the names.
    Panel frameProc{*this, "frameProc", "Select Analytical Procedures Source", hidden};
    DataSource AdodcProcSource{frameProc, "AdodcProcSource"};
    Grid MSHFlexSource{frameProc, "MSHFlexSource"};
    Label lblSource{frameProc, "lblSource"};

    Panel frameProcedure{*this, "frameProcedure", "Select Analytical Procedure Names", hidden};
    Label lblProcSource{frameProcedure, "lblProcSource"};
    DataSource AdodcProc{frameProcedure, "AdodcProc"};
    Grid MSHFlexProc{frameProcedure, "MSHFlexProc"};
    Label lblProcHint{frameProcedure, "lblProcHint",
                      "Click In Analytical Procedure Name Column To Add Selection."};
    TickBox chkProcId{frameProcedure, "chkProcId", "Search On Procedure ID"};
    TickBox chkProcName{frameProcedure, "chkProcName", "Search On Procedure Name"};
    TextBox txtSearch{frameProcedure, "txtSearch"};
    Button cmdProcSearch{frameProcedure, "cmdProcSearch", "Search", disabled};
    Panel frameNoMatch{frameProcedure, "frameNoMatch", "No Match - Please Try A Different Search",
                       hidden};
    Button cmdReset{frameProcedure, "cmdReset", "Reset"};
    Button cmdSourceBack{frameProcedure, "cmdSourceBack", "<= Back"};
    Label lblSourceBack{frameProcedure, "lblSourceBack", "<= Go Back To Procedure Sources"};
    Label lblProcCaption{frameProcedure, "lblProcCaption", "Selected Procedure:"};
    Label lblProc{frameProcedure, "lblProc"};
    Label lblProcAll{frameProcedure, "lblProcAll",
                     "Use Selected Procedure For All Characteristics"};
    Button cmdProcAll{frameProcedure, "cmdProcAll", "Yes", disabled};

    Panel frameUOM{*this, "frameUOM", "Select Units of Measure", hidden};
    Label lblUOMHint{frameUOM, "lblUOMHint", "Type % Then Click Search To View All Units"};
    Label lblUOMSearch{frameUOM, "lblUOMSearch", "Enter Search =>"};
    TextBox txtUOM{frameUOM, "txtUOM"};
    Button cmdUOMSearch{frameUOM, "cmdUOMSearch", "Search", disabled};
    Button cmdRefresh{frameUOM, "cmdRefresh", "Refresh"};
    DataSource AdodcUOM{frameUOM, "AdodcUOM"};
    Grid MSHFlexUOM{frameUOM, "MSHFlexUOM"};
    Label lblUOMCaption{frameUOM, "lblUOMCaption", "Selected Unit Of Measure"};
    Label lblUom{frameUOM, "lblUom"};
    Label lblUOMAll{frameUOM, "lblUOMAll", "Use Selected Unit For All Characteristics =>"};
    Button cmdUOMAll{frameUOM, "cmdUOMAll", "Yes", disabled};

    // The details that are picked from a list. The fraction's label is used by no step.
    Panel frameOther{*this, "frameOther", "Sample Fraction", hidden};
    PickList cmbFraction{frameOther, "cmbFraction"};
    Label lblFraction{frameOther, "lblFraction", {}, hidden};
    Label lblFractionAll{frameOther, "lblFractionAll", "Use Fraction Selection For All =>"};
    Button cmdFractionAll{frameOther, "cmdFractionAll", "Yes", disabled};

    Panel frameValueType{*this, "frameValueType", "Value Type", hidden};
    Option optActual{frameValueType, "optActual", "Actual"};
    Option optEstimated{frameValueType, "optEstimated", "Estimated"};
    Option optCalculated{frameValueType, "optCalculated", "Calculated"};
    Label lblValue{frameValueType, "lblValue", "Actual"};
    Label lblValueAll{frameValueType, "lblValueAll",
                      "Use Selected Value Type For All Characteristics ?"};
    Button cmdValueYes{frameValueType, "cmdValueYes", "Yes"};

    Panel frameStatistic{*this, "frameStatistic", "Statistic Type", hidden};
    PickList cmbStatistic{frameStatistic, "cmbStatistic"};
    Label lblStatistic{frameStatistic, "lblStatistic"};
    Label lblStatisticAll{frameStatistic, "lblStatisticAll",
                          "Use Selected Statistical Type For All Characteristics ?"};
    Button cmdStatYes{frameStatistic, "cmdStatYes", "Yes", disabled};

    Panel frameWeight{*this, "frameWeight", "Weight Basis", hidden};
    Option optNone{frameWeight, "optNone", "None"};
    Option optWet{frameWeight, "optWet", "Wet"};
    Option optDry{frameWeight, "optDry", "Dry"};
    Option optAshFree{frameWeight, "optAshFree", "Ash-free Dry"};
    Label lblWeight{frameWeight, "lblWeight", "None"};
    Label lblWeightAll{frameWeight, "lblWeightAll",
                       "Apply Selected Weight Basis to All Characteristics ?"};
    Button cmdWeightYes{frameWeight, "cmdWeightYes", "Yes"};

    Panel frameTemperature{*this, "frameTemperature", "Temperature", hidden};
    PickList cmbTemperature{frameTemperature, "cmbTemperature"};
    Label lblTemperature{frameTemperature, "lblTemperature"};
    Label lblTemperatureAll{frameTemperature, "lblTemperatureAll",
                            "Apply Selected Temperature To All Characteristics ?"};
    Button cmdTemperatureYes{frameTemperature, "cmdTemperatureYes", "Yes", disabled};

    Panel frameDuration{*this, "frameDuration", "Duration", hidden};
    PickList cmbDuration{frameDuration, "cmbDuration"};
    Label lblDuration{frameDuration, "lblDuration"};
    Label lblDurationAll{frameDuration, "lblDurationAll",
                         "Apply Selected Duration To All Characteristics?"};
    Button cmdDurationYes{frameDuration, "cmdDurationYes", "Yes", disabled};

    Panel frameLab{*this, "frameLab", "Lab", hidden};
    DataSource AdodcLab{frameLab, "AdodcLab"};
    PickList cmbLab{frameLab, "cmbLab"};
    Label lblLab{frameLab, "lblLab"};
    Label lblLabAll{frameLab, "lblLabAll", "Apply Selected Lab To All Characteristics ?"};
    Button cmdLab{frameLab, "cmdLab", "Yes", disabled};

    Label lblTyping{*this, "lblTyping", "Type Detection Limit Values As Needed"};
    Grid MSFlexDetails{*this, "MSFlexDetails", {.columns = 13}};

    Button cmdSave{*this, "cmdSave", "Save"};

    Panel frameSaveConfirm{*this, "frameSaveConfirm", "Confirm Save", hidden};
    Label lblSaveConfirm{frameSaveConfirm, "lblSaveConfirm", "Confirm File Save:"};
    Button cmdYes{frameSaveConfirm, "cmdYes", "Yes"};
    Button cmdNo{frameSaveConfirm, "cmdNo", "No"};

    Panel frameError{*this, "frameError",
                     "At Least One Characteristic Has Not Been Translated To An Equivalent KELDAR "
                     "Characteristic.  Click GO BACK To Return To Characteristic Translation "
                     "Screen And Complete Translations.",
                     hidden};
    Button cmdClose{frameError, "cmdClose", "Close"};

    // Read by no step.
    TickBox chkBack{*this, "chkBack", {}, hidden};

  private:
    // Of a laboratory the list shows the code, which fits its column of the characteristics.
    static constexpr int laboratory_code = 2;
};

}  // namespace brooklander
