// The first logger path: organization, installation and log file.
#pragma once

#include "shared/data_source.h"

namespace brooklander {

struct FrmLogger : Screen {
    explicit FrmLogger(Desk& desk) : Screen(desk, "frmLogger", "Automatic Data Loggers") {
        AdodcOrganization.bind(MSHFlexOrganization);
        AdodcADL.bind(MSHFlexADL, bound::installations);
        AdodcLogFile.bind(MSHFlexLogFile, bound::log_files);
    }

    // The logger file, its folder with it.
    Label lblSelectedFile{*this, "lblSelectedFile"};

    // The question stands first; Yes hides it, and Back shows it again.
    Panel frameImport{*this, "frameImport", "Convert This File To KELDAR Format?"};
    Button cmdYes{frameImport, "cmdYes", "Yes"};
    Button cmdNo{frameImport, "cmdNo", "No"};
    Label lblLoggerDetails{*this, "lblLoggerDetails", "Logger File Contents:"};
    List lstDetails{*this, "lstDetails"};

    Panel frameNote{*this, "frameNote"};
    Label lblNote{frameNote, "lblNote",
                  "Data Logger Files Must Be Loaded Into KELDAR With The 'Batch Update' Function "
                  "In The KELDAR Data Entry Module.  See 'Help\" For Details."};

    Panel frameDetails{*this, "frameDetails", "Organization/Log File Name/Installation IDSelection",
                       hidden};
    DataSource AdodcOrganization{frameDetails, "AdodcOrganization"};
    Grid MSHFlexOrganization{frameDetails, "MSHFlexOrganization"};
    Label lblInstallationLabel{frameDetails, "lblInstallationLabel", "Installations", hidden};
    DataSource AdodcADL{frameDetails, "AdodcADL"};
    Grid MSHFlexADL{frameDetails, "MSHFlexADL"};
    Label lblLogFileLabel{frameDetails, "lblLogFileLabel", "Log Files", hidden};
    DataSource AdodcLogFile{frameDetails, "AdodcLogFile"};
    Grid MSHFlexLogFile{frameDetails, "MSHFlexLogFile"};

    Panel FrameDetailsDisplay{*this, "FrameDetailsDisplay", {}, hidden};
    Label lblOrganization{FrameDetailsDisplay, "lblOrganization"};
    Label lblOrganizationName{FrameDetailsDisplay, "lblOrganizationName"};
    Label lblInstallationID{FrameDetailsDisplay, "lblInstallationID"};
    Label lblLogFile{FrameDetailsDisplay, "lblLogFile"};

    Button cmdBack{*this, "cmdBack", "<= Back"};
    Button cmdContinue{*this, "cmdContinue", "Continue =>", disabled};
};

}  // namespace brooklander
