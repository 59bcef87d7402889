#include <sys/mman.h>

#include <cstdlib>

#include "platform/files/host_system.h"

namespace brooklander::host_system {

namespace fs = std::filesystem;

fs::path drive_c() {
    const char* const home = std::getenv("HOME");
    return home != nullptr && *home != '\0' ? fs::path(home) : fs::path("/");
}

// The whole file system.
std::string other_drives() { return "z"; }

fs::path root_of(char /*drive*/) { return "/"; }

bool tells_capitals_apart() { return true; }

bool is_hidden(const fs::path& folder) { return folder.filename().native().front() == '.'; }

std::FILE* open(const fs::path& file, const char* mode) { return std::fopen(file.c_str(), mode); }

std::error_code remove_tree(const fs::path& path) {
    std::error_code fault;
    fs::remove_all(path, fault);
    return fault;
}

// Asking for large pages saves the system the most of its work on a large file; where it has none,
// nothing is lost.
std::unique_ptr<char[]> memory_for_text(std::size_t size) {
    auto bytes = std::make_unique_for_overwrite<char[]>(size);
#ifdef MADV_HUGEPAGE
    constexpr std::size_t large_page = 2 * 1024 * 1024;
    void* first = bytes.get();
    std::size_t space = size;
    if (std::align(large_page, large_page, first, space) != nullptr) {
        madvise(first, space - space % large_page, MADV_HUGEPAGE);
    }
#endif
    return bytes;
}

std::string utf8_of(const fs::path& path) { return path.string(); }

fs::path path_of(std::string_view path) { return path; }

}  // namespace brooklander::host_system
