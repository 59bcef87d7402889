#include "scenario/player.h"

#include <algorithm>
#include <iostream>
#include <nlohmann/json.hpp>

#include "platform/code_page.h"
#include "platform/files/host_system.h"
#include "scenario/options.h"
#include "scenario/scenario_error.h"
#include "scenario/script.h"
#include "scenario/stage.h"
#include "scenario/terminal.h"
#include "scenario/undrawn_front.h"

namespace brooklander::scenario {
namespace {

constexpr int all_passed = 0;
constexpr int something_failed = 1;
constexpr int not_a_scenario = 2;

// Prints lines, with `*` in the place of every character of a secret, in whatever form it shows. A
// secret that holds another one goes first.
class Output {
  public:
    void hide(const std::string& secret) {
        if (secret.empty()) return;
        const auto without_quotes = [](const std::string& text) {
            return text.substr(1, text.size() - 2);
        };
        const std::string utf8 = to_utf8(secret);
        secrets_.push_back(utf8);
        secrets_.push_back(without_quotes(nlohmann::json(utf8).dump()));
        secrets_.push_back(without_quotes(in_quotes(secret)));
        std::stable_sort(secrets_.begin(), secrets_.end(), [](const auto& one, const auto& other) {
            return one.size() > other.size();
        });
    }

    void print(const std::string& line) const { std::cout << hidden(line) << std::endl; }
    void tell(const std::string& line) const { std::cerr << hidden(line) << std::endl; }

  private:
    std::string hidden(std::string line) const {
        for (const std::string& secret : secrets_) {
            for (auto at = line.find(secret); at != std::string::npos;
                 at = line.find(secret, at + secret.size())) {
                line.replace(at, secret.size(), secret.size(), '*');
            }
        }
        return line;
    }

    std::vector<std::string> secrets_;
};

// Plays one file from a fresh program; returns its exit status.
int play(const std::filesystem::path& file, const Options& options, const FrontMaker& make_front,
         const Output& output) {
    try {
        const std::vector<Step> steps = read_script(file, options.variables, options.secrets);
        Stage stage(
            options.home, make_front, [&output](const std::string& line) { output.print(line); },
            [&output](const std::string& sentence) { output.tell(sentence); });
        stage.play(steps);
        return all_passed;
    } catch (const WrongLine& wrong) {
        output.print(wrong.what());
        return not_a_scenario;
    } catch (const Unmet& unmet) {
        output.print(unmet.what());
        return something_failed;
    }
}

int play_all(Options options, const FrontMaker& make_front, Output& output) {
    for (const std::string& name : options.secrets) {
        const std::string value = ask_for_secret(name);
        output.hide(value);
        options.variables.insert_or_assign(name, value);
    }
    int worst = all_passed;
    std::size_t passed = 0;
    for (const auto& file : options.files) {
        const int status = play(file, options, make_front, output);
        worst = std::max(worst, status);
        if (status == all_passed) ++passed;
    }
    std::cout << passed << " passed, " << options.files.size() - passed << " failed" << std::endl;
    return worst;
}

}  // namespace

std::unique_ptr<Front> undrawn_front(const Files& /*files*/) {
    return std::make_unique<UndrawnFront>();
}

FrontMaker no_drawn_front(const std::filesystem::path& /*shots*/) {
    throw WrongLine("--drawn needs windows, and this program was built without.");
}

int run_player(int argc, char** argv, const DrawnFrontMaker& drawn_front_maker) {
    const Terminal terminal;
    Output output;
    try {
        Options options = options_of(command_line(argc, argv));
        if (options.help) {
            std::cout << usage() << '\n';
            return all_passed;
        }
        if (options.home.empty()) options.home = host_system::drive_c();
        const FrontMaker make_front =
            options.drawn ? drawn_front_maker(options.shots) : undrawn_front;
        return play_all(std::move(options), make_front, output);
    } catch (const WrongLine& wrong) {
        std::cerr << wrong.what() << '\n' << usage() << '\n';
        return not_a_scenario;
    }
}

}  // namespace brooklander::scenario
