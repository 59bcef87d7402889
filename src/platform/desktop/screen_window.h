// A screen's window: its menus, the water behind its cards, and how it is closed.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QVBoxLayout>
#include <vector>

#include "platform/desktop/field_view.h"

class QScrollArea;

namespace brooklander::desktop {

class ScreenWindow : public QMainWindow {
  public:
    explicit ScreenWindow(const Screen& screen);

    const Screen& screen() const { return screen_; }

    // Where the screen's cards are laid out, and the widget that they lie on.
    QVBoxLayout* page() { return page_layout_; }
    QWidget* surface() { return surface_; }

    // A card that asks something: when it comes up, `first` gets the keyboard, and Escape presses
    // `no`, from everywhere but out of a table, and out of a text box on another card. It may be
    // null, and Escape does nothing then.
    void asks(QWidget* card, QWidget* first, QWidget* no);

    // A card: when the control that had the keyboard goes, the first one on a card that has come up
    // gets it.
    void holds(QWidget* card);

    // The same with another control than the first, which may lie on another card.
    void begins(QWidget* card, QWidget* first);

    // The button that moves a step on: once it can be pressed, Tab leads to it next.
    void moves_on(QWidget* button);

    // Has Tab lead next to the first control on a card.
    void lead_tab_into(QWidget* card);

    // To be called when all widgets follow their fields. `had_keyboard` is the control that had the
    // keyboard before; without `may_give_keyboard`, a step has given it already.
    void settled(QWidget* had_keyboard, bool may_give_keyboard);

    // Takes another window's place and size, before it is shown.
    void stand_in_for(const ScreenWindow& other);

    // Hides the window, in a way that lets it come back where another one has stood since.
    void leave();

    // Scrolls until the widget can be seen.
    void bring_into_view(QWidget* widget);

    // Called when the user closes the window by its frame, which alone does not close it.
    std::function<void()> on_close;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    struct Question {
        QWidget* card;
        QWidget* first;
        QWidget* no;
        bool was_up = false;
    };

    struct CardPlace {
        QWidget* card;
        QWidget* first;  // null for the first by Tab
        bool was_up;
    };
    struct Mover {
        QWidget* button;
        bool was_ready = false;
    };

    const Screen& screen_;
    QScrollArea* area_;
    QWidget* surface_;
    QVBoxLayout* page_layout_;
    void give_keyboard_on();
    bool ask(QWidget* had_keyboard, bool may_give_keyboard);

    std::vector<CardPlace> cards_;
    std::vector<Question> questions_;
    std::vector<Mover> movers_;
    QWidget* next_by_tab_ = nullptr;
    QPointer<QWidget> before_question_;  // had the keyboard then
};

}  // namespace brooklander::desktop
