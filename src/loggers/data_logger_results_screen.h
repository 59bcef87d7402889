// The second logger path: results file and conversion.
#pragma once

#include "shared/grid.h"
#include "shared/place_lists.h"

namespace brooklander {

struct FrmDataLoggerResults : Screen {
    // Date and time, and the results.
    static constexpr int first_result_column = 2;

    explicit FrmDataLoggerResults(Desk& desk)
        : Screen(desk, "frmDataLoggerResults", "Data Logger Results Import") {}

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuFileInfo{*this, "mnuFileInfo", "File Information"};  // has no action
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};

    Panel frameWarning{*this, "frameWarning",
                       "Do NOT import a logger file until all preparation is complete.  Click Help "
                       "for step by step directions"};

    Panel frameLoggerFiles{*this, "frameLoggerFiles", "Select Data Logger File Results"};
    Label lblDrive{frameLoggerFiles, "lblDrive", "Drive:"};
    DriveList Drive1{frameLoggerFiles, "Drive1"};
    Label lblDirectory{frameLoggerFiles, "lblDirectory", "Directory:"};
    FolderList dirLoggerFile{frameLoggerFiles, "dirLoggerFile"};
    Label lblFileNames{frameLoggerFiles, "lblFileNames", "File Names:"};
    FileList fileLogger{frameLoggerFiles, "fileLogger", "*.txt*"};
    Label lblSelectedFileCaption{frameLoggerFiles, "lblSelectedFileCaption", "Selected File:"};
    Label lblSelectedFile{frameLoggerFiles, "lblSelectedFile"};
    Button cmdView{frameLoggerFiles, "cmdView", "Display =>", disabled};
    Button cmdConvert{frameLoggerFiles, "cmdConvert", "Convert =>", disabled};

    Label lblSelectedFileConverted{*this, "lblSelectedFileConverted", {}, hidden};
    Label lblConvertedFile{*this, "lblConvertedFile", "Has Been Converted To KELDAR Format ",
                           hidden};

    Panel frameEnterMoreData{*this, "frameEnterMoreData", "Convert More Data?", hidden};
    Button cmdEnterMoreDataYes{frameEnterMoreData, "cmdEnterMoreDataYes", "Yes"};
    Button cmdEnterMoreDataNo{frameEnterMoreData, "cmdEnterMoreDataNo", "No"};

    // The first two values come from the boxes of the set-up; the times of the period are not known
    // to any step.
    Panel frameDisplay{*this, "frameDisplay", "Display File"};
    Label lblMatch{frameDisplay, "lblMatch",
                   "If Selected File Below Matches Displayed Installation ID, Operating Period ID, "
                   "Start Date/Time and Stop Date/Time Click Convert."};
    Label lblInstallationCaption{frameDisplay, "lblInstallationCaption", "Installation ID:"};
    Label lblInstallationIDConvert{frameDisplay, "lblInstallationIDConvert"};
    Label lblPeriodCaption{frameDisplay, "lblPeriodCaption", "Operating Period Log ID:"};
    Label lblOperatingPeriodLogConvert{frameDisplay, "lblOperatingPeriodLogConvert"};
    Label lblStartCaption{frameDisplay, "lblStartCaption", "Start Date/Time:"};
    Label lblStartDateTime{frameDisplay, "lblStartDateTime"};
    Label lblStopCaption{frameDisplay, "lblStopCaption", "Stop Date/Time"};
    Label lblStopDateTime{frameDisplay, "lblStopDateTime"};
    List lstLoggerFile{frameDisplay, "lstLoggerFile"};

    // The work grid, a row for each line. The labels over it go with the conversion.
    Label lblRowId{*this, "lblRowId", "Row ID"};
    Label lblDisplayName{*this, "lblDisplayName", "Display Name"};
    Label lblUnits{*this, "lblUnits", "Units"};
    Label lblResult{*this, "lblResult", "Result"};
    Grid MSFlexLog{*this, "MSFlexLog", {.columns = 12, .fixed_columns = 2}};

    // Used by no step.
    Label lblKValue{*this, "lblKValue", {}, hidden};
    Label lblConstituentIndex{*this, "lblConstituentIndex", {}, hidden};
    TickBox chkAutoDate{*this, "chkAutoDate", {}, hidden};
    TickBox chkManualDate{*this, "chkManualDate", {}, hidden};
    TickBox AutoReturn{*this, "AutoReturn", {}, hidden};
    List lstRows{*this, "lstRows", hidden};
};

}  // namespace brooklander
