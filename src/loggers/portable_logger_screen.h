// Results of a portable logger, entered by hand.
#pragma once

#include "shared/grid.h"

namespace brooklander {

// Stands by itself: no other screen opens it, and it reads nothing of another.
struct FrmPortableDataLogger : Screen {
    // Line number, label, and the results of ten row ids.
    static constexpr int result_columns = 12;
    static constexpr int label_column = 1;
    static constexpr int first_result_column = 2;

    explicit FrmPortableDataLogger(Desk& desk)
        : Screen(desk, "frmPortableDataLogger", "Portable Data Logger") {
        txtFileName.set_text("portable.txt");
    }

    // Neither the first nor the second has an action.
    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuFileInfo{*this, "mnuFileInfo", "File Information"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};

    // No step fills these.
    Panel frameDisplay{*this, "frameDisplay"};
    Label lblTripCaption{frameDisplay, "lblTripCaption", "Trip ID:"};
    Label lblTrip{frameDisplay, "lblTrip"};
    Label lblStationCaption{frameDisplay, "lblStationCaption", "Station ID:"};
    Label lblStation{frameDisplay, "lblStation"};
    Label lblVisitCaption{frameDisplay, "lblVisitCaption", "Visit Number:"};
    Label lblVisit{frameDisplay, "lblVisit"};
    Label lblActivityCaption{frameDisplay, "lblActivityCaption", "Activity ID:"};
    Label lblActivity{frameDisplay, "lblActivity"};
    Label lblProjectCaption{frameDisplay, "lblProjectCaption", "Project ID:"};
    Label lblProject{frameDisplay, "lblProject"};
    Label lblStartDateCaption{frameDisplay, "lblStartDateCaption", "Start Date:"};
    Label lblStartDate{frameDisplay, "lblStartDate"};
    Label lblStartTimeCaption{frameDisplay, "lblStartTimeCaption", "Start Time:"};
    Label lblStartTime{frameDisplay, "lblStartTime"};

    Panel frameLines{*this, "frameLines", "Enter Number Of Data Lines"};
    Label lblLines{frameLines, "lblLines", "Number of Data Lines:"};
    TextBox txtLines{frameLines, "txtLines", shown, {.most = 999}};
    Button cmdContinue{frameLines, "cmdContinue", "Continue =>", disabled};

    Panel frameLabelLines{*this, "frameLabelLines", "Enter Data Line Labels", hidden};
    Label lblLineColumn{frameLabelLines, "lblLineColumn", "Line #"};
    Label lblLabelColumn{frameLabelLines, "lblLabelColumn", "Line Label"};
    Grid MSHFlexLabels{frameLabelLines, "MSHFlexLabels", {.columns = 2}};
    Button cmdLinesContinue{frameLabelLines, "cmdLinesContinue", "Continue =>"};

    // Row 0 holds the row ids, from the first result column on; each row below it is a data line.
    Panel frameResults{*this, "frameResults", "Results", hidden};
    Label lblResultLineColumn{frameResults, "lblResultLineColumn", "Line #"};
    Label lblResultLabelColumn{frameResults, "lblResultLabelColumn", "Label"};
    Label lblRowId{frameResults, "lblRowId", "Row ID:"};
    Grid MSHFlexResults{frameResults, "MSHFlexResults", {.columns = result_columns}};
    Label lblArrowKeys{frameResults, "lblArrowKeys", "Use Arrow Keys To Move Between Data Cells"};
    Label lblFileName{frameResults, "lblFileName", "File Name:"};
    TextBox txtFileName{frameResults, "txtFileName"};
    Button cmdSave{frameResults, "cmdSave", "Save"};
    Button cmdBack{frameResults, "cmdBack", "<= Back"};

    // What the two Confirm buttons go on to has no action.
    Panel frameEnterMoreData{*this, "frameEnterMoreData", "Do You Want To Enter More Data ?",
                             hidden};
    TickBox chkDataYes{frameEnterMoreData, "chkDataYes", "Yes"};
    TickBox chkDataNo{frameEnterMoreData, "chkDataNo", "No"};
    Button cmdMoreData{frameEnterMoreData, "cmdMoreData", "Confirm =>", disabled};

    Panel frameMoreData{*this, "frameMoreData", "More Data Options:"};
    Label lblSame{frameMoreData, "lblSame", "Check Box To Enter More Data For Same:"};
    TickBox chkStationYes{frameMoreData, "chkStationYes", "Station"};
    TickBox chkVisitYes{frameMoreData, "chkVisitYes", "Visit", disabled};
    Button cmdMoreDataContinue{frameMoreData, "cmdMoreDataContinue", "Continue =>"};
};

}  // namespace brooklander
