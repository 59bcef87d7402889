#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <array>

#include "characteristics/detail_choices.h"
#include "platform/desktop/layouts.h"
#include "platform/desktop/theme.h"
#include "platform/desktop/wizard_parts.h"

namespace brooklander::desktop {
namespace {

// The boxes of the choices, with their underlined letters. One panel's letters stand beside those
// of all boxes, so that few of them are first letters.
struct LetteredBox {
    TickBox Details::*box;
    char letter;
};
constexpr std::array<LetteredBox, 3> required_boxes{{
    {&Details::chkProc, 'P'},
    {&Details::chkUOM, 'U'},
    {&Details::chkFraction, 'F'},
}};
constexpr std::array<LetteredBox, 6> optional_boxes{{
    {&Details::chkValue, 'C'},
    {&Details::chkStat, 'I'},
    {&Details::chkWeight, 'W'},
    {&Details::chkTemperature, 'M'},
    {&Details::chkDuration, 'D'},
    {&Details::chkLab, 'B'},
}};
// Either the last question or the error stands below, so that their No and Close share the O.
constexpr char for_all_letter = 's';  // of the Yes of every panel; Y is the last question's

template <std::size_t count>
void add_boxes(Details& details, Label& heading, const std::array<LetteredBox, count>& boxes,
               QGridLayout* grid, int column, Draw& draw) {
    grid->addWidget(draw.caption(heading), 0, column);
    int row = 1;
    for (const LetteredBox& box : boxes) {
        grid->addWidget(draw.tick_box(details.*box.box, box.letter), row++, column);
    }
}

// Higher than its boxes need it, for the panels beside it with their long lists.
Card* choices_card(Details& details, Draw& draw) {
    constexpr int in_lines = 20;
    Card* const card = draw.card(details.frameChoices);
    card->setMinimumHeight(card->fontMetrics().height() * in_lines);
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(inside_card);
    grid->setVerticalSpacing(between_controls);
    add_boxes(details, details.lblRequired, required_boxes, grid, 0, draw);
    add_boxes(details, details.lblOptional, optional_boxes, grid, 1, draw);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(static_cast<int>(optional_boxes.size()) + 1, 1);
    card->content()->addLayout(grid, 1);
    return card;
}

// The sentence that offers a value for all, with its button beside it.
QHBoxLayout* for_all(Label& sentence, Button& yes, Draw& draw) {
    return row({draw.caption(sentence), draw.button(yes, for_all_letter)}, Side::right);
}

// A table takes the height that is left on its card and asks for none.
GridWidget* of_height_left(GridWidget* widget) {
    widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    widget->setMinimumHeight(widget->minimumSizeHint().height());
    return widget;
}

// What has been selected on a card stands behind its choices.
void add_selected(QHBoxLayout* line, Label& selected, Card* card, Draw& draw) {
    const QString name = QStringLiteral("Selected:");
    QLabel* const caption = draw.text(name, card);
    caption->setWordWrap(false);
    line->addSpacing(between_controls);
    line->addWidget(caption);
    line->addWidget(draw.value(selected, name));
}

Card* sources_card(Details& details, Draw& draw) {
    Card* const card = draw.card(details.frameProc);
    GridWidget* const sources = draw.grid(details.MSHFlexSource, shown(details.frameProc.text()));
    sources->set_found_none_text(QStringLiteral("No analytical procedures are set up."));
    card->content()->addWidget(of_height_left(sources), 1);
    add_selected(card->head(), details.lblSource, card, draw);
    return card;
}

QVBoxLayout* procedure_search(Details& details, Draw& draw) {
    auto* const lines = new QVBoxLayout;
    lines->setSpacing(between_controls);
    lines->addWidget(draw.tick_box(details.chkProcId, 'N'));
    lines->addWidget(draw.tick_box(details.chkProcName, 'R'));
    lines->addWidget(draw.text_box(details.txtSearch, QStringLiteral("Search for procedures")));
    lines->addLayout(
        row({draw.button(details.cmdProcSearch, 'a'), draw.button(details.cmdReset, 't')}));
    lines->addStretch();
    return lines;
}

Card* procedures_card(Details& details, Draw& draw) {
    Card* const card = draw.card(details.frameProcedure);
    card->head()->addWidget(draw.value(details.lblProcSource, QStringLiteral("Source")));
    card->head()->addWidget(draw.caption(details.lblSourceBack));
    card->head()->addWidget(draw.button(details.cmdSourceBack, 'k'));

    GridWidget* const procedures =
        draw.grid(details.MSHFlexProc, shown(details.frameProcedure.text()));
    procedures->set_found_none_text(QStringLiteral("This source has no procedures."));
    Card* const no_match = draw.section(details.frameNoMatch);
    auto* const found = new QGridLayout;  // the sentence stands where the table stood
    found->setVerticalSpacing(close_together);
    found->addWidget(of_height_left(procedures), 0, 0);
    found->addWidget(no_match, 0, 0, Qt::AlignTop);
    found->addWidget(draw.caption(details.lblProcHint), 1, 0);
    found->setRowStretch(0, 1);

    auto* const body = new QHBoxLayout;
    body->setSpacing(inside_card);
    body->addLayout(found, 1);
    body->addLayout(procedure_search(details, draw));
    card->content()->addLayout(body, 1);

    auto* const foot = new QHBoxLayout;
    foot->setSpacing(between_controls);
    foot->addWidget(draw.caption(details.lblProcCaption));
    foot->addWidget(draw.value(details.lblProc, shown(details.lblProcCaption.text())), 1);
    foot->addLayout(for_all(details.lblProcAll, details.cmdProcAll, draw));
    card->content()->addLayout(foot);
    return card;
}

Card* units_card(Details& details, Draw& draw) {
    Card* const card = draw.card(details.frameUOM);
    QLabel* const caption = draw.caption(details.lblUOMSearch);
    auto* const search = new QHBoxLayout;
    search->setSpacing(between_controls);
    search->addWidget(caption);
    search->addWidget(draw.text_box(details.txtUOM, shown(details.lblUOMSearch.text())), 1);
    search->addWidget(draw.button(details.cmdUOMSearch, 'a'));
    search->addWidget(draw.button(details.cmdRefresh, 'R'));
    GridWidget* const units = draw.grid(details.MSHFlexUOM, shown(details.frameUOM.text()));
    units->set_found_none_text(QStringLiteral("No unit matches. Try another search."));
    card->head()->addWidget(draw.caption(details.lblUOMHint));
    card->content()->addLayout(search);
    card->content()->addWidget(of_height_left(units), 1);

    auto* const foot = new QHBoxLayout;
    foot->setSpacing(between_controls);
    foot->addWidget(draw.caption(details.lblUOMCaption));
    foot->addWidget(draw.value(details.lblUom, shown(details.lblUOMCaption.text())), 1);
    foot->addLayout(for_all(details.lblUOMAll, details.cmdUOMAll, draw));
    card->content()->addLayout(foot);
    return card;
}

// A detail that is picked from a list. The list's own sentence stands there while it is empty.
struct Picked {
    Panel& panel;
    PickList& list;
    Label& selected;
    Label& sentence;
    Button& yes;
    const char* empty;
};

Card* pick_card(const Picked& picked, Draw& draw) {
    constexpr int list_in_letters = 36;
    Card* const card = draw.card(picked.panel);
    QComboBox* const list = draw.pick_list(picked.list, shown(picked.panel.text()));
    list->setMinimumWidth(list->fontMetrics().averageCharWidth() * list_in_letters);
    auto* const line = new QHBoxLayout;
    line->setSpacing(between_controls);
    line->addWidget(list);
    if (picked.selected.visible()) add_selected(line, picked.selected, card, draw);
    line->addStretch();
    QLabel* const empty = draw.text(QLatin1String(picked.empty), card);
    tell_of(empty, {&picked.list},
            [&entries = picked.list, empty] { empty->setVisible(entries.count() == 0); });
    card->content()->addLayout(line);
    card->content()->addWidget(empty);
    card->content()->addLayout(for_all(picked.sentence, picked.yes, draw));
    card->content()->addStretch();
    return card;
}

// A detail of which there are a few, side by side.
Card* option_card(Panel& panel, std::initializer_list<QRadioButton*> options, Card* card,
                  Label& selected, Label& sentence, Button& yes, Draw& draw) {
    auto* const line = new QHBoxLayout;
    line->setSpacing(inside_card);
    for (QRadioButton* const option : options) line->addWidget(option);
    add_selected(line, selected, card, draw);
    line->addStretch();
    card->setAccessibleName(shown(panel.text()));
    card->content()->addLayout(line);
    card->content()->addLayout(for_all(sentence, yes, draw));
    card->content()->addStretch();
    return card;
}

Card* value_type_card(Details& details, Draw& draw) {
    Card* const card = draw.card(details.frameValueType);
    return option_card(details.frameValueType,
                       {draw.option(details.optActual, 'A'), draw.option(details.optEstimated, 'T'),
                        draw.option(details.optCalculated, 'L')},
                       card, details.lblValue, details.lblValueAll, details.cmdValueYes, draw);
}

Card* weight_card(Details& details, Draw& draw) {
    Card* const card = draw.card(details.frameWeight);
    return option_card(details.frameWeight,
                       {draw.option(details.optNone, 'N'), draw.option(details.optWet, 'T'),
                        draw.option(details.optDry, 'R'), draw.option(details.optAshFree, 'A')},
                       card, details.lblWeight, details.lblWeightAll, details.cmdWeightYes, draw);
}

// Stands where the panels come up while none of them is open.
Card* no_panel_sheet(Details& details, Draw& draw) {
    Card* const sheet = draw.sheet();
    sheet->content()->addWidget(draw.text(
        QStringLiteral("Tick a detail to choose its value. Then click the cells below that are to "
                       "have it, or Yes for all."),
        sheet));
    sheet->content()->addStretch();
    std::vector<Field*> panels{&details.frameProcedure};
    for (const DetailChoice& choice : detail_choices) panels.push_back(&(details.*choice.panel));
    tell_of(sheet, panels, [panels, sheet] {
        sheet->setVisible(std::none_of(panels.begin(), panels.end(),
                                       [](const Field* panel) { return panel->visible(); }));
    });
    return sheet;
}

// Beside the choices, one at a time. All are as high as the choices, so that the table below stays
// where it is.
QVBoxLayout* panels(Details& details, Draw& draw) {
    constexpr int widest_in_letters = 130;
    constexpr const char* no_entries = "The list is empty.";
    auto* const column = new QVBoxLayout;
    column->setSpacing(between_cards);
    for (Card* const card :
         {no_panel_sheet(details, draw), sources_card(details, draw),
          procedures_card(details, draw), units_card(details, draw),
          pick_card({details.frameOther, details.cmbFraction, details.lblFraction,
                     details.lblFractionAll, details.cmdFractionAll, no_entries},
                    draw),
          value_type_card(details, draw),
          pick_card({details.frameStatistic, details.cmbStatistic, details.lblStatistic,
                     details.lblStatisticAll, details.cmdStatYes, no_entries},
                    draw),
          weight_card(details, draw),
          pick_card({details.frameTemperature, details.cmbTemperature, details.lblTemperature,
                     details.lblTemperatureAll, details.cmdTemperatureYes, no_entries},
                    draw),
          pick_card({details.frameDuration, details.cmbDuration, details.lblDuration,
                     details.lblDurationAll, details.cmdDurationYes, no_entries},
                    draw),
          pick_card({details.frameLab, details.cmbLab, details.lblLab, details.lblLabAll,
                     details.cmdLab, "No laboratories are set up for this organization."},
                    draw)}) {
        card->setMaximumWidth(card->fontMetrics().averageCharWidth() * widest_in_letters);
        column->addWidget(card);
    }
    return column;
}

// A box that is ticked has Tab lead on into the panel that it opens.
void lead_into_panels(Details& details, Draw& draw) {
    for (const DetailChoice& choice : detail_choices) {
        auto* const box = static_cast<QCheckBox*>(draw.widget_of(details.*choice.box));
        QWidget* const card = draw.widget_of(details.*choice.panel);
        QObject::connect(box, &QCheckBox::clicked, box, [card, &window = draw.window()] {
            if (card->isVisible()) window.lead_tab_into(card);
        });
    }
}

Card* confirm_card(Details& details, Draw& draw) {
    constexpr int behind_title = 1;
    Card* const card = question(details.frameSaveConfirm, details.cmdYes, details.cmdNo, draw, 'O');
    card->head()->insertWidget(behind_title, draw.caption(details.lblSaveConfirm));
    return card;
}

Card* error_card(Details& details, Draw& draw) {
    Card* const card = draw.card(details.frameError);
    QPushButton* const close = draw.button(details.cmdClose, 'O');
    card->head()->addWidget(close);
    draw.window().asks(card, close, close);
    return card;
}

Card* details_sheet(Details& details, Draw& draw) {
    Card* const sheet = draw.sheet();
    QLabel* const typing = draw.caption(details.lblTyping);
    GridWidget* const table = draw.grid(details.MSFlexDetails, shown(details.text()));
    table->keep_first_column();
    table->set_empty_text(QStringLiteral("There are no characteristics to detail."));
    sheet->content()->addWidget(typing);
    sheet->content()->addWidget(of_height_left(table), 1);

    auto* const questions = new QVBoxLayout;
    questions->setSpacing(between_controls);
    questions->addWidget(confirm_card(details, draw));
    questions->addWidget(error_card(details, draw));
    auto* const foot = new QHBoxLayout;
    foot->setSpacing(between_cards);
    foot->addLayout(questions, 1);
    foot->addWidget(draw.filled(details.cmdSave, 'v'), 0, Qt::AlignRight | Qt::AlignBottom);
    sheet->content()->addLayout(foot);
    return sheet;
}

QHBoxLayout* heading(Details& details, Draw& draw) {
    auto* const line = new QHBoxLayout;
    line->setSpacing(between_controls);
    line->addWidget(draw.title());
    line->addStretch();
    line->addWidget(draw.caption(details.lblFileNameCaption));
    line->addWidget(draw.value(details.lblFileName, shown(details.lblFileNameCaption.text())));
    return line;
}

}  // namespace

// What there is to choose stands above, the characteristics below over the whole width.
void lay_out_details(FrmCharacteristicDetails& details, Draw& draw) {
    constexpr int most_of_it = 10000;  // of what is left beside the choices
    draw.window().page()->addLayout(heading(details, draw));
    auto* const above = new QHBoxLayout;
    above->setSpacing(between_cards);
    above->addWidget(choices_card(details, draw));
    above->addLayout(panels(details, draw), most_of_it);
    above->addStretch(1);
    draw.window().page()->addLayout(above);
    draw.window().page()->addWidget(details_sheet(details, draw), 1);
    lead_into_panels(details, draw);
}

}  // namespace brooklander::desktop
