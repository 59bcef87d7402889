#include "platform/desktop/name_translation_view.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include "platform/desktop/theme.h"
#include "platform/desktop/wizard_parts.h"

namespace brooklander::desktop {
namespace {

constexpr int flow_in_letters = 52;
constexpr int widest_names_in_letters = 150;  // wider, the steps beside them would be far away

// The controls between which the keyboard goes while a row is worked.
struct Controls {
    GridWidget* names;
    QLineEdit* search_text;
    QPushButton* search;
    QComboBox* matches;
    QPushButton* translate;
};

// All of the text is marked, so that typing begins another search.
void begin_search_text(QLineEdit* search_text) {
    give_keyboard(search_text);
    search_text->selectAll();
}

// Where the keyboard goes when a search is done: to what it offers or, where the name in work is
// translated by it, back to the names.
void go_on_from_search(const NameTranslation& translation, const Controls& controls) {
    if (translation.cmdChange.enabled()) {
        give_keyboard(controls.translate);
    } else if (translation.frameAutoTranslate.visible()) {
        give_keyboard(controls.names);
    } else if (translation.cmbCharacteristics.count() > 0) {
        give_keyboard(controls.matches);
    } else {
        begin_search_text(controls.search_text);
    }
}

// A row is worked from step to step and back to the names without a Tab. The handlers here run
// behind those of the fields.
void lead_keyboard(const NameTranslation& translation, const Controls& controls, Draw& draw) {
    controls.names->on_click = [click = controls.names->on_click, controls](GridCell cell) {
        click(cell);
        begin_search_text(controls.search_text);
    };
    controls.names->on_key = [press = controls.names->on_key, controls](Key key) {
        press(key);
        const bool clicks = key.name == Key::Name::enter ||
                            (key.name == Key::Name::character && key.character == ' ');
        if (clicks && controls.names->shown_rows() > 0) begin_search_text(controls.search_text);
    };
    QObject::connect(controls.search, &QPushButton::clicked, controls.search,
                     [&translation, controls] { go_on_from_search(translation, controls); });
    draw.lead_on(translation.cmdChange, translation.cmdYes);
    draw.lead_on(translation.cmdYes, translation.MSFlexChar);
    draw.lead_on(translation.cmdNo, translation.cmdChange);
}

// The names and their translations.
Card* names_sheet(NameTranslation& translation, const TranslationParts& parts, Controls& controls,
                  Draw& draw) {
    Card* const sheet = draw.sheet();
    Card* const instructions = draw.section(translation.frameInstructions);
    QLabel* const instruction = draw.caption(translation.lblInstructions, 'L');
    instructions->content()->addWidget(instruction);
    controls.names = draw.grid(translation.MSFlexChar, parts.names);
    controls.names->set_empty_text(parts.no_names);
    controls.names->set_column_marks([name = parts.name](int column) {
        return ColumnMark{column == 0 ? name : QStringLiteral("KELDAR name"), std::nullopt};
    });
    instruction->setBuddy(controls.names);

    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(inside_card);
    grid->setVerticalSpacing(between_controls);
    grid->addWidget(instructions, 0, 0);
    grid->addWidget(controls.names, 1, 0);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(1, 1);
    if (parts.beside_names) parts.beside_names(grid, sheet);
    sheet->content()->addLayout(grid, 1);
    return sheet;
}

Card* search_sheet(NameTranslation& translation, const TranslationParts& parts, Controls& controls,
                   Draw& draw) {
    Card* const sheet = draw.sheet();
    if (parts.above_search) parts.above_search(sheet);
    Card* const search = draw.section(translation.frameOptions);
    search->content()->addWidget(draw.note(translation.lblSearchHint));
    controls.search_text =
        draw.text_box(translation.txtCharacteristic, shown(translation.frameOptions.text()));
    search->lead_to(controls.search_text, 'g');
    search->content()->addWidget(controls.search_text);
    controls.search = draw.button(translation.cmdDisplay, 'S');
    QLabel* const before =
        draw.text(QStringLiteral("Select a name in the list to search for it."), sheet);
    tell_of(before, {&translation.frameOptions}, [&options = translation.frameOptions, before] {
        before->setVisible(!options.visible());
    });
    sheet->content()->addWidget(before);
    sheet->content()->addWidget(search);
    sheet->content()->addLayout(row({controls.search}, Side::right));
    return sheet;
}

Card* match_sheet(NameTranslation& translation, Controls& controls, Draw& draw) {
    Card* const sheet = draw.sheet();
    Card* const match = draw.section(translation.frameMatch);
    match->content()->addWidget(draw.note(translation.lblMatchHint));
    controls.matches =
        draw.pick_list(translation.cmbCharacteristics, shown(translation.frameMatch.text()));
    match->lead_to(controls.matches, 'M');
    QLabel* const before = draw.text(QStringLiteral("Matches stand here after a search."), sheet);
    QLabel* const none = draw.text(QStringLiteral("No match. Try another search string."), sheet);
    const auto tell = [&translation, before, none] {
        const bool searched = translation.frameMatch.visible();
        const bool empty = translation.cmbCharacteristics.count() == 0;
        before->setVisible(empty && !searched);
        none->setVisible(empty && searched);
    };
    tell_of(sheet, {&translation.frameMatch, &translation.cmbCharacteristics}, tell);

    sheet->content()->addWidget(match);
    sheet->content()->addWidget(before);
    sheet->content()->addWidget(controls.matches);
    sheet->content()->addWidget(none);
    return sheet;
}

Card* translate_sheet(NameTranslation& translation, Controls& controls, Draw& draw) {
    Card* const sheet = draw.sheet();
    auto* const form = new QGridLayout;
    form->setHorizontalSpacing(inside_card);
    form->setVerticalSpacing(between_controls);
    form->addWidget(draw.caption(translation.lblOriginalName), 0, 0);
    form->addWidget(draw.value(translation.lblSelectedCharacteristic,
                               shown(translation.lblOriginalName.text())),
                    0, 1);
    Card* const translate = draw.section(translation.frameTranslate);
    form->addWidget(translate, 1, 0, 1, 2);
    controls.translate = draw.button(translation.cmdChange, 'T');
    form->addWidget(controls.translate, 2, 0);
    form->addWidget(draw.value(translation.lblChange, shown(translation.cmdChange.text())), 2, 1);
    form->addWidget(draw.caption(translation.lblAccept), 3, 0);
    form->addLayout(
        row({draw.button(translation.cmdYes, 'Y'), draw.button(translation.cmdNo, 'N')}), 3, 1);
    form->setColumnStretch(1, 1);
    sheet->content()->addLayout(form);
    sheet->content()->addWidget(draw.section(translation.frameAutoTranslate));
    return sheet;
}

}  // namespace

void lay_out_name_translation(NameTranslation& translation, const TranslationParts& parts,
                              Draw& draw) {
    constexpr int most_of_it = 10000;  // of what is left beside the steps
    Controls controls{};
    begin_step(translation.frameFile, translation.lblFile, draw);
    auto* const whole = new QHBoxLayout;
    whole->setSpacing(between_cards);
    Card* const names = names_sheet(translation, parts, controls, draw);
    names->setMaximumWidth(names->fontMetrics().averageCharWidth() * widest_names_in_letters);
    whole->addWidget(names, most_of_it);

    auto* const flow = new QVBoxLayout;
    flow->setSpacing(between_cards);
    for (Card* const sheet :
         {search_sheet(translation, parts, controls, draw),
          match_sheet(translation, controls, draw), translate_sheet(translation, controls, draw)}) {
        keep_width(sheet, flow_in_letters);
        flow->addWidget(sheet);
    }
    flow->addStretch();
    flow->addLayout(row({draw.filled(translation.cmdNext, 'x')}, Side::right));
    whole->addLayout(flow);
    whole->addStretch(1);
    draw.window().page()->addLayout(whole, 1);
    lead_keyboard(translation, controls, draw);
}

}  // namespace brooklander::desktop
