// What the file adapter asks of the host's system, where one system differs from another. Of the
// two sources beside it the build takes the one for its system.
#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace brooklander::host_system {

// The host folder of drive `c:` in the program as its users run it: their home, and on Windows,
// where the program's paths are the host's, the drive itself.
std::filesystem::path drive_c();

// The letters of the drives that there are beside `c:`, in lower case and in their order.
std::string other_drives();

// The root of one of these.
std::filesystem::path root_of(char drive);

// Whether the host takes two names that differ in capitals for two.
bool tells_capitals_apart();

// Whether the host leaves a folder out when it lists what is there.
bool is_hidden(const std::filesystem::path& folder);

// Opens a file as std::fopen() does, with `b` in the mode on every system: bytes are never touched.
// errno says EISDIR of a folder that is to be written, on every system, too.
std::FILE* open(const std::filesystem::path& file, const char* mode);

// Removes a file, or a folder with all in it; what is not there is no failure. A link goes, and
// what it leads to stays.
std::error_code remove_tree(const std::filesystem::path& path);

// Memory for a file's bytes.
std::unique_ptr<char[]> memory_for_text(std::size_t size);

// A path, or a part of one, in UTF-8, and the way back. A name of the host that is no text gives
// nothing on Windows, and elsewhere its bytes, which are no UTF-8 then.
std::string utf8_of(const std::filesystem::path& path);
std::filesystem::path path_of(std::string_view path);

}  // namespace brooklander::host_system
