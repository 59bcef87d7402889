// All windows of a program: they follow its fields, and bring to the fields what a user does.
#pragma once

#include <QPointer>
#include <QString>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "platform/desktop/field_view.h"
#include "platform/desktop/screen_window.h"
#include "screens.h"

namespace brooklander::desktop {

class Windows;

// Lays a screen's fields out in its window.
using LayOut =
    std::function<void(Screens& screens, Screen& screen, ScreenWindow& window, Windows& windows)>;

// A screen's window is made when the screen is first shown. Fields and screens tell of their
// changes while a step runs; the windows follow when the step is done, or when it turns the pointer
// to busy, since it will block then.
class Windows : public Acts {
  public:
    // The screens must outlive the windows, and no step may run once the windows are gone.
    Windows(Screens& screens, LayOut lay_out);
    ~Windows() override;

    // Called when the program has ended by its own exit, and when a failure has ended it, with the
    // failure's sentence. From then on nothing follows and nothing acts.
    std::function<void()> on_end;
    std::function<void(const QString& sentence)> on_failure;

    // Called with each window when its own menus are there, before it is shown: for a menu that is
    // no screen's.
    std::function<void(ScreenWindow& window)> on_new_window;

    void act(FieldView& origin, const std::function<void()>& step) override;

    // Runs a step that no widget stands for. While a step runs, nothing else does.
    void act(const std::function<void()>& step);

    // Makes all windows follow now.
    void settle();

    // Null for a screen that has not been shown yet, and for a field that is not drawn.
    ScreenWindow* window_of(const Screen& screen) const;
    FieldView* view_of(const Field& field) const;

    // The window that stands before all others; null when there is none.
    ScreenWindow* foremost() const;

    // The first thing in which the windows differ from the fields, as a sentence; empty when there
    // is none.
    QString difference() const;

    // For the layouts: takes a view in.
    void add(std::unique_ptr<FieldView> view);

    // For the layouts: a field that is drawn already shows something of another one, too, and
    // follows when that changes.
    void follow_also(const Field& drawn, Field& other);

  private:
    void watch(Screen& screen);
    void screen_changed(const Screen& screen);
    void field_changed(FieldView& view);
    void let_follow(FieldView& view);
    void open_window(Screen& screen);
    void close_by_frame(Screen& screen);
    void note_keyboard();
    void show_windows();
    bool give_focus();
    void follow_pointer();
    void paint_while_busy();
    static void drop_input();
    void fail(const std::string& sentence);
    void end();
    bool any_busy() const;
    QString difference_of(const FieldView& view) const;
    QString difference_of(const Screen& screen) const;

    Screens& screens_;
    LayOut lay_out_;
    std::unordered_map<const Screen*, std::unique_ptr<ScreenWindow>> windows_;
    std::vector<std::unique_ptr<FieldView>> views_;
    std::unordered_map<const Field*, FieldView*> view_of_;
    std::vector<FieldView*> waiting_;  // changed since they last followed
    std::unordered_map<const Screen*, const Field*> focus_of_;
    const Screen* foremost_ = nullptr;
    const Field* origin_ = nullptr;  // what the user has worked, while its step runs
    std::unordered_map<const Screen*, QPointer<QWidget>> keyboard_;
    bool busy_shown_ = false;
    bool was_busy_ = false;  // at some time during the step
    bool acting_ = false;
    bool settling_ = false;
    bool over_ = false;
};

}  // namespace brooklander::desktop
