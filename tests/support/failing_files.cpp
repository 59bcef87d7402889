#include "support/failing_files.h"

#include <array>

#include "platform/code_page.h"
#include "platform/fatal_failure.h"

namespace brooklander::test {
namespace {

[[noreturn]] void fail(Operation operation, std::string_view path) {
    throw FatalFailure("\"" + to_utf8(path) + "\": the disk fails to " +
                       std::string(name_of(operation)) + ".");
}

}  // namespace

std::string_view name_of(Operation operation) {
    constexpr std::array<std::string_view, 12> names{
        "change_directory", "make_folder", "open_to_read", "read",  "create",
        "append",           "write",       "cut_back",     "close", "remove",
        "list_folders",     "list_files"};
    return names.at(static_cast<std::size_t>(operation));
}

class FailingFiles::Output : public OutputFile {
  public:
    Output(std::unique_ptr<OutputFile> file, const FailingFiles& files, std::string_view path)
        : file_(std::move(file)), files_(files), path_(path) {}

    void write(std::string_view bytes) override {
        if (files_.fails(Operation::write, path_)) {
            file_->write(bytes.substr(0, bytes.size() / 2));
            test::fail(Operation::write, path_);
        }
        file_->write(bytes);
    }

    void cut_back(std::uint64_t bytes) override {
        if (!files_.fails(Operation::cut_back, path_)) file_->cut_back(bytes);
    }

    void close() override {
        const bool failing = files_.fails(Operation::close, path_);
        file_->close();
        if (failing) test::fail(Operation::close, path_);
    }

  private:
    std::unique_ptr<OutputFile> file_;
    const FailingFiles& files_;
    std::string path_;
};

void FailingFiles::change_directory(std::string_view path) {
    pass(Operation::change_directory, path);
    files_.change_directory(path);
}

bool FailingFiles::make_folder(std::string_view path) {
    return !fails(Operation::make_folder, path) && files_.make_folder(path);
}

FileText FailingFiles::read(std::string_view path, ReadErrors errors) const {
    pass(Operation::open_to_read, path);
    FileText text = files_.read(path, errors);
    if (!fails(Operation::read, path)) return text;
    if (errors == ReadErrors::fail) test::fail(Operation::read, path);
    return FileText(text.view().substr(0, text.size() / 2));
}

std::unique_ptr<OutputFile> FailingFiles::create(std::string_view path) {
    pass(Operation::create, path);
    return std::make_unique<Output>(files_.create(path), *this, path);
}

std::unique_ptr<OutputFile> FailingFiles::append(std::string_view path) {
    pass(Operation::append, path);
    return std::make_unique<Output>(files_.append(path), *this, path);
}

void FailingFiles::remove(std::string_view path) {
    pass(Operation::remove, path);
    files_.remove(path);
}

std::vector<std::string> FailingFiles::folders_in(std::string_view path) const {
    pass(Operation::list_folders, path);
    return files_.folders_in(path);
}

std::vector<std::string> FailingFiles::files_in(std::string_view path,
                                                std::string_view pattern) const {
    pass(Operation::list_files, path);
    return files_.files_in(path, pattern);
}

bool FailingFiles::fails(Operation operation, std::string_view path) const {
    if (on_operation) on_operation();
    log_.push_back({operation, std::string(path)});
    return failing_.contains(log_.size());
}

void FailingFiles::pass(Operation operation, std::string_view path) const {
    if (fails(operation, path)) test::fail(operation, path);
}

}  // namespace brooklander::test
