// Files of the host of which any single operation can be made to fail, as the real one would.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/host_files.h"

namespace brooklander::test {

enum class Operation {
    change_directory,
    make_folder,
    open_to_read,
    read,
    create,
    append,
    write,
    cut_back,
    close,
    remove,
    list_folders,
    list_files,
};

std::string_view name_of(Operation operation);

struct FileOperation {
    Operation operation{};
    std::string path;  // as the program gave it
};

// Counts the operations and lets those fail that it is told. What a failure does is what files.h
// says: a folder is not made, a text that may end anywhere ends in its middle, a file cannot be cut
// back; all else is a FatalFailure that names the path. Half of what a failing write was given is
// in the file, and a file whose closing fails is closed.
class FailingFiles : public Files {
  public:
    explicit FailingFiles(std::filesystem::path drive_c) : files_(std::move(drive_c)) {}

    // The operations that are to fail, counted from 1.
    void fail(std::set<std::size_t> failing) { failing_ = std::move(failing); }

    // All that the program has asked for, in order, what failed included.
    const std::vector<FileOperation>& log() const { return log_; }

    // Called before every operation.
    std::function<void()> on_operation;

    std::string current_directory() const override { return files_.current_directory(); }
    void change_directory(std::string_view path) override;
    bool make_folder(std::string_view path) override;
    FileText read(std::string_view path, ReadErrors errors = ReadErrors::fail) const override;
    std::unique_ptr<OutputFile> create(std::string_view path) override;
    std::unique_ptr<OutputFile> append(std::string_view path) override;
    void remove(std::string_view path) override;
    std::string full_path(std::string_view path) const override { return files_.full_path(path); }
    std::vector<std::string> drives() const override { return files_.drives(); }
    std::vector<std::string> folders_in(std::string_view path) const override;
    std::vector<std::string> files_in(std::string_view path,
                                      std::string_view pattern) const override;

  private:
    class Output;

    // Whether this operation, which is the next, is to fail.
    bool fails(Operation operation, std::string_view path) const;

    // The same, for what ends in a FatalFailure.
    void pass(Operation operation, std::string_view path) const;

    HostFiles files_;
    std::set<std::size_t> failing_;
    mutable std::vector<FileOperation> log_;
};

}  // namespace brooklander::test
