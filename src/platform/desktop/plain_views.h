// The widgets of the plain kinds of fields: panels, labels, buttons, boxes and options.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>
#include <memory>
#include <optional>

#include "platform/desktop/field_view.h"

class QCheckBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace brooklander::desktop {

// The surface that a panel is drawn as, with its title on top where it has one.
class Card : public QFrame {
  public:
    explicit Card(QWidget* parent);

    // What lies on the card goes in here, one below the other.
    QVBoxLayout* content() { return content_; }

    // What lies beside the title, from left to right.
    QHBoxLayout* head() { return head_; }

    // Leaves the title and what lies below it, as a part of the card around it.
    void drop_border();

    // Has the title lead to a widget on the card by an underlined letter.
    void lead_to(QWidget* widget, char letter);
    char letter() const { return letter_; }

    QLabel* title() { return title_; }
    const QLabel* title() const { return title_; }

  private:
    QHBoxLayout* head_;
    QVBoxLayout* content_;
    QLabel* title_;
    char letter_ = '\0';
};

// A text of one line. One that is too long for its place is cut with an ellipsis and told whole in
// a tool tip; where a value is not set, a dash stands.
class ValueLabel : public QWidget {
  public:
    explicit ValueLabel(QWidget* parent);

    void set_whole_text(const QString& text);
    const QString& whole_text() const { return text_; }

    // For a value beside another one, which says already that nothing is set.
    void drop_dash() { dash_ = false; }

    // Stands behind the text while there is one.
    void set_tint(int number) { tint_ = number; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void tell_in_tool_tip();

    QString text_;
    bool dash_ = true;
    std::optional<int> tint_;
};

std::unique_ptr<FieldView> panel_view(Panel& panel, Card* card);
std::unique_ptr<FieldView> label_view(Label& label, QLabel* widget, char mnemonic);
std::unique_ptr<FieldView> value_view(Label& label, ValueLabel* widget);
std::unique_ptr<FieldView> button_view(Button& button, QPushButton* widget, char mnemonic,
                                       Acts& acts);
std::unique_ptr<FieldView> text_box_view(TextBox& box, QLineEdit* widget, Acts& acts);
std::unique_ptr<FieldView> tick_box_view(TickBox& box, QCheckBox* widget, char mnemonic,
                                         Acts& acts);
std::unique_ptr<FieldView> option_view(Option& option, QRadioButton* widget, char mnemonic,
                                       Acts& acts);

}  // namespace brooklander::desktop
