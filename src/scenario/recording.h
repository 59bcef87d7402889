// A recording as the scenario file that plays it again.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "scenario/recorded_line.h"
#include "scenario/words.h"
#include "screens.h"

namespace brooklander::scenario {

inline constexpr const char* user_variable = "user";
inline constexpr const char* password_variable = "password";

// What a logon was tried with, and what stands in the boxes, the newest last; none is empty.
struct Credentials {
    std::vector<std::string> user_ids;
    std::vector<std::string> passwords;
};

// What was done, with names for what is another thing next time.
//
// - The user id and the password are `${user}` and `${password}`. No text in the file holds them:
//   where one stands in another text (a folder of the user's own name, a password that went into
//   the wrong box) its variable stands there, too. Ones that failed to log on are `${user2}` and so
//   on. Keys are left out where a variable could not stand for them.
// - Each file that was selected on the start screen is a variable: `${file}`, then `${file2}`. The
//   same name is that variable in the lists that hold the file, or what was made of it: the sample
//   files of a new configuration, the converted files; and within what is typed as an output's
//   name. A configuration of that name keeps it: it does not follow the file.
// - Folders stay as they were; next month's file lies where last month's did.
class Recording {
  public:
    Recording(const Screens& screens, std::vector<RecordedLine> lines,
              const Credentials& credentials);

    // The scenario, in UTF-8, whose first lines say what its variables are and how it is played.
    // The name is the file's own, in UTF-8.
    std::string text(std::string_view own_name) const;

    // A name for the file, in UTF-8: after the first of the files worked on.
    std::string suggested_name() const;

    // What the variables stood for in the recorded run. It holds the password: not to be shown.
    Variables values() const;

  private:
    struct Named {
        std::string value;
        std::string variable;
    };
    using Used = std::set<std::string>;

    std::string written(const RecordedLine& line, Used& used) const;
    std::string word(std::string_view text, bool may_name_files, Used& used) const;
    std::string keys(const PressedKeys& keys, Used& used) const;
    std::string head(std::string_view own_name, const Used& used) const;
    const Named* secret_at(std::string_view rest) const;
    const Named* file_at(std::string_view rest) const;
    bool holds_secret(std::string_view text) const;
    bool may_name_files(const Field& field) const;

    const Screens& screens_;
    std::vector<RecordedLine> lines_;
    std::vector<Named> secrets_;  // longer ones first, since one may hold another
    std::vector<Named> files_;    // in the order of their selection
};

}  // namespace brooklander::scenario
