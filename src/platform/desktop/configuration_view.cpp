#include "platform/desktop/configuration_view.h"

#include <QCheckBox>
#include <QFont>
#include <QGridLayout>
#include <QPushButton>
#include <array>

#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

using View = ConfigurationPanel;

// A value with its caption on the left.
struct ValueRow {
    const char* caption;
    Label View::*value;
};

constexpr int values_in_a_row = 2;

// From left to right.
constexpr std::array<ValueRow, 18> value_rows{{
    {"File Name:", &View::lblViewFileName},
    {"Characteristics:", &View::lblChar},
    {"Organization ID:", &View::lblOrganization},
    {"Organization Name:", &View::lblOrganizationName},
    {"Activity Type:", &View::lblActivityType},
    {"Activity Category:", &View::lblActivityCategory},
    {"Medium:", &View::lblMedium},
    {"Depth Units:", &View::lblDepthUnits},
    {"Sample Collection ID:", &View::lblSampleCollectionID},
    {"Sample Transport:", &View::lblSampleTransport},
    {"Field Gear ID:", &View::lblFieldGearID},
    {"Gear Type", &View::lblGearType},
    {"Gear Configuration", &View::lblGearConfiguration},
    {"Person:", &View::lblPerson},
    {"Project ID:", &View::lblProjectID},
    {"Project Name:", &View::lblProjectName},
    {"Time Zone:", &View::lblTimeZone},
    {"Trip ID:", &View::lblTrip},
}};

void make_bold(ValueLabel& label) {
    QFont bold = label.font();
    bold.setBold(true);
    label.setFont(bold);
}

QGridLayout* values(View& view, const QString& project_name_caption, Card* card, Draw& draw) {
    auto* const form = new QGridLayout;
    form->setHorizontalSpacing(inside_card);
    form->setVerticalSpacing(2);
    int place = 0;
    for (const ValueRow& value : value_rows) {
        const QString name = QLatin1String(value.caption);
        const bool of_project_name = value.value == &View::lblProjectName;
        QLabel* const caption = draw.text(of_project_name ? project_name_caption : name, card);
        caption->setWordWrap(false);
        const int row = place / values_in_a_row;
        const int column = place % values_in_a_row * 2;
        form->addWidget(caption, row, column);
        ValueLabel* const shown_value = draw.value(view.*value.value, name);
        if (value.value == &View::lblViewFileName) make_bold(*shown_value);
        form->addWidget(shown_value, row, column + 1);
        form->setColumnStretch(column + 1, 1);
        ++place;
    }
    return form;
}

}  // namespace

Card* configuration_card(ConfigurationPanel& panel, const QString& project_name_caption,
                         Draw& draw) {
    Card* const card = draw.card(panel.frameView);
    card->content()->addLayout(values(panel, project_name_caption, card, draw));
    GridWidget* const characteristics =
        draw.grid(panel.MSFlexCharacteristics, QStringLiteral("Characteristics"));
    characteristics->keep_first_column();
    characteristics->set_empty_text(
        QStringLiteral("No characteristics are set up for this configuration file."));
    card->content()->addWidget(characteristics, 1);
    card->content()->addWidget(draw.tick_box(panel.chkEdit));
    return card;
}

Card* use_card(ConfigurationPanel& panel, Draw& draw) {
    Card* const card = draw.card(panel.frameUseFile);
    card->head()->addWidget(draw.tick_box(panel.chkYes, 'Y'));
    card->head()->addWidget(draw.filled(panel.cmdConfirm, 'f'));
    return card;
}

}  // namespace brooklander::desktop
