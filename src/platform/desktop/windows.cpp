#include "platform/desktop/windows.h"

#include <QApplication>
#include <algorithm>
#include <new>
#include <utility>

#include "platform/desktop/menu_views.h"
#include "platform/fatal_failure.h"

namespace brooklander::desktop {

Windows::Windows(Screens& screens, LayOut lay_out)
    : screens_(screens), lay_out_(std::move(lay_out)) {
    for (Screen* const screen : screens.desk.screens()) watch(*screen);
}

Windows::~Windows() {
    over_ = true;
    if (busy_shown_) QApplication::restoreOverrideCursor();
    windows_.clear();  // before the views, to which the widgets still speak
}

void Windows::watch(Screen& screen) {
    screen.observe([this, &screen] { screen_changed(screen); });
}

void Windows::add(std::unique_ptr<FieldView> view) {
    FieldView* const added = view.get();
    view_of_[&added->field()] = added;
    let_follow(*added);
    views_.push_back(std::move(view));
    added->field().observe([this, added] { field_changed(*added); });
}

void Windows::follow_also(const Field& drawn, Field& other) {
    other.observe([this, view = view_of(drawn)] {
        if (!over_) let_follow(*view);
    });
}

void Windows::let_follow(FieldView& view) {
    if (!std::exchange(view.waits, true)) waiting_.push_back(&view);
}

void Windows::field_changed(FieldView& view) {
    if (over_) return;
    let_follow(view);
    // A panel that a blocking step hides or shows is to be seen at once.
    if (busy_shown_ && !settling_ && view.field().kind() == FieldKind::panel) paint_while_busy();
}

void Windows::screen_changed(const Screen& screen) {
    if (over_ || settling_) return;
    if (screen.pointer() == Pointer::busy && !busy_shown_) paint_while_busy();
}

// An act on a field that cannot be worked comes from a widget that has not noticed yet; one while a
// step runs, from outside, when the step lets the windows be painted.
void Windows::act(FieldView& origin, const std::function<void()>& step) {
    if (over_) return;
    let_follow(origin);
    if (acting_) return;
    origin_ = &origin.field();
    act(origin.field().usable() ? step : [] {});
    origin_ = nullptr;
}

void Windows::act(const std::function<void()>& step) {
    if (over_ || acting_) return;
    acting_ = true;
    was_busy_ = false;
    note_keyboard();
    try {
        step();
        acting_ = false;
        if (screens_.ended) {
            end();
        } else {
            settle();
            if (was_busy_) drop_input();
        }
    } catch (const FatalFailure& failure) {
        fail(failure.what());
    } catch (const std::bad_alloc&) {
        fail("The memory is exhausted.");
    }
}

void Windows::end() {
    over_ = true;
    follow_pointer();
    for (const auto& [screen, window] : windows_) window->hide();
    if (on_end) on_end();
}

void Windows::fail(const std::string& sentence) {
    over_ = true;
    follow_pointer();
    if (on_failure) on_failure(QString::fromStdString(sentence));
}

void Windows::settle() {
    if (over_ || settling_) return;
    settling_ = true;
    for (Screen* const screen : screens_.desk.screens()) {
        if (screen->visible() && !windows_.contains(screen)) open_window(*screen);
    }
    if (keyboard_.empty()) note_keyboard();
    for (FieldView* const view : std::exchange(waiting_, {})) {
        view->waits = false;
        view->follow();
    }
    show_windows();
    const bool by_a_step = give_focus();
    for (const auto& [screen, window] : windows_) {
        if (screen->visible()) window->settled(keyboard_[screen], !by_a_step);
    }
    follow_pointer();
    if (!acting_) keyboard_.clear();
    settling_ = false;
}

// Which control of each window has the keyboard as a step begins: whether the step takes it away is
// seen when the step is done.
void Windows::note_keyboard() {
    for (const auto& [screen, window] : windows_) keyboard_[screen] = window->focusWidget();
}

void Windows::open_window(Screen& screen) {
    auto& window = windows_[&screen];
    window = std::make_unique<ScreenWindow>(screen);
    window->on_close = [this, &screen] { close_by_frame(screen); };
    for (auto& menu : fill_menu_bar(*window->menuBar(), screen, *this)) add(std::move(menu));
    if (on_new_window) on_new_window(*window);
    lay_out_(screens_, screen, *window, *this);
}

// The new foremost window comes up where the last one stood; the hidden ones go when it is there.
void Windows::show_windows() {
    const Screen* const foremost = screens_.desk.foremost();
    ScreenWindow* const last = foremost_ == nullptr ? nullptr : window_of(*foremost_);
    for (const auto& [screen, window] : windows_) {
        window->setWindowTitle(shown(screen->text()));
        if (!screen->visible() || window->isVisible()) continue;
        if (last != nullptr && last != window.get()) window->stand_in_for(*last);
        if (screen != foremost) window->show();
    }
    if (foremost != nullptr && (foremost != foremost_ || !window_of(*foremost)->isVisible())) {
        ScreenWindow* const window = window_of(*foremost);
        window->show();
        window->raise();
        window->activateWindow();
    }
    foremost_ = foremost;
    for (const auto& [screen, window] : windows_) {
        if (!screen->visible() && window->isVisible()) window->leave();
    }
}

// Whether a step has given the focus, rather than the click that began it.
bool Windows::give_focus() {
    bool by_a_step = false;
    for (const auto& [screen, window] : windows_) {
        const auto& fields = screen->fields();
        const auto found = std::find_if(fields.begin(), fields.end(),
                                        [](const Field* field) { return field->focused(); });
        const Field* const focus = found == fields.end() ? nullptr : *found;
        if (std::exchange(focus_of_[screen], focus) == focus || focus == nullptr) continue;
        const FieldView* const view = view_of(*focus);
        if (view == nullptr || view->widget() == nullptr) continue;
        view->widget()->setFocus(Qt::OtherFocusReason);
        if (focus != origin_) by_a_step = true;
    }
    return by_a_step;
}

bool Windows::any_busy() const {
    const auto& all = screens_.desk.screens();
    return std::any_of(all.begin(), all.end(),
                       [](const Screen* screen) { return screen->pointer() == Pointer::busy; });
}

// While a step runs, any screen's pointer counts, since the step may have changed screens; after it
// the foremost one's.
void Windows::follow_pointer() {
    const Screen* const foremost = screens_.desk.foremost();
    const bool busy =
        !over_ &&
        (acting_ ? any_busy() : foremost != nullptr && foremost->pointer() == Pointer::busy);
    if (std::exchange(busy_shown_, busy) == busy) return;
    if (busy) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void Windows::paint_while_busy() {
    was_busy_ = true;
    settle();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

namespace {

// Lets nothing through that a user does.
class InputFilter : public QObject {
  public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        switch (event->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::KeyPress:
            case QEvent::KeyRelease:
            case QEvent::ShortcutOverride:
            case QEvent::Wheel: return true;
            default: return false;
        }
    }
};

}  // namespace

// What a user has done while a step blocked was meant for what stood there before it.
void Windows::drop_input() {
    InputFilter filter;
    qApp->installEventFilter(&filter);
    QApplication::processEvents();
}

void Windows::close_by_frame(Screen& screen) {
    for (Field* const field : screen.fields()) {
        if (field->kind() != FieldKind::menu_entry || field->name() != "mnuExit") continue;
        auto& exit = static_cast<MenuEntry&>(*field);
        if (!exit.on_click) break;
        if (exit.visible() && exit.enabled()) act([&exit] { exit.choose(); });
        return;
    }
    act([this, &screen] {
        screen.hide();
        screens_.frmStart.show();
    });
}

ScreenWindow* Windows::window_of(const Screen& screen) const {
    const auto found = windows_.find(&screen);
    return found == windows_.end() ? nullptr : found->second.get();
}

FieldView* Windows::view_of(const Field& field) const {
    const auto found = view_of_.find(&field);
    return found == view_of_.end() ? nullptr : found->second;
}

ScreenWindow* Windows::foremost() const {
    const Screen* const screen = screens_.desk.foremost();
    return screen == nullptr ? nullptr : window_of(*screen);
}

QString Windows::difference_of(const FieldView& view) const {
    if (QString difference = view.difference(); !difference.isEmpty()) return difference;
    const QWidget* const widget = view.widget();
    if (widget == nullptr || !view.field().seen()) return {};
    if (!widget->isVisible()) return QStringLiteral("cannot be seen on the screen");
    const bool says_something = view.field().kind() != FieldKind::label || !view.field().empty();
    if (says_something && (widget->width() <= 0 || widget->height() <= 0)) {
        return QStringLiteral("has no room on the screen");
    }
    return {};
}

QString Windows::difference_of(const Screen& screen) const {
    const ScreenWindow* const window = window_of(screen);
    if (screen.visible() != (window != nullptr && window->isVisible())) {
        return shown(screen.name()) + (screen.visible() ? QStringLiteral(" has no window.")
                                                        : QStringLiteral(" still has its window."));
    }
    if (window == nullptr) return {};
    if (window->windowTitle() != shown(screen.text())) {
        return QStringLiteral("%1 has the title \"%2\" on the screen.")
            .arg(shown(screen.name()), window->windowTitle());
    }
    for (const Field* const field : screen.fields()) {
        const FieldView* const view = view_of(*field);
        if (view == nullptr) {
            if (!field->seen()) continue;
            return shown(field->path()) + QStringLiteral(" is not drawn on the screen.");
        }
        const QString difference = difference_of(*view);
        if (difference.isEmpty()) continue;
        return shown(field->path()) + u' ' + difference + u'.';
    }
    return {};
}

QString Windows::difference() const {
    if (over_) return {};
    for (const Screen* const screen : screens_.desk.screens()) {
        QString difference = difference_of(*screen);
        if (!difference.isEmpty()) return difference;
    }
    const Screen* const foremost_screen = screens_.desk.foremost();
    const bool busy = foremost_screen != nullptr && foremost_screen->pointer() == Pointer::busy;
    if (busy != (QApplication::overrideCursor() != nullptr)) {
        return QStringLiteral("The pointer is another one on the screen.");
    }
    return {};
}

}  // namespace brooklander::desktop
