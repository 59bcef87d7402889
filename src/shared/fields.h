// The plain kinds of fields, with the rules that each keeps.
//
// Members named after what a user does (press, choose, type) give the field the focus, but for
// menus, and run its handlers; whoever watches the user is told first. Whether a user may do it is
// asked with usable() before.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shared/keys.h"
#include "shared/screen.h"

namespace brooklander {

// A field that lies in a screen or in a panel of it.
class PlacedField : public Field {
  protected:
    PlacedField(FieldKind kind, Field& container, std::string_view name, std::string_view text,
                Start start)
        : Field(kind, &container, &container.screen(), name, text, start) {}
    ~PlacedField() = default;
};

// A part of a screen with a title, which may be empty.
class Panel : public PlacedField {
  public:
    Panel(Field& container, std::string_view name, std::string_view title = {}, Start start = shown)
        : PlacedField(FieldKind::panel, container, name, title, start) {}
};

// A text on the screen. One that only holds a value starts hidden, and no step shows it.
class Label : public PlacedField {
  public:
    Label(Field& container, std::string_view name, std::string_view caption = {},
          Start start = shown)
        : PlacedField(FieldKind::label, container, name, caption, start) {}
};

class Button : public PlacedField {
  public:
    Button(Field& container, std::string_view name, std::string_view caption, Start start = shown)
        : PlacedField(FieldKind::button, container, name, caption, start) {}

    std::function<void()> on_click;

    void press();
};

// A menu of a screen, or an entry of one. A menu without entries acts by itself.
class MenuEntry : public PlacedField {
  public:
    MenuEntry(Field& container, std::string_view name, std::string_view caption,
              Start start = shown)
        : PlacedField(FieldKind::menu_entry, container, name, caption, start) {}

    std::function<void()> on_click;

    void choose();
};

// How a text box treats what is typed.
struct Typing {
    std::size_t most = 0;  // the longest text it takes, in bytes; 0 for no limit
    bool masked = false;   // shows as `*`
};

class TextBox : public PlacedField {
  public:
    TextBox(Field& container, std::string_view name, Start start = shown, Typing typing = {})
        : PlacedField(FieldKind::text_box, container, name, {}, start), typing_(typing) {}

    std::function<void()> on_change;  // after every change of the text, whoever made it
    std::function<void()> on_click;   // a mouse press in the box; not the focus by key or by code
    Button* enter_presses = nullptr;  // the button that Enter presses while a user could

    bool masked() const { return typing_.masked; }
    std::size_t most() const { return typing_.most; }

    // A text that is too long is cut.
    void set_text(std::string_view text) override;

    void click();

    // What keys, or the clipboard, have made of the text. One that is too long is cut.
    void edit(std::string_view text);

    // Marks all that stands there and types the text over it, one change for each character; an
    // empty text deletes what stands there. A first character that is all that stood there changes
    // nothing. Characters behind one that has hidden or disabled the box do not reach it.
    void type(std::string_view text);

    // Presses keys one after the other, the caret standing at the text's end before the first. Tab
    // leaves the box, and so does a box that a key has hidden or disabled: the keys behind that do
    // not reach it.
    void press_keys(const std::vector<Key>& keys);

  private:
    Typing typing_;
};

// A tick box holds 0 or 1.
class TickBox : public PlacedField {
  public:
    TickBox(Field& container, std::string_view name, std::string_view caption = {},
            Start start = shown)
        : PlacedField(FieldKind::tick_box, container, name, caption, start) {}

    std::function<void()> on_click;  // whenever the value changes, by a user or by a step

    bool ticked() const { return ticked_; }
    int value() const { return ticked_ ? 1 : 0; }
    void set_ticked(bool ticked);

    void turn_over();

  private:
    bool ticked_ = false;
};

// One of the choices of its panel.
class Option : public PlacedField {
  public:
    Option(Field& container, std::string_view name, std::string_view caption, Start start = shown)
        : PlacedField(FieldKind::option, container, name, caption, start) {}

    std::function<void()> on_click;  // when it goes on, and at every choice of a user

    bool on() const { return on_; }
    int value() const { return on_ ? 1 : 0; }

    // On, it switches the other options of its panel off, which runs nothing.
    void set_on(bool on);

    void choose();

  private:
    bool store(bool on);

    bool on_ = false;
};

// Entries of text, of which one can be selected. The base of all lists.
class EntryList : public PlacedField {
  public:
    std::function<void()> on_click;  // at every click of a user on an entry, and nothing else

    std::size_t count() const { return entries_.size(); }
    const std::vector<std::string>& entries() const { return entries_; }

    // The entry at an index from 0; empty where there is none.
    std::string_view entry(std::size_t index) const;

    // Replaces an entry that is there.
    void set_entry(std::size_t index, std::string_view text);

    // The index of the selected entry, from 0.
    std::optional<std::size_t> selected() const { return selected_; }
    void select(std::size_t index);
    virtual void deselect();

    void clear() { set_entries({}); }
    void add(std::string_view entry);

    // Refills the list; nothing is selected then.
    void set_entries(std::vector<std::string> entries);

    // The index of the first entry with a text.
    virtual std::optional<std::size_t> find(std::string_view text) const;

    // A user's click on an entry that is there.
    void click_entry(std::size_t index);

  protected:
    EntryList(FieldKind kind, Field& container, std::string_view name, Start start)
        : PlacedField(kind, container, name, {}, start) {}
    ~EntryList() = default;

    // The entry's text is what the field then says, in lists that say one.
    virtual void entry_selected() {}

  private:
    std::vector<std::string> entries_;
    std::optional<std::size_t> selected_;
};

class List : public EntryList {
  public:
    List(Field& container, std::string_view name, Start start = shown)
        : EntryList(FieldKind::list, container, name, start) {}
};

// A box that shows one text and offers entries for it. Its text may be set to what no entry says.
class PickList : public EntryList {
  public:
    PickList(Field& container, std::string_view name, Start start = shown)
        : EntryList(FieldKind::pick_list, container, name, start) {}

  private:
    void entry_selected() override;
};

}  // namespace brooklander
