#include "platform/desktop/menu_views.h"

#include <QAction>
#include <QMenu>
#include <cctype>
#include <map>

namespace brooklander::desktop {
namespace {

// The first letter of an entry's caption that no entry before it in the same menu begins with.
char free_letter(const MenuEntry& entry) {
    std::string taken;
    for (const Field* field : entry.screen().fields()) {
        if (field == &entry) break;
        if (field->kind() != FieldKind::menu_entry || field->container() != entry.container()) {
            continue;
        }
        taken += free_letter(static_cast<const MenuEntry&>(*field));
    }
    for (const char letter : entry.text()) {
        const char upper = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
        if (std::isalpha(static_cast<unsigned char>(letter)) != 0 &&
            taken.find(upper) == std::string::npos) {
            return upper;
        }
    }
    return '\0';
}

bool has_entries(const MenuEntry& menu) {
    for (const Field* field : menu.screen().fields()) {
        if (field->kind() == FieldKind::menu_entry && field->container() == &menu) return true;
    }
    return false;
}

}  // namespace

MenuView::MenuView(MenuEntry& entry, QAction* action, Acts& acts)
    : entry_(entry), action_(action), mnemonic_(free_letter(entry)) {
    action->setObjectName(shown(entry.name()));
    action->setMenuRole(QAction::NoRole);
    QObject::connect(action, &QAction::triggered, action,
                     [this, &acts] { acts.act(*this, [this] { entry_.choose(); }); });
}

void MenuView::follow() {
    action_->setText(with_mnemonic(entry_.text(), mnemonic_));
    action_->setVisible(entry_.visible());
    action_->setEnabled(entry_.enabled());
}

QString MenuView::difference() const {
    if (action_->isVisible() != entry_.visible()) {
        return QStringLiteral("is %1 in its menu")
            .arg(action_->isVisible() ? QLatin1String("shown") : QLatin1String("hidden"));
    }
    // The toolkit takes an entry that is not shown for disabled.
    if (entry_.visible() && action_->isEnabled() != entry_.enabled()) {
        return QStringLiteral("is %1 in its menu")
            .arg(action_->isEnabled() ? QLatin1String("enabled") : QLatin1String("disabled"));
    }
    if (without_mnemonic(action_->text()) != shown(entry_.text())) {
        return QStringLiteral("says \"%1\" in its menu").arg(without_mnemonic(action_->text()));
    }
    return {};
}

std::vector<std::unique_ptr<MenuView>> fill_menu_bar(QMenuBar& bar, const Screen& screen,
                                                     Acts& acts) {
    std::vector<std::unique_ptr<MenuView>> views;
    std::map<const Field*, QMenu*> menus;
    for (Field* field : screen.fields()) {
        if (field->kind() != FieldKind::menu_entry) continue;
        auto& entry = static_cast<MenuEntry&>(*field);
        QAction* action = nullptr;
        const auto menu = menus.find(entry.container());
        if (menu != menus.end()) {
            action = menu->second->addAction(QString());
        } else if (has_entries(entry)) {
            menus[&entry] = bar.addMenu(QString());
            action = menus[&entry]->menuAction();
        } else {
            action = bar.addAction(QString());
        }
        views.push_back(std::make_unique<MenuView>(entry, action, acts));
    }
    bar.setVisible(!views.empty());
    return views;
}

}  // namespace brooklander::desktop
