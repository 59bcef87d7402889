#include "scenario/script.h"

#include <algorithm>

#include "platform/fatal_failure.h"
#include "platform/files/host_files.h"
#include "platform/files/host_system.h"
#include "scenario/commands.h"
#include "scenario/scenario_error.h"

namespace brooklander::scenario {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

class ScriptReader {
  public:
    ScriptReader(const Variables& variables, const std::vector<std::string>& secrets)
        : variables_(variables), secrets_(secrets) {}

    void read_file(const fs::path& file) { read_text(script_file(file).view(), file); }

    void read_text(std::string_view text, const fs::path& file) {
        open_files_.push_back(file.lexically_normal());
        int number = 0;
        for (const std::string_view line : script_lines(text)) {
            read_line(line, file, host_system::utf8_of(file) + ":" + std::to_string(++number));
        }
        open_files_.pop_back();
    }

    std::vector<Step> steps() { return std::move(steps_); }

  private:
    void read_line(std::string_view line, const fs::path& file, const std::string& place) {
        const std::size_t depth = open_files_.size();
        try {
            const std::vector<std::string> words = words_of(line, variables_);
            if (words.empty()) return;
            if (words.front() != "include") {
                Step step = step_of(words, file.parent_path());
                step.place = place;
                steps_.push_back(std::move(step));
                return;
            }
            include(words, file);
        } catch (const WrongLine& wrong) {
            // A line of an included file has been placed already.
            if (open_files_.size() > depth) throw;
            throw WrongLine(place + ": " +
                            (holds_secret(line) ? "The line is no command. Its words hold a secret "
                                                  "and are not told."
                                                : wrong.what()));
        }
    }

    bool holds_secret(std::string_view line) const {
        return std::any_of(secrets_.begin(), secrets_.end(), [line](const std::string& name) {
            return line.find("${" + name + "}") != std::string_view::npos;
        });
    }

    void include(const std::vector<std::string>& words, const fs::path& file) {
        if (words.size() != 2) throw WrongLine("include wants a file.");
        const fs::path included = host_file(words[1], file.parent_path());
        const bool open = std::find(open_files_.begin(), open_files_.end(),
                                    included.lexically_normal()) != open_files_.end();
        if (open) throw WrongLine("This file includes itself.");
        read_file(included);
    }

    const Variables& variables_;
    const std::vector<std::string>& secrets_;
    std::vector<Step> steps_;
    std::vector<fs::path> open_files_;
};

}  // namespace

FileText script_file(const fs::path& file) {
    try {
        return read_host_file(file, host_system::utf8_of(file));
    } catch (const FatalFailure& failure) {
        throw WrongLine(failure.what());
    }
}

std::vector<std::string_view> script_lines(std::string_view text) {
    if (text.starts_with(byte_order_mark)) text.remove_prefix(byte_order_mark.size());
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
    }
    return lines;
}

std::vector<Step> read_script(const fs::path& file, const Variables& variables,
                              const std::vector<std::string>& secrets) {
    ScriptReader reader(variables, secrets);
    reader.read_file(file);
    return reader.steps();
}

std::vector<Step> read_script_text(std::string_view text, const fs::path& file,
                                   const Variables& variables,
                                   const std::vector<std::string>& secrets) {
    ScriptReader reader(variables, secrets);
    reader.read_text(text, file);
    return reader.steps();
}

}  // namespace brooklander::scenario
