// The words behind a command, with what can be said of them before anything is run.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "scenario/script.h"
#include "shared/field.h"

namespace brooklander::scenario {

class Arguments {
  public:
    // `usage` is how the command is written ("cell FIELD ROW COLUMN"); it is told when the number
    // of words is not its own.
    Arguments(const std::vector<std::string>& words, std::filesystem::path folder,
              std::string usage)
        : words_(words), folder_(std::move(folder)), usage_(std::move(usage)) {}

    std::size_t count() const { return words_.size(); }
    const std::filesystem::path& folder() const { return folder_; }
    const std::vector<std::string>& words() const { return words_; }

    // The same words, told to be written otherwise.
    Arguments with_usage(std::string usage) const { return {words_, folder_, std::move(usage)}; }

    // Throws WrongLine unless there are so many words, the command's own not counted.
    void want(std::size_t count) const {
        if (words_.size() != count) fail();
    }
    [[noreturn]] void fail() const;

    const std::string& text(std::size_t index) const { return words_.at(index); }
    int number(std::size_t index, std::string_view of_what) const;

    // The path of a field of one of these kinds, or of any field where none are given. Screens are
    // fields where their kind is given.
    std::string field(std::size_t index, std::initializer_list<FieldKind> kinds = {}) const;

  private:
    std::vector<std::string> words_;
    std::filesystem::path folder_;
    std::string usage_;
};

// What a field says, in the code page, as it may be told: of a masked box, `*` for each character.
std::string told_text(const Field& field);

// The makers of the commands' steps, by subject; all throw WrongLine.
Step user_step(const std::string& verb, const Arguments& arguments);
Step refused_step(const Arguments& arguments);
Step force_step(const Arguments& arguments);
Step program_step(const std::string& verb, const Arguments& arguments);
Step expect_step(const Arguments& arguments);
Step file_step(const Arguments& arguments);
Step print_step(const Arguments& arguments);

}  // namespace brooklander::scenario
