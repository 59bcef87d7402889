// A screen's window: its menus, the water behind its cards, and how it is closed.
#pragma once

#include <QMainWindow>
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
    // `no`, from everywhere but out of a text box on another card.
    void asks(QWidget* card, QWidget* first, QWidget* no);

    // To be called when all widgets follow their fields: gives the keyboard to a question that has
    // come up.
    void settled();

    // Scrolls until the widget can be seen.
    void bring_into_view(QWidget* widget);

    // Called when the user closes the window by its frame, which alone does not close it.
    std::function<void()> on_close;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    struct Question {
        QWidget* card;
        QWidget* first;
        QWidget* no;
        bool was_up = false;
    };

    const Screen& screen_;
    QScrollArea* area_;
    QWidget* surface_;
    QVBoxLayout* page_layout_;
    std::vector<Question> questions_;
};

}  // namespace brooklander::desktop
