#include <QCheckBox>
#include <QPushButton>

#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"
#include "platform/desktop/wizard_parts.h"

namespace brooklander::desktop {
namespace {

using Options = FrmPreferencesSampleOption;

// A list with what is chosen from it below.
Card* list_section(Panel& panel, char letter, Grid& grid, const QString& none,
                   std::initializer_list<Chosen> all_chosen, Draw& draw) {
    Card* const section = draw.section(panel);
    add_choices(section, letter, grid,
                {.waiting = QStringLiteral("Choose an organization first."), .none = none}, draw);
    QGridLayout* const form = chosen_form();
    for (const Chosen& chosen : all_chosen) add_chosen(form, chosen, draw);
    section->content()->addLayout(form);
    return section;
}

Card* projects(Options& options, Draw& draw) {
    return list_section(options.FrameProject, 'P', options.MSHFlexProjects,
                        QStringLiteral("This organization has no projects in KELDAR."),
                        {{options.lblProjectCaption, options.lblSelectedProject,
                          &options.lblProjectName, &options.cmdProjectClear},
                         {options.lblProjectTwoCaption, options.lblSelectedProjectTwo,
                          &options.lblProjectNameTwo, &options.cmdProjectTwoClear}},
                        draw);
}

Card* persons(Options& options, Draw& draw) {
    return list_section(
        options.framePerson, 'o', options.MSHFlexPerson,
        QStringLiteral("Nobody collects samples for this organization in KELDAR."),
        {{options.lblPersonCaption, options.lblSelectedName, nullptr, &options.cmdNameDelete}},
        draw);
}

Card* transports(Options& options, Draw& draw) {
    return list_section(options.frameSampleTransportID, 'T', options.MSHFlexSampleTransportation,
                        QStringLiteral("This organization has no sample transports in KELDAR."),
                        {{options.lblSampleTransportCaption, options.lblSampleTransportID,
                          &options.lblSampleTransportName, &options.cmdSampleTransportClear}},
                        draw);
}

// Comes before the panels, and the keyboard begins here.
QHBoxLayout* depth_unit(Options& options, Draw& draw) {
    auto* const line = new QHBoxLayout;
    line->setSpacing(inside_card);
    line->addWidget(draw.caption(options.lblDepthCaption));
    line->addWidget(draw.tick_box(options.chkFeet, 'F'));
    line->addWidget(draw.tick_box(options.chkMeters, 'M'));
    line->addWidget(draw.value(options.lblDepthUnits, shown(options.lblDepthCaption.text())), 1);
    return line;
}

}  // namespace

void lay_out_options(FrmPreferencesSampleOption& options, Draw& draw) {
    begin_step(options.lblFileNameCaption, options.lblFileName, draw);

    Card* const card = draw.sheet();
    QVBoxLayout* const content = card->content();
    content->setSpacing(inside_card);
    content->addLayout(depth_unit(options, draw));
    // It holds nothing: it is drawn as a line above the panels with which it comes.
    Card* const line = draw.section(options.frameSampleSpecifications);
    mark(*line, "rule");
    line->setFixedHeight(1);
    content->addWidget(line);

    auto* const right = new QVBoxLayout;
    auto* const lists = new QHBoxLayout;
    right->setSpacing(inside_card);
    lists->setSpacing(inside_card);
    lists->addWidget(projects(options, draw), 1);
    draw.begins_in(options.FrameProject, draw.widget_of(options.chkFeet));
    right->addWidget(persons(options, draw), 1);
    right->addWidget(transports(options, draw), 1);
    lists->addLayout(right, 1);
    content->addLayout(lists, 1);
    content->addStretch(0);

    QCheckBox* const characteristics = draw.tick_box(options.chkChar, 'C');
    QLabel* const note = draw.still_needed(
        options.cmdNext,
        {{options.lblSelectedProject, options.FrameProject, QStringLiteral("project")}});
    content->addLayout(foot({characteristics}, note, draw.filled(options.cmdNext, 'N')));
    draw.window().page()->addWidget(card, 1);
}

}  // namespace brooklander::desktop
