#include "platform/desktop/draw.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "platform/desktop/theme.h"
#include "platform/desktop/windows.h"

namespace brooklander::desktop {

QWidget* Draw::parent_of(const Field& field) const {
    const Field* const holder = field.container();
    const FieldView* const view = windows_.view_of(*holder);
    return view != nullptr && view->widget() != nullptr ? view->widget() : window_.surface();
}

Card* Draw::card(Panel& panel) {
    auto* const card = new Card(parent_of(panel));
    windows_.add(panel_view(panel, card));
    window_.holds(card);
    return card;
}

Card* Draw::sheet() {
    auto* const card = new Card(window_.surface());
    card->title()->hide();
    window_.holds(card);
    return card;
}

Card* Draw::section(Panel& panel) {
    Card* const part = card(panel);
    set_mark(*part, "card", false);
    part->layout()->setContentsMargins(0, 0, 0, 0);
    return part;
}

QLabel* Draw::caption(Label& label, char letter) {
    auto* const widget = new QLabel(parent_of(label));
    mark(*widget, "quiet");
    windows_.add(label_view(label, widget, letter));
    return widget;
}

ValueLabel* Draw::value(Label& label, const QString& name) {
    auto* const widget = new ValueLabel(parent_of(label));
    widget->setAccessibleName(name);
    windows_.add(value_view(label, widget));
    return widget;
}

QLabel* Draw::note(Label& label) {
    auto* const widget = new QLabel(parent_of(label));
    widget->setWordWrap(true);
    mark(*widget, "quiet");
    windows_.add(label_view(label, widget, no_letter));
    return widget;
}

QLabel* Draw::heading(Label& label, qreal larger_by) {
    auto* const widget = new QLabel(parent_of(label));
    widget->setFont(font_larger_by(larger_by, QFont::Bold));
    mark(*widget, "title");
    windows_.add(label_view(label, widget, no_letter));
    return widget;
}

QPushButton* Draw::button(Button& button, char letter, Weight weight) {
    auto* const widget = new QPushButton(parent_of(button));
    if (weight == Weight::filled) {
        mark(*widget, "filled");
        window_.moves_on(widget);
    }
    keep_place(widget);
    windows_.add(button_view(button, widget, letter, windows_));
    return widget;
}

Draw::Answers Draw::to_go_on(Card* card, Button& yes, Button& no) {
    const Answers answers{filled(yes, 'Y'), button(no, 'N')};
    window_.asks(card, answers.yes, answers.no);
    return answers;
}

Draw::Answers Draw::to_be_sure(Card* card, Button& yes, Button& no) {
    const Answers answers{filled(yes, 'Y'), button(no, 'N')};
    window_.asks(card, answers.no, answers.no);
    return answers;
}

QCheckBox* Draw::tick_box(TickBox& box, char letter) {
    auto* const widget = new QCheckBox(parent_of(box));
    if (box.empty()) widget->setAccessibleName(shown(box.name()));
    windows_.add(tick_box_view(box, widget, letter, windows_));
    return widget;
}

QRadioButton* Draw::option(Option& option, char letter) {
    auto* const widget = new QRadioButton(parent_of(option));
    if (option.empty()) widget->setAccessibleName(shown(option.name()));
    windows_.add(option_view(option, widget, letter, windows_));
    return widget;
}

QLineEdit* Draw::text_box(TextBox& box, QLabel* caption) {
    QLineEdit* const widget = text_box(box, QString());
    caption->setBuddy(widget);
    return widget;
}

QLineEdit* Draw::text_box(TextBox& box, const QString& name) {
    auto* const widget = new QLineEdit(parent_of(box));
    widget->setAccessibleName(name);
    widget->setMinimumHeight(control_height);
    windows_.add(text_box_view(box, widget, windows_));
    return widget;
}

ListWidget* Draw::list(EntryList& list, const QString& name) {
    auto* const widget = new ListWidget(parent_of(list));
    widget->setAccessibleName(name);
    if (list.kind() == FieldKind::folder_list) {
        windows_.add(folder_list_view(static_cast<FolderList&>(list), widget, windows_));
    } else {
        windows_.add(list_view(list, widget, windows_));
    }
    return widget;
}

QComboBox* Draw::pick_list(EntryList& list, const QString& name) {
    auto* const widget = new PickListBox(parent_of(list));
    widget->setAccessibleName(name);
    widget->setMinimumHeight(control_height);
    windows_.add(pick_list_view(list, widget, windows_));
    return widget;
}

GridWidget* Draw::grid(Grid& grid, const QString& name) {
    auto* const widget = new GridWidget(grid, parent_of(grid));
    widget->setAccessibleName(name);
    windows_.add(grid_view(grid, widget, windows_));
    return widget;
}

void Draw::begins_in(const Panel& panel, QWidget* control) {
    window_.begins(windows_.view_of(panel)->widget(), control);
}

QWidget* Draw::widget_of(const Field& field) const { return windows_.view_of(field)->widget(); }

QLabel* Draw::title() {
    auto* const widget = new QLabel(window_.surface());
    widget->setTextFormat(Qt::PlainText);
    widget->setFont(font_larger_by(4, QFont::Bold));
    mark(*widget, "title");
    // The window's own title follows the screen's.
    widget->setText(shown(window_.screen().text()));
    QObject::connect(&window_, &QWidget::windowTitleChanged, widget, &QLabel::setText);
    return widget;
}

QLabel* Draw::text(const QString& text, QWidget* parent) {
    auto* const widget = new QLabel(text, parent);
    widget->setTextFormat(Qt::PlainText);
    widget->setWordWrap(true);
    mark(*widget, "quiet");
    return widget;
}

QHBoxLayout* row(std::initializer_list<QWidget*> widgets, Side packed_to) {
    auto* const layout = new QHBoxLayout;
    layout->setSpacing(between_controls);
    if (packed_to == Side::right) layout->addStretch();
    for (QWidget* const widget : widgets) layout->addWidget(widget);
    if (packed_to == Side::left) layout->addStretch();
    return layout;
}

void keep_place(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

}  // namespace brooklander::desktop
