// The import screen: the imported file as a table, what its columns hold, and the conversion.
#pragma once

#include "shared/grid.h"
#include "shared/place_lists.h"

namespace brooklander {

struct FrmImportFileDisplay : Screen {
    // The columns of the imported file's table; further fields of a line are dropped.
    static constexpr int table_columns = 50;

    explicit FrmImportFileDisplay(Desk& desk)
        : Screen(desk, "frmImportFileDisplay", "Import File Display") {}

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};
    MenuEntry mnuHelp{*this, "mnuHelp", "Help"};

    Panel frameImportConfirm{*this, "frameImportConfirm", "Import This File?", hidden};
    Button cmdYes{frameImportConfirm, "cmdYes", "Yes"};
    Button cmdNo{frameImportConfirm, "cmdNo", "No"};
    TickBox chkYes{frameImportConfirm, "chkYes", {}, hidden};

    Panel frameChar{*this, "frameChar",
                    "Set Up Characteristic Defaults For This File?  They Can Be Used For Similar "
                    "Files",
                    hidden};
    Button cmdCharYes{frameChar, "cmdCharYes", "Yes"};
    Button cmdCharNo{frameChar, "cmdCharNo", "No"};

    Panel frameCharColumn{*this, "frameCharColumn", "Select Characteristics", hidden};
    Button cmdCharContinue{frameCharColumn, "cmdCharContinue", "Continue =>"};

    Panel frameFileBeingConverted{*this, "frameFileBeingConverted", "File Being Converted", hidden};
    Label lblSelectedFile{frameFileBeingConverted, "lblSelectedFile"};
    Button cmdSave{frameFileBeingConverted, "cmdSave", "Continue =>"};

    Panel frameConfiguration{*this, "frameConfiguration", "Configuration File Selected", hidden};
    Label lblConfiguration{frameConfiguration, "lblConfiguration"};
    Button cmdDetails{frameConfiguration, "cmdDetails", "<= Details"};

    Panel frameVOX{*this, "frameVOX", "VOX Configuration File Notice", hidden};

    Panel frameActivity{*this, "frameActivity", "Activity ID Filler Option", hidden};
    TextBox txtActivityID{frameActivity, "txtActivityID", shown, {.most = 6}};
    Button cmdActivityContinue{frameActivity, "cmdActivityContinue", "Continue =>"};
    Button cmdActivitySkip{frameActivity, "cmdActivitySkip", "Skip =>"};

    // Each category: its button, the mark of the one in work, its column as the user counts, its
    // Clear button. The columns as the table counts, from 0, are the hidden labels further down.
    Panel frameCategoryResults{*this, "frameCategoryResults", "Column Selections", hidden};
    Button cmdStation{frameCategoryResults, "cmdStation", " Station ID"};
    Label lblStationSelected{frameCategoryResults, "lblStationSelected", "X", hidden};
    Label lblStationVis{frameCategoryResults, "lblStationVis"};
    Button cmdStationClear{frameCategoryResults, "cmdStationClear", "Clear"};
    Button cmdDate{frameCategoryResults, "cmdDate", " Date"};
    Label lblDateSelected{frameCategoryResults, "lblDateSelected", "X", hidden};
    Label lblDateVis{frameCategoryResults, "lblDateVis"};
    Button cmdDateClear{frameCategoryResults, "cmdDateClear", "Clear"};
    Button cmdTime{frameCategoryResults, "cmdTime", "Time"};
    Label lblTimeSelected{frameCategoryResults, "lblTimeSelected", "X", hidden};
    Label lblTimeVis{frameCategoryResults, "lblTimeVis"};
    Button cmdTimeClear{frameCategoryResults, "cmdTimeClear", "Clear"};
    Button cmdSample{frameCategoryResults, "cmdSample", "Sample/Activity ID"};
    Label lblActivitySelected{frameCategoryResults, "lblActivitySelected", "X", hidden};
    Label lblSampleVis{frameCategoryResults, "lblSampleVis"};
    Button cmdSampleIdClear{frameCategoryResults, "cmdSampleIdClear", "Clear"};
    Button cmdDepth{frameCategoryResults, "cmdDepth", "Depth"};
    Label lblDepthSelected{frameCategoryResults, "lblDepthSelected", "X", hidden};
    Label lblDepthVis{frameCategoryResults, "lblDepthVis"};
    Button cmdDepthClear{frameCategoryResults, "cmdDepthClear", "Clear"};
    Button cmdComments{frameCategoryResults, "cmdComments", "Comments"};
    Label lblCommentsSelected{frameCategoryResults, "lblCommentsSelected", "X", hidden};
    Label lblCommentsVis{frameCategoryResults, "lblCommentsVis"};
    Button cmdCommentsClear{frameCategoryResults, "cmdCommentsClear", "Clear"};
    Button cmdPerson{frameCategoryResults, "cmdPerson", "Personnel"};
    Label lblPersonSelected{frameCategoryResults, "lblPersonSelected", "X", hidden};
    Label lblPersonVis{frameCategoryResults, "lblPersonVis"};
    Button cmdPersonClear{frameCategoryResults, "cmdPersonClear", "Clear"};
    Button cmdResults{frameCategoryResults, "cmdResults", " Results"};
    Label lblResultsSelected{frameCategoryResults, "lblResultsSelected", "X", hidden};
    Label lblColumnVis{frameCategoryResults, "lblColumnVis"};
    Button cmdResultsClear{frameCategoryResults, "cmdResultsClear", "Clear"};
    Label Label12{frameCategoryResults, "Label12", "Column #"};
    Button cmdContinue{frameCategoryResults, "cmdContinue", "Continue =>"};

    Panel frameSameSelections{*this, "frameSameSelections", "Keep Selections Option", hidden};
    Button cmdColumnYes{frameSameSelections, "cmdColumnYes", "Yes"};
    Button cmdColumnNo{frameSameSelections, "cmdColumnNo", "No"};

    Panel frameRowSelection{*this, "frameRowSelection", "Row Selection", hidden};
    Label Label16{frameRowSelection, "Label16", "Row #"};
    Label lblRowVis{frameRowSelection, "lblRowVis"};
    Button cmdRowClear{frameRowSelection, "cmdRowClear", "Clear"};
    Button cmdRowContinue{frameRowSelection, "cmdRowContinue", "Continue =>"};
    Button cmdRowIdBack{frameRowSelection, "cmdRowIdBack", "<= Back"};
    Button cmdFormatConfirm{frameRowSelection, "cmdFormatConfirm", "Convert"};

    Panel frameOutputFile{*this, "frameOutputFile", "File Management", hidden};
    FileList fileConvertedFiles{frameOutputFile, "fileConvertedFiles", "*.txt*"};
    TextBox txtSave{frameOutputFile, "txtSave"};
    Button cmdExistingFileDelete{frameOutputFile, "cmdExistingFileDelete", "Delete"};
    Label lblDeletedFile{frameOutputFile, "lblDeletedFile"};
    Label lblFileType{frameOutputFile, "lblFileType"};
    Panel frameExistingFile{frameOutputFile, "frameExistingFile",
                            "A file with this name already exists, do you want to overwrite it?",
                            hidden};
    Button cmdOverwriteYes{frameExistingFile, "cmdOverwriteYes", "Yes"};
    Button cmdOverwriteNo{frameExistingFile, "cmdOverwriteNo", "No"};
    Panel frameKillFileConfirm{frameOutputFile, "frameKillFileConfirm", "Are you sure?", hidden};
    Button cmdKillYes{frameKillFileConfirm, "cmdKillYes", "Yes"};
    Button cmdKillNo{frameKillFileConfirm, "cmdKillNo", "No"};

    Panel frameFormat{*this, "frameFormat", "Select Format File Will Be Converted To", hidden};
    Option optVox{frameFormat, "optVox", "VOX"};
    Option optBatch{frameFormat, "optBatch", "Batch"};

    Button cmdFormatContinue{frameFormat, "cmdFormatContinue", "Continue =>"};

    // Parts of the screen that no step shows.
    Panel frmResults{*this, "frmResults", {}, hidden};
    Button cmdResultsContinue{frmResults, "cmdResultsContinue", "Continue =>"};
    Panel frameSelectionError{*this, "frameSelectionError", "Selection Error", hidden};
    Label lblSelectionError{
        frameSelectionError, "lblSelectionError",
        "The selected column has already been assigned to another Category.  Either select a "
        "different column or press the Clear button to the right of the Category the column was "
        "assigned to."};

    Panel frameConverted{*this, "frameConverted", "Confirmation Of Converted File", hidden};
    Label lblConvertedFile{frameConverted, "lblConvertedFile"};
    Label lblConverted{frameConverted, "lblConverted",
                       "Has been created and is ready to be loaded in KELDAR with its Batch "
                       "Update function."};
    TickBox chkView{frameConverted, "chkView", "View"};
    Option optAnotherFile{frameConverted, "optAnotherFile", "Convert Another File"};
    Option optQuit{frameConverted, "optQuit", "Quit"};
    Button cmdConfirm{frameConverted, "cmdConfirm", "Confirm", disabled};

    Panel frameImportedFile{*this, "frameImportedFile", "Imported File Contents", hidden};
    Grid MSFlexKeldarIN{frameImportedFile, "MSFlexKeldarIN", {.columns = table_columns}};

    // A look at the result in work: its characteristic and its value.
    Grid MSFlexResults{*this, "MSFlexResults", {.columns = 2}, hidden};

    // Which columns and which first row the user has chosen, from 0; empty when not chosen.
    Label lblStation{*this, "lblStation", {}, hidden};
    Label lblDate{*this, "lblDate", {}, hidden};
    Label lblTime{*this, "lblTime", {}, hidden};
    Label lblSample{*this, "lblSample", {}, hidden};
    Label lblDepth{*this, "lblDepth", {}, hidden};
    Label lblComments{*this, "lblComments", {}, hidden};
    Label lblPerson{*this, "lblPerson", {}, hidden};
    Label lblColumn{*this, "lblColumn", {}, hidden};
    Label lblRow{*this, "lblRow", {}, hidden};

    Label lblSelectedCategory{*this, "lblSelectedCategory", {}, hidden};
    Label lblMedium{*this, "lblMedium", {}, hidden};
    Label lblRows{*this, "lblRows", {}, hidden};  // the last column of results, from 0

    // The characteristics of a conversion by name, and their lines of the defaults file; entries
    // of the same index belong together.
    List lstRows{*this, "lstRows", hidden};
    List lstChar{*this, "lstChar", hidden};

    List lstDetectionLimit{*this, "lstDetectionLimit", hidden};
    List lstValidate{*this, "lstValidate", hidden};
    List lstRowId{*this, "lstRowId", hidden};
};

}  // namespace brooklander
