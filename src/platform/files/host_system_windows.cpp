#include <windows.h>

#include <cerrno>
#include <vector>

#include "platform/files/host_system.h"

// The functions of the wide API throughout: those for bytes would take names by the machine's own
// code page, which need not be the program's.
namespace brooklander::host_system {

namespace fs = std::filesystem;

fs::path drive_c() { return root_of('c'); }

std::string other_drives() {
    std::string letters;
    const DWORD known = GetLogicalDrives();
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const bool is_there = ((known >> static_cast<DWORD>(letter - 'a')) & 1U) != 0;
        if (is_there && letter != 'c') letters += letter;
    }
    return letters;
}

fs::path root_of(char drive) {
    const auto letter = static_cast<wchar_t>(drive - 'a' + 'A');
    return fs::path(std::wstring{letter, L':', L'\\'});
}

bool tells_capitals_apart() { return false; }

bool is_hidden(const fs::path& folder) {
    const DWORD attributes = GetFileAttributesW(folder.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_HIDDEN) != 0;
}

std::FILE* open(const fs::path& file, const char* mode) {
    const std::string_view letters = mode;
    std::FILE* const opened =
        _wfopen(file.c_str(), std::wstring(letters.begin(), letters.end()).c_str());
    if (opened != nullptr) return opened;
    const int fault = errno;
    const DWORD attributes = GetFileAttributesW(file.c_str());
    const bool is_folder =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    errno = is_folder ? EISDIR : fault;
    return nullptr;
}

// By hand, since the library's own takes a link to a folder for the folder.
std::error_code remove_tree(const fs::path& path) {
    const auto last_error = [] {
        return std::error_code(static_cast<int>(GetLastError()), std::system_category());
    };
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const std::error_code fault = last_error();
        return fault == std::errc::no_such_file_or_directory ? std::error_code() : fault;
    }
    const bool is_folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (is_folder && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        std::vector<fs::path> inside;
        std::error_code fault;
        fs::directory_iterator entry(path, fault);
        for (; !fault && entry != fs::directory_iterator(); entry.increment(fault)) {
            inside.push_back(entry->path());
        }
        for (auto next = inside.begin(); !fault && next != inside.end(); ++next) {
            fault = remove_tree(*next);
        }
        if (fault) return fault;
    }
    const BOOL removed = is_folder ? RemoveDirectoryW(path.c_str()) : DeleteFileW(path.c_str());
    return removed != 0 ? std::error_code() : last_error();
}

std::unique_ptr<char[]> memory_for_text(std::size_t size) {
    return std::make_unique_for_overwrite<char[]>(size);
}

// Names may hold halves of characters, which have no UTF-8. fs::path would throw at one.
std::string utf8_of(const fs::path& path) {
    const std::wstring& wide = path.native();
    const auto length = static_cast<int>(wide.size());
    const auto convert = [&](char* target, int size) {
        return WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, wide.data(), length, target, size,
                                   nullptr, nullptr);
    };
    std::string utf8(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(utf8.data(), static_cast<int>(utf8.size()));
    return utf8;
}

fs::path path_of(std::string_view path) {
    const auto length = static_cast<int>(path.size());
    const auto convert = [&](wchar_t* target, int size) {
        return MultiByteToWideChar(CP_UTF8, 0, path.data(), length, target, size);
    };
    std::wstring wide(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
    convert(wide.data(), static_cast<int>(wide.size()));
    return wide;
}

}  // namespace brooklander::host_system
