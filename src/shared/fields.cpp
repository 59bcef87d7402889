#include "shared/fields.h"

#include <algorithm>
#include <utility>

namespace brooklander {

void Button::press() {
    const ByUser by_user(*this, Clicked{});
    set_focus();
    run(on_click);
}

void MenuEntry::choose() {
    const ByUser by_user(*this, Clicked{});
    run(on_click);
}

void TextBox::set_text(std::string_view text) {
    if (typing_.most > 0) text = text.substr(0, typing_.most);
    if (store_text(text)) run(on_change);
}

void TextBox::click() {
    const ByUser by_user(*this, Clicked{});
    set_focus();
    run(on_click);
}

void TextBox::edit(std::string_view text) {
    set_focus();
    const std::string whole(typing_.most > 0 ? text.substr(0, typing_.most) : text);
    if (whole == this->text()) return;
    const ByUser by_user(*this, Edited{whole});
    set_text(whole);
}

void TextBox::type(std::string_view text) {
    set_focus();
    const bool was_usable = usable();
    edit(text.substr(0, 1));
    for (std::size_t at = 1; at < text.size() && usable() == was_usable; ++at) {
        edit(this->text() + text[at]);
    }
}

void TextBox::press_keys(const std::vector<Key>& keys) {
    set_focus();
    const bool was_usable = usable();
    std::size_t caret = text().size();
    for (const Key key : keys) {
        if (key.name == Key::Name::tab || usable() != was_usable) break;
        caret = std::min(caret, text().size());
        const std::string before = text().substr(0, caret);
        const std::string behind = text().substr(caret);
        switch (key.name) {
            case Key::Name::character:
                if (typing_.most > 0 && text().size() >= typing_.most) break;
                edit(std::string(before).append(1, key.character).append(behind));
                ++caret;
                break;
            case Key::Name::backspace:
                if (before.empty()) break;
                --caret;
                edit(before.substr(0, caret) + behind);
                break;
            case Key::Name::erase:
                if (!behind.empty()) edit(before + behind.substr(1));
                break;
            case Key::Name::left:
                if (caret > 0) --caret;
                break;
            case Key::Name::right: ++caret; break;
            case Key::Name::enter:
                if (enter_presses != nullptr && enter_presses->usable()) enter_presses->press();
                break;
            case Key::Name::up:
            case Key::Name::down:
            case Key::Name::tab:
            case Key::Name::escape: break;
        }
    }
}

void TickBox::set_ticked(bool ticked) {
    if (ticked_ == ticked) return;
    ticked_ = ticked;
    changed();
    run(on_click);
}

void TickBox::turn_over() {
    const ByUser by_user(*this, Clicked{});
    set_focus();
    set_ticked(!ticked_);
}

bool Option::store(bool on) {
    if (on_ == on) return false;
    on_ = on;
    changed();
    return true;
}

void Option::set_on(bool on) {
    if (!store(on) || !on) return;
    for (Field* field : screen().fields()) {
        auto* const other = dynamic_cast<Option*>(field);
        if (other != nullptr && other != this && other->container() == container()) {
            other->store(false);
        }
    }
    run(on_click);
}

void Option::choose() {
    const ByUser by_user(*this, Clicked{});
    set_focus();
    if (on_) {
        run(on_click);
    } else {
        set_on(true);
    }
}

std::string_view EntryList::entry(std::size_t index) const {
    return index < entries_.size() ? std::string_view(entries_[index]) : std::string_view{};
}

void EntryList::set_entry(std::size_t index, std::string_view text) {
    if (index >= entries_.size()) return;
    entries_[index] = text;
    changed();
}

void EntryList::select(std::size_t index) {
    selected_ = index;
    entry_selected();
    changed();
}

void EntryList::deselect() {
    if (!selected_) return;
    selected_.reset();
    changed();
}

void EntryList::add(std::string_view entry) {
    entries_.emplace_back(entry);
    changed();
}

void EntryList::set_entries(std::vector<std::string> entries) {
    entries_ = std::move(entries);
    selected_.reset();
    changed();
}

std::optional<std::size_t> EntryList::find(std::string_view text) const {
    const auto found = std::find(entries_.begin(), entries_.end(), text);
    if (found == entries_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - entries_.begin());
}

void EntryList::click_entry(std::size_t index) {
    const ByUser by_user(*this, EntryClicked{index});
    set_focus();
    select(index);
    run(on_click);
}

void PickList::entry_selected() {
    if (selected()) store_text(entry(*selected()));
}

}  // namespace brooklander
