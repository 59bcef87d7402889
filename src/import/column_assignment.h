// Which column of the import table holds what.
#pragma once

#include <array>
#include <string_view>

#include "screens.h"

namespace brooklander {

// A category that a column can hold, with its fields on the import screen.
struct Category {
    using Screen = FrmImportFileDisplay;

    std::string_view text;  // as lblSelectedCategory holds it while it is in work
    Button Screen::*button;
    Label Screen::*marker;          // the X before the category in work
    Label Screen::*column;          // the assigned column from 0, or empty
    Label Screen::*visible_column;  // the same from 1
    Button Screen::*clear;
    bool required;
};

inline constexpr std::array<Category, 8> categories{{
    {"Station ID", &FrmImportFileDisplay::cmdStation, &FrmImportFileDisplay::lblStationSelected,
     &FrmImportFileDisplay::lblStation, &FrmImportFileDisplay::lblStationVis,
     &FrmImportFileDisplay::cmdStationClear, true},
    {"Date", &FrmImportFileDisplay::cmdDate, &FrmImportFileDisplay::lblDateSelected,
     &FrmImportFileDisplay::lblDate, &FrmImportFileDisplay::lblDateVis,
     &FrmImportFileDisplay::cmdDateClear, true},
    {"Time", &FrmImportFileDisplay::cmdTime, &FrmImportFileDisplay::lblTimeSelected,
     &FrmImportFileDisplay::lblTime, &FrmImportFileDisplay::lblTimeVis,
     &FrmImportFileDisplay::cmdTimeClear, false},
    {"Sample ID", &FrmImportFileDisplay::cmdSample, &FrmImportFileDisplay::lblActivitySelected,
     &FrmImportFileDisplay::lblSample, &FrmImportFileDisplay::lblSampleVis,
     &FrmImportFileDisplay::cmdSampleIdClear, false},
    {"Depth", &FrmImportFileDisplay::cmdDepth, &FrmImportFileDisplay::lblDepthSelected,
     &FrmImportFileDisplay::lblDepth, &FrmImportFileDisplay::lblDepthVis,
     &FrmImportFileDisplay::cmdDepthClear, false},
    {"Comments", &FrmImportFileDisplay::cmdComments, &FrmImportFileDisplay::lblCommentsSelected,
     &FrmImportFileDisplay::lblComments, &FrmImportFileDisplay::lblCommentsVis,
     &FrmImportFileDisplay::cmdCommentsClear, false},
    {"Personnel", &FrmImportFileDisplay::cmdPerson, &FrmImportFileDisplay::lblPersonSelected,
     &FrmImportFileDisplay::lblPerson, &FrmImportFileDisplay::lblPersonVis,
     &FrmImportFileDisplay::cmdPersonClear, false},
    {"Field and Sample Results", &FrmImportFileDisplay::cmdResults,
     &FrmImportFileDisplay::lblResultsSelected, &FrmImportFileDisplay::lblColumn,
     &FrmImportFileDisplay::lblColumnVis, &FrmImportFileDisplay::cmdResultsClear, true},
}};

// No category carries the mark of the one in work.
void hide_markers(FrmImportFileDisplay& display);

// A category button: its category is in work from then on. The results' mark shows by rules of its
// own, which hang on what the run is for.
void choose_category(Screens& screens, const Category& category);

// "Set Up Characteristic Defaults For This File?": Yes asks for the first column with the name of a
// characteristic; No leads to the choice of another file.
void cmdCharYes_Click(Screens& screens);
void cmdCharNo_Click(Screens& screens);

// A Clear button.
void clear_category(FrmImportFileDisplay& display, const Category& category);

// A click on a cell of the table: its column, or its row in the row stage, goes to what is in work.
// Nothing is checked; one column can be given to two categories.
void MSFlexKeldarIN_Click(Screens& screens);

// All columns are chosen: on to the first row, or to the characteristics of the file where those
// are what the run is for. From the column panel, the details of each characteristic get a row,
// too; from the characteristics panel they do not.
void cmdContinue_Click(Screens& screens);
void cmdCharContinue_Click(Screens& screens);

void cmdRowClear_Click(FrmImportFileDisplay& display);
void cmdRowContinue_Click(FrmImportFileDisplay& display);
void cmdRowIdBack_Click(FrmImportFileDisplay& display);

}  // namespace brooklander
