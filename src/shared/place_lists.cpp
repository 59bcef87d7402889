#include "shared/place_lists.h"

#include <algorithm>
#include <utility>

#include "platform/code_page.h"
#include "platform/fatal_failure.h"

namespace brooklander {
namespace {

// The path's folders from the drive's root on, each in full: `c:\`, `c:\data`, `c:\data\lake`.
std::vector<std::string> ancestors_and_self(const std::string& path) {
    const std::size_t root_length = std::string_view("c:\\").size();
    std::vector<std::string> folders{path.substr(0, root_length)};
    std::size_t slash = root_length - 1;
    while (slash + 1 < path.size()) {
        slash = std::min(path.find('\\', slash + 1), path.size());
        folders.push_back(path.substr(0, slash));
    }
    return folders;
}

std::string last_name(const std::string& path) {
    return path.back() == '\\' ? path : path.substr(path.rfind('\\') + 1);
}

std::string joined(const std::string& folder, std::string_view name) {
    std::string path = folder;
    if (path.back() != '\\') path += '\\';
    path += name;
    return path;
}

}  // namespace

void DriveList::refresh() {
    if (empty()) store_text(files().current_directory().substr(0, 2));
    set_entries(files().drives());
}

void DriveList::entry_selected() { store_text(entry(*selected())); }

void FolderList::set_path(std::string_view path) {
    const bool drive_alone = path.size() == 2 && path[1] == ':';
    const std::string target = files().full_path(std::string(path) + (drive_alone ? "\\" : ""));
    const bool differs = !same_but_for_case(target, text());
    read(target);
    if (!differs) return;
    store_text(target);
    run(on_change);
}

void FolderList::refresh() {
    if (empty()) store_text(files().current_directory());
    read(path());
}

void FolderList::read(const std::string& folder) {
    std::vector<std::string> shown_entries;
    for (const std::string& ancestor : ancestors_and_self(folder)) {
        shown_entries.push_back(last_name(ancestor));
    }
    try {
        std::vector<std::string> folders = files().folders_in(folder);
        std::move(folders.begin(), folders.end(), std::back_inserter(shown_entries));
    } catch (const FatalFailure&) {
        // Only the way to the folder is shown then.
    }
    set_entries(std::move(shown_entries));
}

void FolderList::open_selected() {
    const std::string clicked = entry_path(*selected());
    if (!same_but_for_case(clicked, path())) set_path(clicked);
}

std::string FolderList::entry_path(std::size_t index) const {
    const std::vector<std::string> line = ancestors_and_self(path());
    return index < line.size() ? line[index] : joined(path(), entry(index));
}

std::optional<std::size_t> FolderList::find(std::string_view text) const {
    if (auto found = EntryList::find(text)) return found;
    std::string wanted(text);
    std::replace(wanted.begin(), wanted.end(), '/', '\\');
    for (std::size_t index = 0; index < count(); ++index) {
        if (same_but_for_case(entry_path(index), wanted)) return index;
    }
    return std::nullopt;
}

void FileList::set_path(std::string_view path) {
    path_ = files().full_path(path);
    refresh();
}

void FileList::deselect() {
    EntryList::deselect();
    store_text({});
}

void FileList::refresh() {
    if (path_.empty()) path_ = files().current_directory();
    std::vector<std::string> names;
    try {
        names = files().files_in(path_, pattern_);
    } catch (const FatalFailure&) {
        names.clear();
    }
    set_entries(std::move(names));
    store_text({});
}

void FileList::entry_selected() { store_text(entry(*selected())); }

}  // namespace brooklander
