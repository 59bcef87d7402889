// Files of the host, by the program's own paths.
#pragma once

#include <filesystem>
#include <system_error>

#include "platform/files.h"
#include "platform/files/host_paths.h"

namespace brooklander {

class HostFiles : public Files {
  public:
    // `drive_c` is the host folder that stands for drive `c:`; the current directory starts there.
    explicit HostFiles(std::filesystem::path drive_c);

    std::string current_directory() const override;
    void change_directory(std::string_view path) override;
    bool make_folder(std::string_view path) override;
    FileText read(std::string_view path, ReadErrors errors = ReadErrors::fail) const override;
    std::unique_ptr<OutputFile> create(std::string_view path) override;
    std::unique_ptr<OutputFile> append(std::string_view path) override;
    void remove(std::string_view path) override;
    std::string full_path(std::string_view path) const override;
    std::vector<std::string> drives() const override;
    std::vector<std::string> folders_in(std::string_view path) const override;
    std::vector<std::string> files_in(std::string_view path,
                                      std::string_view pattern) const override;

    // Where a path lies on the host, for those who stand at the program's edge.
    std::filesystem::path host_path(std::string_view path) const;

  private:
    std::unique_ptr<OutputFile> open(std::string_view path, const char* mode) const;

    HostPaths paths_;
};

// The whole of a host file, as Files::read() gives it; `shown` is its name in a failure's sentence,
// in UTF-8.
FileText read_host_file(const std::filesystem::path& file, const std::string& shown,
                        ReadErrors errors = ReadErrors::fail);

// What a failure was caused by, in the words of the C library on every system.
std::string cause_in_words(const std::error_code& cause);

}  // namespace brooklander
