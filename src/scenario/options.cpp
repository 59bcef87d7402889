#include "scenario/options.h"

#include <getopt.h>

#include <array>

#include "platform/code_page.h"
#include "platform/files/host_system.h"
#include "scenario/scenario_error.h"
#include "scenario/terminal.h"

namespace brooklander::scenario {
namespace {

enum Option : int { drawn = 1, shots, home, with, secret, help };

constexpr std::array<option, 7> long_options{{
    {"drawn", no_argument, nullptr, drawn},
    {"shots", required_argument, nullptr, shots},
    {"home", required_argument, nullptr, home},
    {"with", required_argument, nullptr, with},
    {"secret", required_argument, nullptr, secret},
    {"help", no_argument, nullptr, help},
    {nullptr, 0, nullptr, 0},
}};

std::string in_code_page(const std::string& utf8) {
    auto text = from_utf8(utf8);
    if (!text) throw WrongLine("\"" + utf8 + "\" holds a character that the code page lacks.");
    return *std::move(text);
}

void add_variable(Variables& variables, const std::string& assignment) {
    const std::size_t equals = assignment.find('=');
    if (equals == 0 || equals == std::string::npos) {
        throw WrongLine("--with wants NAME=VALUE, not \"" + assignment + "\".");
    }
    variables.insert_or_assign(assignment.substr(0, equals),
                               in_code_page(assignment.substr(equals + 1)));
}

}  // namespace

Options options_of(std::vector<std::string> words) {
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) pointers.push_back(word.data());
    const auto count = static_cast<int>(pointers.size());
    pointers.push_back(nullptr);
    char** const argv = pointers.data();
    Options options;
    optind = 1;
    opterr = 0;
    for (int found = 0;
         (found = getopt_long(count, argv, ":", long_options.data(), nullptr)) != -1;) {
        switch (found) {
            case drawn: options.drawn = true; break;
            case shots: options.shots = host_system::path_of(optarg); break;
            case home: options.home = host_system::path_of(optarg); break;
            case with: add_variable(options.variables, optarg); break;
            case secret: options.secrets.emplace_back(optarg); break;
            case help: options.help = true; break;
            case ':': throw WrongLine(std::string(argv[optind - 1]) + " wants a value.");
            default: throw WrongLine(std::string(argv[optind - 1]) + " is no option.");
        }
    }
    for (int i = optind; i < count; ++i) options.files.push_back(host_system::path_of(argv[i]));
    if (options.files.empty() && !options.help) throw WrongLine("No scenario file is given.");
    return options;
}

std::string usage() {
    return "brooklander-scenario [--drawn] [--shots FOLDER] [--home FOLDER] [--with NAME=VALUE]... "
           "[--secret NAME]... FILE...";
}

std::string ask_for_secret(const std::string& name) {
    std::optional<std::string> line = read_unseen(name + ": ");
    if (!line) throw WrongLine("No value for --secret " + name + " could be read.");
    if (line->ends_with('\r')) line->pop_back();
    auto value = from_utf8(*line);
    if (!value) {
        throw WrongLine("The value for --secret " + name +
                        " holds a character that the code page lacks.");
    }
    return *std::move(value);
}

}  // namespace brooklander::scenario
