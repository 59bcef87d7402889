#include "platform/files/host_paths.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/code_page.h"
#include "platform/fatal_failure.h"
#include "platform/files/host_system.h"

namespace brooklander {
namespace {

namespace fs = std::filesystem;

constexpr char home_drive = 'c';
constexpr std::string_view slashes = "\\/";

bool is_slash(char byte) { return slashes.find(byte) != std::string_view::npos; }

// What no name may hold on the file system that the program comes from.
bool is_forbidden(char byte) {
    constexpr std::string_view marks = ":?*\"<>|";
    return static_cast<unsigned char>(byte) < ' ' || marks.find(byte) != std::string_view::npos;
}

char drive_letter(std::string_view path, char otherwise) {
    if (path.size() < 2 || path[1] != ':') return otherwise;
    const char letter = path[0];
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

void add_names(std::vector<std::string>& names, std::string_view path) {
    while (!path.empty()) {
        const std::string_view name = path.substr(0, path.find_first_of(slashes));
        path.remove_prefix(std::min(name.size() + 1, path.size()));
        if (name.empty() || name == ".") continue;
        if (name != "..") {
            names.emplace_back(name);
        } else if (!names.empty()) {
            names.pop_back();
        }
    }
}

// The name in a folder that a name means, which must not be there as it is spelled.
std::optional<fs::path> other_spelling(const fs::path& folder, const std::string& name) {
    std::optional<fs::path> found;
    std::error_code fault;
    fs::directory_iterator entry(folder, fault);
    for (; !fault && entry != fs::directory_iterator(); entry.increment(fault)) {
        const fs::path candidate = entry->path().filename();
        const std::string spelled = program_name(candidate);
        if (spelled.empty() || !same_but_for_case(spelled, name)) continue;
        if (!found || candidate < *found) found = candidate;
    }
    return found;
}

// The name in a folder that a name of the program means: another spelling that stands there, where
// the host tells capitals apart, or else the name itself.
fs::path spelling_of(const fs::path& folder, const std::string& name) {
    fs::path spelled = host_system::path_of(to_utf8(name));
    std::error_code ignored;
    if (!host_system::tells_capitals_apart() ||
        fs::exists(fs::symlink_status(folder / spelled, ignored))) {
        return spelled;
    }
    return other_spelling(folder, name).value_or(std::move(spelled));
}

}  // namespace

std::string ProgramPath::text() const {
    std::string text{drive, ':'};
    for (const std::string& name : names) text += '\\' + name;
    if (names.empty()) text += '\\';
    return text;
}

HostPaths::HostPaths(fs::path drive_c)
    : drive_c_(std::move(drive_c)), current_directory_{home_drive, {}} {}

ProgramPath HostPaths::parse(std::string_view path) const {
    ProgramPath parsed{drive_letter(path, current_directory_.drive), {}};
    const auto fail = [path](const std::string& cause) {
        throw FatalFailure("\"" + to_utf8(path) + "\" is no path to a file: " + cause + ".");
    };
    if (path.empty()) fail("no name is given");
    if (parsed.drive != home_drive &&
        host_system::other_drives().find(parsed.drive) == std::string::npos) {
        fail("there is no drive " + to_utf8(path.substr(0, 2)));
    }
    std::string_view rest = path;
    if (path.size() >= 2 && path[1] == ':') rest.remove_prefix(2);
    const bool from_root = !rest.empty() && is_slash(rest.front());
    if (!from_root && parsed.drive == current_directory_.drive) {
        parsed.names = current_directory_.names;
    }
    add_names(parsed.names, rest);
    for (const std::string& name : parsed.names) {
        if (std::any_of(name.begin(), name.end(), is_forbidden)) {
            fail("a name in it holds a character that no name may hold");
        }
    }
    return parsed;
}

fs::path HostPaths::host(const ProgramPath& path) const {
    fs::path host = path.drive == home_drive ? drive_c_ : host_system::root_of(path.drive);
    for (const std::string& name : path.names) host /= spelling_of(host, name);
    return host;
}

std::vector<std::string> HostPaths::drives() const {
    std::string letters = host_system::other_drives() + home_drive;
    std::sort(letters.begin(), letters.end());
    std::vector<std::string> drives;
    for (const char letter : letters) drives.push_back({letter, ':'});
    return drives;
}

std::string program_name(const fs::path& host_name) {
    std::string name = from_utf8(host_system::utf8_of(host_name)).value_or("");
    const bool allowed = std::none_of(name.begin(), name.end(), is_forbidden) &&
                         name.find_first_of(slashes) == std::string::npos;
    return allowed ? name : std::string();
}

}  // namespace brooklander
