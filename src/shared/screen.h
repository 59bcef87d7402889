// Screens, and the order in which they stand before one another.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "shared/field.h"

namespace brooklander {

enum class Pointer { normal, busy };

// All screens of the program, in the order of their making, and which stands before which.
class Desk {
  public:
    // Lists of drives, folders and files read these files.
    explicit Desk(Files& files) : files_(files) {}

    Files& files() const { return files_; }
    const std::vector<Screen*>& screens() const { return screens_; }

    // The visible screen that stands before all others; null when none is visible.
    Screen* foremost() const;

    // Whoever watches the user is told of each act here, before it is done, and of nothing that a
    // step of the program does.
    std::function<void(Field&, const UserAct&)> on_user_act;

  private:
    friend class Field;
    friend class Screen;

    Files& files_;
    std::vector<Screen*> screens_;
    std::vector<Screen*> stack_;  // the last one stands foremost
    int user_acts_ = 0;           // those under way, one within the other
};

class Screen : public Field {
  public:
    // Runs when the screen is first shown, once a run, before it is seen.
    std::function<void()> on_load;

    Desk& desk() const { return desk_; }
    const std::vector<Field*>& fields() const { return fields_; }

    // Shown, a screen comes to stand before all others. Its lists of folders and files are read
    // anew then.
    void set_visible(bool visible) override;
    void bring_forward();

    Pointer pointer() const { return pointer_; }
    void set_pointer(Pointer pointer);

  protected:
    // The text is the screen's title.
    Screen(Desk& desk, std::string_view name, std::string_view title);
    ~Screen() = default;

  private:
    friend class Field;

    // What is hidden or disabled loses the focus, with all that it holds.
    void take_focus_from(const Field& field);

    Desk& desk_;
    std::vector<Field*> fields_;
    Field* focus_ = nullptr;
    Pointer pointer_ = Pointer::normal;
    bool loaded_ = false;
};

}  // namespace brooklander
