// A screen's menus, as its menu entries tell them.
#pragma once

#include <QMenuBar>
#include <memory>
#include <vector>

#include "platform/desktop/field_view.h"

class QAction;

namespace brooklander::desktop {

class MenuView : public FieldView {
  public:
    MenuView(MenuEntry& entry, QAction* action, Acts& acts);

    Field& field() const override { return entry_; }
    QWidget* widget() const override { return nullptr; }
    QAction* action() const { return action_; }
    void follow() override;
    QString difference() const override;

  private:
    MenuEntry& entry_;
    QAction* action_;
    char mnemonic_;
};

// Fills the bar with all menu entries of the screen in their order. Each entry's first letter that
// is free in its menu is underlined.
std::vector<std::unique_ptr<MenuView>> fill_menu_bar(QMenuBar& bar, const Screen& screen,
                                                     Acts& acts);

}  // namespace brooklander::desktop
