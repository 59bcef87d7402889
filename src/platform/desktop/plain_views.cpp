#include "platform/desktop/plain_views.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QValidator>
#include <algorithm>

#include "platform/desktop/colours.h"
#include "platform/desktop/theme.h"

namespace brooklander::desktop {
namespace {

constexpr QChar dash(0x2013);  // stands where no value is set

}  // namespace

Card::Card(QWidget* parent)
    : QFrame(parent), head_(new QHBoxLayout), content_(new QVBoxLayout), title_(new QLabel(this)) {
    mark(*this, "card");
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(inside_card, 12, inside_card, 12);
    whole->setSpacing(between_controls);
    title_->setTextFormat(Qt::PlainText);
    title_->setWordWrap(true);
    title_->setFont(font_larger_by(1, QFont::DemiBold));
    mark(*title_, "title");
    head_->setSpacing(between_controls);
    head_->addWidget(title_, 1);
    content_->setSpacing(between_controls);
    whole->addLayout(head_);
    whole->addLayout(content_, 1);
}

void Card::drop_border() {
    set_mark(*this, "card", false);
    layout()->setContentsMargins(0, 0, 0, 0);
    layout()->setSpacing(close_together);
    title_->setFont(font_larger_by(0, QFont::DemiBold));
}

void Card::lead_to(QWidget* widget, char letter) {
    title_->setBuddy(widget);
    letter_ = letter;
}

ValueLabel::ValueLabel(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ValueLabel::set_whole_text(const QString& text) {
    if (text_ == text) return;
    text_ = text;
    updateGeometry();
    tell_in_tool_tip();
    setAccessibleDescription(text);
    update();
}

QSize ValueLabel::sizeHint() const {
    const QString says = text_.isEmpty() && dash_ ? QString(dash) : text_;
    return {fontMetrics().horizontalAdvance(says) + 2, fontMetrics().height() + 4};
}

QSize ValueLabel::minimumSizeHint() const {
    return {std::min(sizeHint().width(), fontMetrics().averageCharWidth() * 6),
            sizeHint().height()};
}

void ValueLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const Colours colours = own_colours();
    const bool is_set = !text_.isEmpty();
    if (is_set && tint_) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(tint(colours, *tint_));
        painter.drawRoundedRect(rect(), 4, 4);
    }
    if (!is_set && !dash_) return;
    painter.setPen(is_set ? colours.text : colours.quiet);
    painter.drawText(
        rect(), Qt::AlignVCenter | (tint_ ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::TextSingleLine,
        is_set ? fontMetrics().elidedText(text_, Qt::ElideRight, width()) : QString(dash));
}

void ValueLabel::resizeEvent(QResizeEvent* /*event*/) { tell_in_tool_tip(); }

void ValueLabel::tell_in_tool_tip() {
    const bool is_cut = fontMetrics().horizontalAdvance(text_) > width();
    setToolTip(is_cut ? tip(text_) : QString());
}

namespace {

class PanelView : public WidgetView<Panel, Card> {
  public:
    using WidgetView::WidgetView;

  protected:
    void follow_content() override {
        widget()->title()->setText(names_a_control()
                                       ? with_mnemonic(field_.text(), widget()->letter())
                                       : shown(field_.text()));
        widget()->title()->setVisible(!field_.empty());
        widget()->setAccessibleName(shown(field_.text()));
    }
    QString says() const override {
        const QString text = widget()->title()->text();
        return names_a_control() ? without_mnemonic(text) : text;
    }

  private:
    bool names_a_control() const { return widget()->title()->buddy() != nullptr; }
};

class LabelView : public WidgetView<Label, QLabel> {
  public:
    LabelView(Label& label, QLabel* widget, char mnemonic)
        : WidgetView(label, widget), mnemonic_(mnemonic) {
        widget->setTextFormat(Qt::PlainText);
    }

  protected:
    // Without a control that it names, a label shows an ampersand as it stands.
    void follow_content() override {
        widget()->setText(names_a_control() ? with_mnemonic(field_.text(), mnemonic_)
                                            : shown(field_.text()));
    }
    QString says() const override {
        return names_a_control() ? without_mnemonic(widget()->text()) : widget()->text();
    }

  private:
    bool names_a_control() const { return widget()->buddy() != nullptr; }

    char mnemonic_;
};

class ValueView : public WidgetView<Label, ValueLabel> {
  public:
    using WidgetView::WidgetView;

  protected:
    void follow_content() override { widget()->set_whole_text(shown(field_.text())); }
    QString says() const override { return widget()->whole_text(); }
};

// Buttons, tick boxes and options: a caption with an underlined letter.
template <typename FieldType, typename Widget>
class CaptionedView : public WidgetView<FieldType, Widget> {
  public:
    CaptionedView(FieldType& field, Widget* widget, char mnemonic)
        : WidgetView<FieldType, Widget>(field, widget), mnemonic_(mnemonic) {}

  protected:
    void follow_content() override {
        const QString caption = with_mnemonic(this->field_.text(), mnemonic_);
        if (this->widget()->text() != caption) this->widget()->setText(caption);  // names it, too
    }
    QString says() const override { return without_mnemonic(this->widget()->text()); }

  private:
    char mnemonic_;
};

class ButtonView : public CaptionedView<Button, QPushButton> {
  public:
    ButtonView(Button& button, QPushButton* widget, char mnemonic, Acts& acts)
        : CaptionedView(button, widget, mnemonic) {
        widget->setAutoDefault(true);  // Enter presses it while it has the focus
        QObject::connect(widget, &QPushButton::clicked, widget,
                         [this, &acts] { acts.act(*this, [this] { field_.press(); }); });
    }
};

// A tick box or an option: what is on is compared, too.
template <typename FieldType, typename Widget>
class OnOffView : public CaptionedView<FieldType, Widget> {
  public:
    using CaptionedView<FieldType, Widget>::CaptionedView;

  protected:
    void follow_content() override {
        CaptionedView<FieldType, Widget>::follow_content();
        const QSignalBlocker quiet(this->widget());
        this->widget()->setChecked(this->field_.value() == 1);
    }
    QString content_difference() const override {
        if (this->widget()->isChecked() != (this->field_.value() == 1)) {
            return this->widget()->isChecked() ? QStringLiteral("is on, on the screen")
                                               : QStringLiteral("is off, on the screen");
        }
        return CaptionedView<FieldType, Widget>::content_difference();
    }
};

class TickBoxView : public OnOffView<TickBox, QCheckBox> {
  public:
    TickBoxView(TickBox& box, QCheckBox* widget, char mnemonic, Acts& acts)
        : OnOffView(box, widget, mnemonic) {
        QObject::connect(widget, &QCheckBox::clicked, widget,
                         [this, &acts] { acts.act(*this, [this] { field_.turn_over(); }); });
    }
};

// Which options go off is the fields' rule; the widgets only follow. Arrows move among them and
// choose nothing, since a choice can lead to another screen.
class OptionView : public OnOffView<Option, QRadioButton> {
  public:
    OptionView(Option& option, QRadioButton* widget, char mnemonic, Acts& acts)
        : OnOffView(option, widget, mnemonic) {
        widget->setAutoExclusive(false);
        QObject::connect(widget, &QRadioButton::clicked, widget,
                         [this, &acts] { acts.act(*this, [this] { field_.choose(); }); });
    }
};

// Takes what the code page can hold.
class CodePageValidator : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& input, int& /*position*/) const override {
        return can_be_typed(input) ? Acceptable : Invalid;
    }
};

bool moves_on(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta: return true;
        default: return (event.modifiers() & Qt::AltModifier) != 0;
    }
}

class TextBoxView : public WidgetView<TextBox, QLineEdit>, public QObject {
  public:
    TextBoxView(TextBox& box, QLineEdit* widget, Acts& acts)
        : WidgetView(box, widget), acts_(acts) {
        if (box.masked()) widget->setEchoMode(QLineEdit::Password);
        if (box.most() > 0) widget->setMaxLength(static_cast<int>(box.most()));
        widget->setValidator(new CodePageValidator(widget));
        widget->installEventFilter(this);
        // Every change that is not the field's own: by keys, by the clipboard, by a screen reader.
        QObject::connect(widget, &QLineEdit::textChanged, this, [this](const QString& text) {
            acts_.act(*this, [this, &text] { field_.edit(typed(text)); });
        });
        QObject::connect(widget, &QLineEdit::returnPressed, this, [this] {
            Button* const button = field_.enter_presses;
            if (button == nullptr || !button->usable()) return;
            acts_.act(*this, [button] { button->press(); });
        });
    }

    // A press of the mouse is the box's click. A key that does not lead away gives it the focus
    // that the program knows of; the focus that Tab gives is the desktop's alone.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress &&
            static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            acts_.act(*this, [this] { field_.click(); });
        } else if (event->type() == QEvent::KeyPress) {
            const auto& key = *static_cast<QKeyEvent*>(event);
            // With Alt a letter leads to a control, or nowhere; it is not typed.
            if ((key.modifiers() & Qt::AltModifier) != 0 && !key.text().isEmpty()) return true;
            if (!field_.focused() && !moves_on(key)) {
                acts_.act(*this, [this] { field_.set_focus(); });
            }
        }
        return QObject::eventFilter(watched, event);
    }

  protected:
    void follow_content() override {
        const QString text = shown(field_.text());
        if (widget()->text() == text) return;
        const QSignalBlocker quiet(widget());
        const int position = widget()->cursorPosition();
        widget()->setText(text);
        widget()->setCursorPosition(std::min<int>(position, int(text.size())));
    }
    QString says() const override { return widget()->text(); }

    // What a masked box holds is told to nobody.
    QString content_difference() const override {
        if (!field_.masked()) return WidgetView::content_difference();
        if (widget()->echoMode() != QLineEdit::Password) return QStringLiteral("is not masked");
        if (says() == shown(field_.text())) return {};
        return QStringLiteral("holds another text on the screen");
    }

  private:
    Acts& acts_;
};

}  // namespace

std::unique_ptr<FieldView> panel_view(Panel& panel, Card* card) {
    return std::make_unique<PanelView>(panel, card);
}

std::unique_ptr<FieldView> label_view(Label& label, QLabel* widget, char mnemonic) {
    return std::make_unique<LabelView>(label, widget, mnemonic);
}

std::unique_ptr<FieldView> value_view(Label& label, ValueLabel* widget) {
    return std::make_unique<ValueView>(label, widget);
}

std::unique_ptr<FieldView> button_view(Button& button, QPushButton* widget, char mnemonic,
                                       Acts& acts) {
    return std::make_unique<ButtonView>(button, widget, mnemonic, acts);
}

std::unique_ptr<FieldView> text_box_view(TextBox& box, QLineEdit* widget, Acts& acts) {
    return std::make_unique<TextBoxView>(box, widget, acts);
}

std::unique_ptr<FieldView> tick_box_view(TickBox& box, QCheckBox* widget, char mnemonic,
                                         Acts& acts) {
    return std::make_unique<TickBoxView>(box, widget, mnemonic, acts);
}

std::unique_ptr<FieldView> option_view(Option& option, QRadioButton* widget, char mnemonic,
                                       Acts& acts) {
    return std::make_unique<OptionView>(option, widget, mnemonic, acts);
}

}  // namespace brooklander::desktop
