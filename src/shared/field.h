// What all fields of all screens have in common.
//
// The screens' fields are the program's whole state. A field states its container, its name, its
// caption and how it starts; it knows nothing of windows, which watch it from outside.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shared/user_act.h"

namespace brooklander {

class Screen;

enum class FieldKind {
    screen,
    panel,
    label,
    text_box,
    button,
    tick_box,
    option,
    list,
    pick_list,
    drive_list,
    folder_list,
    file_list,
    menu_entry,
    grid,
    data_source,
};

// The kind in words, as messages say it ("text box").
std::string_view name_of(FieldKind kind);

// How a field starts. Without a word a field starts visible and enabled, a screen hidden.
struct Start {
    bool visible = true;
    bool enabled = true;
};
inline constexpr Start shown{};
inline constexpr Start hidden{.visible = false, .enabled = true};
inline constexpr Start disabled{.visible = true, .enabled = false};
inline constexpr Start hidden_and_disabled{.visible = false, .enabled = false};

class Field {
  public:
    Field(const Field&) = delete;
    Field& operator=(const Field&) = delete;

    FieldKind kind() const { return kind_; }
    const std::string& name() const { return name_; }

    // The screen's name, a dot and the field's; of a screen, its name.
    std::string path() const;

    // The panel, menu or screen that holds the field; null for a screen.
    Field* container() const { return container_; }
    Screen& screen() const { return *screen_; }

    // The field's own flag, which it keeps while what holds it is hidden.
    bool visible() const { return visible_; }
    virtual void set_visible(bool visible);
    void show() { set_visible(true); }
    void hide() { set_visible(false); }

    // Whether a user can see it: its own flag and that of all that holds it.
    bool seen() const;

    bool enabled() const { return enabled_; }
    void set_enabled(bool enabled);
    void enable() { set_enabled(true); }
    void disable() { set_enabled(false); }

    // Whether a user can work it: seen, and neither it nor a panel or menu around it disabled.
    bool usable() const;

    // How it started, for the steps that take a screen back to where it was.
    bool started_visible() const { return started_visible_; }
    bool started_empty() const { return started_empty_; }

    // What the field says: a caption, a title, a text, a chosen drive, path or name.
    const std::string& text() const { return text_; }

    // Assigns it, as a step of the program does; the field's rules say which handlers run.
    virtual void set_text(std::string_view text);
    void clear_text() { set_text({}); }
    bool empty() const { return text_.empty(); }

    // Gives the field its screen's focus, also while the screen is hidden. A field that is hidden
    // or disabled, or in a panel that is, takes none.
    void set_focus();
    bool focused() const;

    // Calls back after every change of anything that the field holds. There is no way to take an
    // observer off: what watches must take no step once it is gone.
    void observe(std::function<void()> observer);

  protected:
    Field(FieldKind kind, Field* container, Screen* screen, std::string_view name,
          std::string_view text, Start start);
    ~Field() = default;

    // Tells the observers.
    void changed();

    // Tells whoever watches the user of an act, before it is done. To be made first in every member
    // named after what a user does, and to live as long as the act: what such members do to fields
    // in turn is a part of it and is not told. A text box tells each change of its text instead,
    // as TextBox::edit() makes it.
    class ByUser {
      public:
        ByUser(Field& field, const UserAct& act);
        ByUser(const ByUser&) = delete;
        ByUser& operator=(const ByUser&) = delete;
        ~ByUser();

      private:
        Field& field_;
    };

    // Stores the text; false when it was the same.
    bool store_text(std::string_view text);

    // Called when the field's screen, hidden before, is about to be shown.
    virtual void screen_shown() {}

    // Runs a handler, if there is one.
    static void run(const std::function<void()>& handler) {
        if (handler) handler();
    }

  private:
    friend class Screen;

    FieldKind kind_;
    Field* container_;
    Screen* screen_;
    std::string name_;
    std::string text_;
    bool visible_;
    bool enabled_;
    bool started_visible_;
    bool started_empty_;
    std::vector<std::function<void()>> observers_;
};

}  // namespace brooklander
