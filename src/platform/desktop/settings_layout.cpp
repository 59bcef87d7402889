#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"
#include "platform/desktop/wizard_parts.h"

namespace brooklander::desktop {
namespace {

using Settings = FrmPreferencesSettings;

constexpr int details_in_letters = 54;

// Tick boxes in rows of so many.
QGridLayout* boxes(std::initializer_list<QCheckBox*> boxes, int in_a_row) {
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(inside_card);
    grid->setVerticalSpacing(close_together);
    int place = 0;
    for (QCheckBox* const box : boxes) {
        grid->addWidget(box, place / in_a_row, place % in_a_row);
        ++place;
    }
    grid->setColumnStretch(in_a_row, 1);
    return grid;
}

Card* organization_card(Settings& settings, Draw& draw) {
    Card* const card = draw.card(settings.frameView);
    add_choices(card, 'O', settings.MSHFlexOrganization, organization_texts(), draw);
    QGridLayout* const chosen = chosen_form();
    add_chosen(chosen,
               {settings.lblOrganizationCaption, settings.lblSelectedOrganization,
                &settings.lblOrganizationName},
               draw);
    QLabel* const note = draw.still_needed(
        settings.cmdSave,
        {{settings.lblSelectedOrganization, settings.frameView, QStringLiteral("organization")}});
    note->setWordWrap(false);
    chosen->addWidget(note, 0, 3);
    card->content()->addLayout(chosen);
    return card;
}

Card* trip_options_card(Settings& settings, Draw& draw) {
    Card* const card = draw.card(settings.frameTripOptions);
    QRadioButton* const by_module = draw.option(settings.optVOXTrip, 'X');
    card->content()->addLayout(row({by_module, draw.option(settings.optKeldarTrip, 'T')}));
    Card* const message = draw.section(settings.frameTripMessage);
    message->title()->setFont(font_larger_by(0));
    card->content()->addWidget(message);
    keep_height(card);
    return card;
}

Card* trip_card(Settings& settings, Draw& draw) {
    Card* const card = draw.card(settings.frameTrip);
    card->content()->addWidget(
        draw.choices(settings.MSHFlexTrip, shown(settings.frameTrip.text()),
                     {.waiting = QStringLiteral("Choose an organization first."),
                      .none = QStringLiteral("This organization has no trips.")}),
        1);
    QGridLayout* const chosen = chosen_form();
    add_chosen(chosen, {settings.lblTripCaption, settings.lblTrip, &settings.lblTripName}, draw);
    card->content()->addLayout(chosen);
    return card;
}

Card* stations_card(Settings& settings, Draw& draw) {
    Card* const card = draw.card(settings.frameStations);
    const QString name = shown(settings.frameStations.text());
    auto* const lists = new QHBoxLayout;
    lists->setSpacing(between_controls);
    lists->addWidget(draw.choices(settings.MSHFlexStations, name,
                                  {.waiting = QStringLiteral("No stations are listed."),
                                   .none = QStringLiteral("No station was visited on this trip.")}),
                     2);
    ListWidget* const stations = draw.list(settings.lstStations, name);
    stations->set_empty_text(QStringLiteral("No stations are listed."));
    stations->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);  // as high as the grid
    lists->addWidget(stations, 1);
    card->content()->addLayout(lists, 1);
    auto* const line = new QHBoxLayout;
    line->setSpacing(between_controls);
    line->addWidget(draw.button(settings.cmdPrint, 'v'));
    line->addWidget(draw.note(settings.lblSaveList), 1);
    line->addWidget(draw.button(settings.cmdStationCheck, 'l'));
    card->content()->addLayout(line);
    card->content()->addWidget(draw.note(settings.lblMissingStations));
    return card;
}

Card* type_section(Settings& settings, Draw& draw) {
    Card* const section = draw.section(settings.frameActivityType);
    section->content()->addLayout(
        boxes({draw.tick_box(settings.chkSample, 'G'), draw.tick_box(settings.chkField, 'F')}, 1));
    return section;
}

Card* category_section(Settings& settings, Draw& draw) {
    Card* const section = draw.section(settings.frameActivityCategory);
    section->content()->addLayout(boxes(
        {draw.tick_box(settings.chkRoutine, 'R'), draw.tick_box(settings.chkHabitat, 'm')}, 1));
    return section;
}

Card* medium_section(Settings& settings, Draw& draw) {
    Card* const section = draw.section(settings.frameMedium);
    section->content()->addLayout(
        boxes({draw.tick_box(settings.chkWater, 'W'), draw.tick_box(settings.chkAir, 'A'),
               draw.tick_box(settings.chkSediment, 'S'), draw.tick_box(settings.chkSoil, 'i'),
               draw.tick_box(settings.chkBiological, 'B')},
              3));
    return section;
}

Card* time_zone_section(Settings& settings, Draw& draw) {
    Card* const section = draw.section(settings.frameTimeZone);
    ListWidget* const zones = draw.list(settings.lstTimeZone, shown(settings.frameTimeZone.text()));
    zones->set_empty_text(QStringLiteral("No time zones are listed."));
    section->lead_to(zones, 'Z');
    section->head()->addWidget(draw.value(settings.lblTimeZone, QStringLiteral("Time zone")));
    section->content()->addWidget(zones, 1);
    return section;
}

Card* activity_card(Settings& settings, FrmPreferences& manager, Draw& draw) {
    Card* const card = draw.card(settings.frameActivity);
    QVBoxLayout* const content = card->content();
    content->setSpacing(inside_card);
    content->addWidget(type_section(settings, draw));
    content->addWidget(category_section(settings, draw));
    content->addWidget(medium_section(settings, draw));
    constexpr int most_of_it = 100;
    content->addWidget(time_zone_section(settings, draw), most_of_it);
    content->addStretch(1);
    const auto needed = [](Label& value, Panel& panel, const char* words) {
        return Draw::Needed{value, panel, QLatin1String(words)};
    };
    QLabel* const note = draw.still_needed(
        settings.cmdSave,
        {needed(manager.lblActivityType, settings.frameActivityType, "activity type"),
         needed(manager.lblActivityCategory, settings.frameActivityCategory, "activity category"),
         needed(manager.lblMedium, settings.frameMedium, "medium"),
         needed(settings.lblTimeZone, settings.frameTimeZone, "time zone")},
        QStringLiteral("Choose the medium or the time zone again."));
    content->addLayout(foot({}, note, draw.filled(settings.cmdSave, 'C')));
    card->setFixedWidth(card->fontMetrics().averageCharWidth() * details_in_letters);
    return card;
}

}  // namespace

void lay_out_settings(FrmPreferencesSettings& settings, FrmPreferences& manager, Draw& draw) {
    begin_step(settings.Frame1, settings.lblFileName, draw);

    auto* const left = new QVBoxLayout;
    left->setSpacing(between_cards);
    left->addWidget(organization_card(settings, draw), 1);
    left->addWidget(trip_options_card(settings, draw));
    left->addWidget(trip_card(settings, draw), 1);
    left->addWidget(stations_card(settings, draw), 1);

    auto* const whole = new QHBoxLayout;
    whole->setSpacing(between_cards);
    whole->addLayout(left, 1);
    whole->addWidget(activity_card(settings, manager, draw));
    draw.window().page()->addLayout(whole, 1);
}

}  // namespace brooklander::desktop
