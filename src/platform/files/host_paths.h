// Where the program's paths lie on the host.
//
// On Windows the program's paths are the host's, but that a folder can stand for drive `c:`.
// Elsewhere drive `c:` is a folder of the host (the user's home), `z:` its whole file system. Names
// are found without regard to case; where several host names differ in case only, the one spelled
// as asked for is meant, otherwise the first by name.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace brooklander {

// A path taken apart: the drive's letter in lower case, and the names from its root on.
struct ProgramPath {
    char drive;
    std::vector<std::string> names;

    // `c:\folder\name`; `c:\` for a root.
    std::string text() const;
};

class HostPaths {
  public:
    // `drive_c` is the host folder that stands for drive `c:`.
    explicit HostPaths(std::filesystem::path drive_c);

    // Takes a path apart, from the current directory where it has no drive of its own; `.` and `..`
    // are resolved. A FatalFailure for a drive that is not there and for a name that holds a
    // character that no file's name may hold.
    ProgramPath parse(std::string_view path) const;

    // The host's path. The part of it that does not exist keeps the letters it was given.
    std::filesystem::path host(const ProgramPath& path) const;

    const ProgramPath& current_directory() const { return current_directory_; }
    void set_current_directory(ProgramPath path) { current_directory_ = std::move(path); }

    // The drives, as `c:`.
    std::vector<std::string> drives() const;

  private:
    std::filesystem::path drive_c_;
    ProgramPath current_directory_;
};

// A host name as the program spells it; an empty text when it cannot: when the code page lacks a
// character of it, or when it holds one that no name may hold here.
std::string program_name(const std::filesystem::path& host_name);

}  // namespace brooklander
