// The first logger path: characteristic group and conversion.
#pragma once

#include "shared/data_source.h"

namespace brooklander {

struct FrmLoggerResults : Screen {
    explicit FrmLoggerResults(Desk& desk)
        : Screen(desk, "frmLoggerResults", "Data Logger Results") {
        AdodcCharGroup.bind(MSHFlexCharGroup, bound::logger_groups);
        AdodcChars.bind(MSHFlexChars, bound::group_characteristics);
    }

    Panel frameCharacteristicGroup{*this, "frameCharacteristicGroup", "Characteristic Groups"};
    DataSource AdodcCharGroup{frameCharacteristicGroup, "AdodcCharGroup"};
    Grid MSHFlexCharGroup{frameCharacteristicGroup, "MSHFlexCharGroup"};
    Label lblCharGroup{frameCharacteristicGroup, "lblCharGroup"};
    Label lblRowIdColumn{frameCharacteristicGroup, "lblRowIdColumn", "Row ID"};
    Label lblNameColumn{frameCharacteristicGroup, "lblNameColumn", "Name"};
    Label lblUnitsColumn{frameCharacteristicGroup, "lblUnitsColumn", "Units of Measure"};
    DataSource AdodcChars{frameCharacteristicGroup, "AdodcChars"};
    Grid MSHFlexChars{frameCharacteristicGroup, "MSHFlexChars", {.columns = 3}};
    Button cmdConvert{frameCharacteristicGroup, "cmdConvert", "Convert =>"};

    Panel frameConverted{*this, "frameConverted", "File Converted", hidden};
    Label lblConvertedFile{frameConverted, "lblConvertedFile"};
    Label lblReady{frameConverted, "lblReady",
                   "This File Is Ready To Be Loaded Into KELDAR.  Please Follow The Instructions "
                   "In \"c:\\brooklander\\loggerdocs.doc\" "};
    TickBox chkYes{frameConverted, "chkYes", "Import Another Data Logger File"};
    TickBox chkNo{frameConverted, "chkNo", "Quit"};
    Button cmdContinue{frameConverted, "cmdContinue", "Continue =>", disabled};

    // The logger file, a row for each line, as many columns as its widest line has.
    Grid MSFlexLog{*this, "MSFlexLog", {}, hidden};
};

}  // namespace brooklander
