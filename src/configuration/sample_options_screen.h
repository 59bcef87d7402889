// The sample options: depth unit, projects, person and sample transport of a configuration.
#pragma once

#include "shared/data_source.h"

namespace brooklander {

struct FrmPreferencesSampleOption : Screen {
    explicit FrmPreferencesSampleOption(Desk& desk)
        : Screen(desk, "frmPreferencesSampleOption", "Sample Options For Configuration File") {
        AdodcProjects.bind(MSHFlexProjects, bound::projects);
        AdodcPerson.bind(MSHFlexPerson, bound::persons);
        AdodcSampleTransportation.bind(MSHFlexSampleTransportation, bound::sample_transports);
    }

    MenuEntry mnuExit{*this, "mnuExit", "Exit"};

    Label lblFileNameCaption{*this, "lblFileNameCaption", "Configuration File Name:"};
    Label lblFileName{*this, "lblFileName"};

    // Shown and hidden with the panels below; it holds nothing of its own.
    Panel frameSampleSpecifications{*this, "frameSampleSpecifications", {}, hidden};

    Label lblDepthCaption{*this, "lblDepthCaption", "Depth Units:"};
    TickBox chkFeet{*this, "chkFeet", "Feet"};
    TickBox chkMeters{*this, "chkMeters", "Meters"};
    Label lblDepthUnits{*this, "lblDepthUnits"};

    Panel FrameProject{*this, "FrameProject", "Projects", hidden};
    DataSource AdodcProjects{FrameProject, "AdodcProjects"};
    Grid MSHFlexProjects{FrameProject, "MSHFlexProjects"};
    Label lblProjectCaption{FrameProject, "lblProjectCaption", "First Project:"};
    Label lblSelectedProject{FrameProject, "lblSelectedProject"};
    Label lblProjectName{FrameProject, "lblProjectName"};
    Button cmdProjectClear{FrameProject, "cmdProjectClear", "Clear"};
    Label lblProjectTwoCaption{FrameProject, "lblProjectTwoCaption", "Second Project:"};
    Label lblSelectedProjectTwo{FrameProject, "lblSelectedProjectTwo"};
    Label lblProjectNameTwo{FrameProject, "lblProjectNameTwo"};
    Button cmdProjectTwoClear{FrameProject, "cmdProjectTwoClear", "Clear"};

    // The last and the first name are only held for lblSelectedName, which shows both.
    Panel framePerson{*this, "framePerson", "Person Collecting", hidden};
    DataSource AdodcPerson{framePerson, "AdodcPerson"};
    Grid MSHFlexPerson{framePerson, "MSHFlexPerson"};
    Label lblPersonCaption{framePerson, "lblPersonCaption", "Person:"};
    Label lblSelectedName{framePerson, "lblSelectedName"};
    Label lblLastName{framePerson, "lblLastName", {}, hidden};
    Label lblFirstName{framePerson, "lblFirstName", {}, hidden};
    Button cmdNameDelete{framePerson, "cmdNameDelete", "Clear"};

    // A field activity has no sample to transport, and does without this panel.
    Panel frameSampleTransportID{*this, "frameSampleTransportID", "Sample Transport", hidden};
    DataSource AdodcSampleTransportation{frameSampleTransportID, "AdodcSampleTransportation"};
    Grid MSHFlexSampleTransportation{frameSampleTransportID, "MSHFlexSampleTransportation"};
    Label lblSampleTransportCaption{frameSampleTransportID, "lblSampleTransportCaption",
                                    "Sample Transport:"};
    Label lblSampleTransportID{frameSampleTransportID, "lblSampleTransportID"};
    Label lblSampleTransportName{frameSampleTransportID, "lblSampleTransportName"};
    Button cmdSampleTransportClear{frameSampleTransportID, "cmdSampleTransportClear", "Clear"};

    // Ticked while characteristics are to be set up from a file.
    TickBox chkChar{*this, "chkChar", "Characteristics"};

    // A configuration needs a project: the writer of the file cannot do without one.
    Button cmdNext{*this, "cmdNext", "Next =>", disabled};
};

}  // namespace brooklander
