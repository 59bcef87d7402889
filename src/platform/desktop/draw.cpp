#include "platform/desktop/draw.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <memory>
#include <utility>

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

Card* Draw::section(Panel& panel) {
    Card* const section = card(panel);
    section->drop_border();
    return section;
}

Card* Draw::sheet() {
    auto* const card = new Card(window_.surface());
    card->title()->hide();
    window_.holds(card);
    return card;
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

Draw::Answers Draw::to_go_on(Card* card, Button& yes, Button& no, char letter_of_no) {
    const Answers answers{filled(yes, 'Y'), button(no, letter_of_no)};
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
    windows_.add(pick_list_view(list, widget, windows_));
    return widget;
}

GridWidget* Draw::grid(Grid& grid, const QString& name) {
    auto* const widget = new GridWidget(grid, parent_of(grid));
    widget->setAccessibleName(name);
    windows_.add(grid_view(grid, widget, windows_));
    return widget;
}

void Draw::name_column(GridWidget* grid, int column, Label& label, const QString& otherwise) {
    windows_.add(column_name_view(label, grid, column, otherwise));
}

void Draw::name_row(GridWidget* grid, int row, Label& label) {
    windows_.add(row_name_view(label, grid, row));
}

GridWidget* Draw::choices(Grid& grid, const QString& name, const ListTexts& texts) {
    GridWidget* const widget = this->grid(grid, name);
    widget->use_all_width();
    widget->set_empty_text(texts.waiting);
    widget->set_found_none_text(texts.none);
    return widget;
}

namespace {

QString sentence_of(const Button& button, const std::vector<Draw::Needed>& needed,
                    const QString& otherwise) {
    if (button.enabled()) return {};
    QStringList words;
    for (const Draw::Needed& each : needed) {
        if (each.value.empty() && each.chosen_from.seen()) words.push_back(each.words);
    }
    return words.isEmpty() ? otherwise : QStringLiteral("Still needed: ") + words.join(u", ");
}

}  // namespace

QLabel* Draw::still_needed(Button& button, const std::vector<Needed>& needed,
                           const QString& otherwise) {
    QLabel* const note = text(QString(), parent_of(button));
    note->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    std::vector<Field*> fields{&button};
    for (const Needed& each : needed) {
        fields.push_back(&each.value);
        for (Field* at = &each.chosen_from; at != nullptr; at = at->container()) {
            fields.push_back(at);
        }
    }
    tell_of(note, fields, [note, &button, needed, otherwise] {
        note->setText(sentence_of(button, needed, otherwise));
    });
    return note;
}

void Draw::begins_in(const Panel& panel, QWidget* control) {
    window_.begins(windows_.view_of(panel)->widget(), control);
}

void Draw::lead_on(const Button& pressed, const Field& to) {
    auto* const button = static_cast<QPushButton*>(widget_of(pressed));
    QObject::connect(button, &QPushButton::clicked, button,
                     [control = widget_of(to)] { give_keyboard(control); });
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

namespace {

// Tells whether any of some widgets is there, now and whenever that may have changed. The first
// widget owns it.
class AnyShown : public QObject {
  public:
    AnyShown(std::vector<QWidget*> widgets, std::function<void(bool any)> tell)
        : QObject(widgets.front()), widgets_(std::move(widgets)), tell_(std::move(tell)) {
        for (QWidget* const widget : widgets_) widget->installEventFilter(this);
        follow();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
            follow();
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    void follow() {
        tell_(std::any_of(widgets_.begin(), widgets_.end(),
                          [](const QWidget* widget) { return !widget->isHidden(); }));
    }

    std::vector<QWidget*> widgets_;
    std::function<void(bool)> tell_;
};

}  // namespace

void share_while_shown(QBoxLayout* layout, int item, int share,
                       std::initializer_list<QWidget*> widgets) {
    new AnyShown(widgets, [=](bool any) { layout->setStretch(item, any ? share : 0); });
}

void there_while_shown(QWidget* card, std::initializer_list<QWidget*> widgets) {
    new AnyShown(widgets, [card](bool any) { card->setVisible(any); });
}

void tell_of(QWidget* told, const std::vector<Field*>& fields, std::function<void()> tell) {
    // The fields outlive the widget and go on telling of their changes.
    const auto tell_while_there = std::make_shared<const std::function<void()>>(
        [widget = QPointer<QWidget>(told), tell = std::move(tell)] {
            if (widget) tell();
        });
    for (Field* const field : fields) {
        field->observe([tell_while_there] { (*tell_while_there)(); });
    }
    (*tell_while_there)();
}

void give_keyboard(QWidget* control) {
    if (control->isVisible() && control->isEnabled()) control->setFocus(Qt::OtherFocusReason);
}

void keep_width(QWidget* widget, int letters) {
    widget->setFixedWidth(widget->fontMetrics().averageCharWidth() * letters);
    widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Maximum);
}

void keep_height(QWidget* widget) {
    widget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

namespace {

void retain_place(QWidget* widget, bool retain) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(retain);
    widget->setSizePolicy(policy);
}

}  // namespace

void keep_place(QWidget* widget) { retain_place(widget, true); }

void leave_no_place(QWidget* widget) { retain_place(widget, false); }

}  // namespace brooklander::desktop
