#include "scenario/commands.h"

#include <cerrno>
#include <fstream>
#include <map>
#include <system_error>

#include "platform/code_page.h"
#include "platform/fatal_failure.h"
#include "platform/files/host_system.h"
#include "scenario/arguments.h"
#include "scenario/scenario_error.h"
#include "scenario/stage.h"

namespace brooklander::scenario {
namespace {

namespace fs = std::filesystem;

using Act = std::function<void(Stage&)>;

Step always(Act act) { return {{}, Works::always, false, std::move(act)}; }

void check(const std::error_code& fault, const std::string& what) {
    if (fault) throw Unmet(what + ": " + cause_in_words(fault) + ".");
}

std::string shown(const std::string& path) { return "\"" + to_utf8(path) + "\""; }

fs::path with_folders(const Stage& stage, const std::string& path) {
    fs::path target = stage.host_path(path);
    std::error_code fault;
    fs::create_directories(target.parent_path(), fault);
    check(fault, "The folders of " + shown(path) + " cannot be made");
    return target;
}

void write_file(const fs::path& target, std::string_view bytes, const std::string& path) {
    std::ofstream file(target, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (file.flush()) return;
    const std::error_code fault(errno, std::generic_category());
    std::error_code ignored;
    check(
        fs::is_directory(target, ignored) ? std::make_error_code(std::errc::is_a_directory) : fault,
        shown(path) + " cannot be written");
}

Step copy_step(const Arguments& arguments) {
    arguments.want(2);
    return always([from = host_file(arguments.text(0), arguments.folder()),
                   to = arguments.text(1)](Stage& stage) {
        const FileText text = text_of(from, host_system::utf8_of(from));
        write_file(with_folders(stage, to), text.view(), to);
    });
}

Step write_step(const Arguments& arguments) {
    arguments.want(2);
    return always([path = arguments.text(0), text = arguments.text(1)](Stage& stage) {
        write_file(with_folders(stage, path), text, path);
    });
}

Step remove_step(const Arguments& arguments) {
    arguments.want(1);
    return always([path = arguments.text(0)](Stage& stage) {
        const fs::path target = stage.host_path(path);
        if (holds_a_drive(target, stage.host_path("c:\\"))) {
            throw Unmet("A whole drive is not removed.");
        }
        check(host_system::remove_tree(target), shown(path) + " cannot be removed");
    });
}

Step make_step(const Arguments& arguments) {
    arguments.want(1);
    return always([path = arguments.text(0)](Stage& stage) {
        std::error_code fault;
        fs::create_directories(stage.host_path(path), fault);
        check(fault, shown(path) + " cannot be made");
    });
}

Step start_step(const Arguments& arguments) {
    arguments.want(0);
    return always([](Stage& stage) { stage.start(); });
}

Step fatal_step(const Arguments& arguments) {
    arguments.want(0);
    return {{}, Works::after_start, true, [](Stage& stage) { stage.expect_fatal(); }};
}

Step ended_step(const Arguments& arguments) {
    arguments.want(0);
    return {{}, Works::after_start, false, [](Stage& stage) { stage.expect_ended(); }};
}

Step shot_step(const Arguments& arguments) {
    arguments.want(1);
    if (arguments.text(0).find_first_of("/\\") != std::string::npos) {
        throw WrongLine("A picture's name has no folder.");
    }
    return {{}, Works::while_running, false, [name = arguments.text(0)](Stage& stage) {
                stage.front().take_picture(name);
            }};
}

struct Command {
    std::string usage;
    std::function<Step(const std::string& verb, const Arguments&)> maker;
};

template <typename Maker>
Command command(std::string usage, Maker maker) {
    return {std::move(usage),
            [maker](const std::string&, const Arguments& arguments) { return maker(arguments); }};
}

const std::map<std::string, Command, std::less<>>& commands() {
    static const std::map<std::string, Command, std::less<>> all{
        {"copy", command("copy HOST PATH", copy_step)},
        {"write", command("write PATH TEXT", write_step)},
        {"remove", command("remove PATH", remove_step)},
        {"make", command("make PATH", make_step)},
        {"start", command("start", start_step)},
        {"click", {"click FIELD", user_step}},
        {"type", {"type FIELD TEXT", user_step}},
        {"select", {"select FIELD ENTRY [WHICH]", user_step}},
        {"cell", {"cell FIELD ROW COLUMN", user_step}},
        {"keys", {"keys FIELD KEYS", user_step}},
        {"refused", command("refused COMMAND", refused_step)},
        {"force", command("force COMMAND", force_step)},
        {"open", {"open SCREEN", program_step}},
        {"set", {"set FIELD TEXT", program_step}},
        {"add", {"add FIELD TEXT", program_step}},
        {"setcell", {"setcell FIELD ROW COLUMN TEXT", program_step}},
        {"expect", command("expect FIELD WHAT ...", expect_step)},
        {"file", command("file PATH WHAT ...", file_step)},
        {"fatal", command("fatal", fatal_step)},
        {"ended", command("ended", ended_step)},
        {"print", command("print FIELD", print_step)},
        {"shot", command("shot NAME", shot_step)},
    };
    return all;
}

}  // namespace

Step step_of(const std::vector<std::string>& words, const fs::path& folder) {
    const auto found = commands().find(words.front());
    if (found == commands().end()) {
        throw WrongLine("There is no command " + in_quotes(words.front()) + ".");
    }
    const auto& [verb, command] = *found;
    const Arguments arguments({words.begin() + 1, words.end()}, folder, command.usage);
    return command.maker(verb, arguments);
}

FileText text_of(const fs::path& file, const std::string& shown) {
    try {
        return read_host_file(file, shown);
    } catch (const FatalFailure& failure) {
        throw Unmet(failure.what());
    }
}

fs::path host_file(const std::string& word, const fs::path& folder) {
    return folder / host_system::path_of(to_utf8(word));
}

bool holds_a_drive(const fs::path& path, const fs::path& drive_c) {
    std::error_code ignored;
    const fs::path target = fs::weakly_canonical(path, ignored);
    if (target.empty() || target == target.root_path()) return true;
    for (fs::path above = fs::weakly_canonical(drive_c, ignored);; above = above.parent_path()) {
        if (target == above || fs::equivalent(target, above, ignored)) return true;
        if (above == above.parent_path()) return false;
    }
}

}  // namespace brooklander::scenario
