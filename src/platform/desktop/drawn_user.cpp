#include "platform/desktop/drawn_user.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <array>

#include "platform/desktop/grid_widget.h"
#include "platform/desktop/list_views.h"
#include "platform/desktop/menu_views.h"
#include "scenario/scenario_error.h"

namespace brooklander::desktop {
namespace {

using scenario::Unmet;

struct NamedKey {
    Key::Name name;
    Qt::Key code;
};

constexpr std::array<NamedKey, 9> named_keys{{
    {Key::Name::enter, Qt::Key_Return},
    {Key::Name::erase, Qt::Key_Delete},
    {Key::Name::backspace, Qt::Key_Backspace},
    {Key::Name::up, Qt::Key_Up},
    {Key::Name::down, Qt::Key_Down},
    {Key::Name::left, Qt::Key_Left},
    {Key::Name::right, Qt::Key_Right},
    {Key::Name::tab, Qt::Key_Tab},
    {Key::Name::escape, Qt::Key_Escape},
}};

void press(QWidget* widget, const Key& key) {
    if (key.name == Key::Name::character) {
        QTest::sendKeyEvent(QTest::Click, widget,
                            key.character == ' ' ? Qt::Key_Space : Qt::Key_unknown,
                            shown(std::string_view(&key.character, 1)), Qt::NoModifier);
        return;
    }
    for (const NamedKey& named : named_keys) {
        if (named.name == key.name) QTest::keyClick(widget, named.code);
    }
}

FieldView& view_of(const Windows& windows, const Field& field) {
    FieldView* const view = windows.view_of(field);
    if (view == nullptr) throw Unmet(field.path() + " is not drawn on the screen.");
    return *view;
}

// The field's widget, where the user has come to it: its window foremost, and in sight.
QWidget* widget_of(const Windows& windows, const Field& field) {
    QWidget* const widget = view_of(windows, field).widget();
    ScreenWindow* const window = windows.window_of(field.screen());
    if (widget == nullptr || window == nullptr || !widget->isVisible()) {
        throw Unmet(field.path() + " cannot be seen on the screen.");
    }
    window->raise();
    window->activateWindow();
    window->bring_into_view(widget);
    QApplication::processEvents();
    return widget;
}

// Clicks at a point of a widget, as the mouse would: whatever lies on top there gets it.
void click_at(const Field& field, QWidget* widget, QPoint point) {
    QWidget* const window = widget->window();
    const QPoint in_window = widget->mapTo(window, point);
    QWidget* const hit = window->childAt(in_window);
    if (hit == nullptr || (hit != widget && !widget->isAncestorOf(hit))) {
        throw Unmet(field.path() + " cannot be reached by the mouse on the screen.");
    }
    QTest::mouseClick(hit, Qt::LeftButton, Qt::NoModifier, hit->mapFrom(window, in_window));
}

// Where a click means the widget: boxes with a caption take it at their mark.
QPoint spot_of(const QWidget& widget, FieldKind kind) {
    const bool has_mark = kind == FieldKind::tick_box || kind == FieldKind::option;
    return has_mark ? QPoint(8, widget.height() / 2) : widget.rect().center();
}

void open_and_choose(QComboBox& box, int index) {
    QTest::keyClick(&box, Qt::Key_F4);
    QWidget* const popup = box.view();
    if (!popup->isVisible()) throw Unmet("The list of a box did not open.");
    QTest::keyClick(popup, Qt::Key_Home);
    for (int row = 0; row < index; ++row) QTest::keyClick(popup, Qt::Key_Down);
    QTest::keyClick(popup, Qt::Key_Return);
}

// A cell that has no room on the screen, in a column of no width, is reached by the arrow keys.
void click_by_keyboard(const Grid& grid, QWidget* widget, GridCell cell) {
    widget->setFocus(Qt::TabFocusReason);
    const auto go = [&](int steps, Qt::Key forward, Qt::Key back) {
        for (int step = 0; step < std::abs(steps); ++step) {
            QTest::keyClick(widget, steps > 0 ? forward : back);
        }
    };
    go(cell.row - grid.current().row, Qt::Key_Down, Qt::Key_Up);
    go(cell.column - grid.current().column, Qt::Key_Right, Qt::Key_Left);
    if (!(grid.current() == cell)) {
        throw Unmet(grid.path() + " does not let the arrow keys come to that cell.");
    }
    QTest::keyClick(widget, Qt::Key_Return);
}

}  // namespace

void DrawnUser::click(Field& field) const {
    if (field.kind() == FieldKind::menu_entry) {
        choose(static_cast<MenuEntry&>(field));
        return;
    }
    QWidget* const widget = widget_of(windows_, field);
    click_at(field, widget, spot_of(*widget, field.kind()));
}

void DrawnUser::choose(const MenuEntry& entry) const {
    const auto action_of = [this](const Field& field) {
        return static_cast<MenuView&>(view_of(windows_, field)).action();
    };
    ScreenWindow* const window = windows_.window_of(entry.screen());
    if (window == nullptr) throw Unmet(entry.path() + " cannot be seen on the screen.");
    window->activateWindow();
    QMenuBar* const bar = window->menuBar();
    if (entry.container() == &entry.screen()) {
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier,
                          bar->actionGeometry(action_of(entry)).center());
        return;
    }
    QAction* const menu_action = action_of(*entry.container());
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier,
                      bar->actionGeometry(menu_action).center());
    QMenu* const menu = menu_action->menu();
    if (!menu->isVisible()) throw Unmet(entry.container()->path() + " did not open.");
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                      menu->actionGeometry(action_of(entry)).center());
}

void DrawnUser::type(TextBox& box, const std::string& text) const {
    QWidget* const widget = widget_of(windows_, box);
    widget->setFocus(Qt::TabFocusReason);
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    if (text.empty()) QTest::keyClick(widget, Qt::Key_Delete);
    for (const char character : text) {
        if (!box.usable()) break;
        press(widget, Key::of(character));
    }
}

void DrawnUser::click_entry(EntryList& list, int index) const {
    QWidget* const widget = widget_of(windows_, list);
    if (auto* const box = dynamic_cast<QComboBox*>(widget)) {
        box->setFocus(Qt::TabFocusReason);
        open_and_choose(*box, index);
        return;
    }
    auto* const view = static_cast<ListWidget*>(widget);
    const QModelIndex entry = view->entries().index(index);
    view->scrollTo(entry);
    const QRect place = view->visualRect(entry).intersected(view->viewport()->rect());
    click_at(list, view->viewport(), place.center());
}

void DrawnUser::click_cell(Grid& grid, GridCell cell) const {
    auto* const widget = static_cast<GridWidget*>(widget_of(windows_, grid));
    widget->bring_into_view(cell);
    QRect place = widget->cell_place(cell);
    // All headings do the same, so that another one serves for that of a hidden column.
    const bool is_heading = cell.row < grid.fixed_rows();
    for (int column = 0; is_heading && place.isEmpty() && column < grid.columns(); ++column) {
        place = widget->cell_place({cell.row, column});
    }
    if (place.isEmpty() && !grid.on_key && !is_heading) {
        click_by_keyboard(grid, widget, cell);
        return;
    }
    if (place.isEmpty()) {
        throw Unmet(grid.path() + " does not show the cell " + std::to_string(cell.row) + " " +
                    std::to_string(cell.column) + " on the screen.");
    }
    click_at(grid, widget->viewport(), place.center());
}

void DrawnUser::press_keys(Field& field, const std::vector<Key>& keys) const {
    QWidget* const widget = widget_of(windows_, field);
    widget->setFocus(Qt::TabFocusReason);
    if (field.kind() == FieldKind::text_box) QTest::keyClick(widget, Qt::Key_End);
    for (const Key& key : keys) {
        if (!field.usable()) break;
        press(widget, key);
        if (key.name == Key::Name::tab) break;
    }
}

}  // namespace brooklander::desktop
