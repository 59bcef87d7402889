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

    Label lblFileName{*this, "lblFileName"};
    Button cmdSave{*this, "cmdSave", "Save", disabled};

    Grid MSFlexDetails{*this, "MSFlexDetails", {.columns = 13}};

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

    // The details that are picked from a list.
    Panel frameOther{*this, "frameOther", "Sample Fraction", hidden};
    PickList cmbFraction{frameOther, "cmbFraction"};
    Panel frameStatistic{*this, "frameStatistic", "Statistic Type", hidden};
    PickList cmbStatistic{frameStatistic, "cmbStatistic"};
    Panel frameTemperature{*this, "frameTemperature", "Temperature", hidden};
    PickList cmbTemperature{frameTemperature, "cmbTemperature"};
    Panel frameDuration{*this, "frameDuration", "Duration", hidden};
    PickList cmbDuration{frameDuration, "cmbDuration"};
    Panel frameLab{*this, "frameLab", "Lab", hidden};
    DataSource AdodcLab{frameLab, "AdodcLab"};
    PickList cmbLab{frameLab, "cmbLab"};

  private:
    // Of a laboratory the list shows the code, which fits its column of the characteristics.
    static constexpr int laboratory_code = 2;
};

}  // namespace brooklander
