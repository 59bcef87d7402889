#include "platform/files/host_files.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <functional>
#include <memory>
#include <new>
#include <utility>

#include "platform/code_page.h"
#include "platform/fatal_failure.h"
#include "platform/files/host_system.h"
#include "platform/files/name_pattern.h"

namespace brooklander {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string& shown, const std::string& what,
                       const std::error_code& cause) {
    throw FatalFailure("\"" + shown + "\" cannot be " + what + ": " + cause_in_words(cause) + ".");
}

std::error_code last_error() { return {errno, std::generic_category()}; }

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

// Opens without a buffer: every read and write here is a large one of the caller's own.
OpenFile open_file(const fs::path& file, const char* mode) {
    OpenFile opened(host_system::open(file, mode));
    if (opened) std::setvbuf(opened.get(), nullptr, _IONBF, 0);
    return opened;
}

class HostOutputFile : public OutputFile {
  public:
    HostOutputFile(OpenFile file, fs::path path, std::string shown)
        : file_(std::move(file)), path_(std::move(path)), shown_(std::move(shown)) {
        std::error_code fault;
        const auto size = fs::file_size(path_, fault);
        held_before_ = fault ? 0 : size;
    }

    void write(std::string_view bytes) override {
        const std::size_t written = std::fwrite(bytes.data(), 1, bytes.size(), file_.get());
        if (written < bytes.size()) fail(shown_, "written", last_error());
    }

    void cut_back(std::uint64_t bytes) override {
        std::error_code ignored;
        fs::resize_file(path_, held_before_ + bytes, ignored);
        std::fseek(file_.get(), 0, SEEK_END);
    }

    void close() override {
        if (std::fclose(file_.release()) != 0) fail(shown_, "closed", last_error());
    }

  private:
    OpenFile file_;
    fs::path path_;
    std::string shown_;
    std::uintmax_t held_before_ = 0;
};

// The names in a folder that pass a test, by name without regard to case.
std::vector<std::string> names_in(
    const fs::path& folder, const std::string& shown,
    const std::function<bool(const fs::directory_entry&, const std::string&)>& wanted) {
    std::vector<std::pair<std::string, std::string>> names;
    std::error_code fault;
    fs::directory_iterator entry(folder, fault);
    while (!fault && entry != fs::directory_iterator()) {
        std::string name = program_name(entry->path().filename());
        if (!name.empty() && wanted(*entry, name)) names.emplace_back(upper(name), std::move(name));
        entry.increment(fault);
    }
    if (fault) fail(shown, "listed", fault);
    std::sort(names.begin(), names.end());
    std::vector<std::string> sorted;
    sorted.reserve(names.size());
    for (auto& [key, name] : names) sorted.push_back(std::move(name));
    return sorted;
}

bool is_folder(const fs::path& path) {
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

FileText read_to_end(std::FILE* opened, const fs::path& file, const std::string& shown,
                     ReadErrors errors) {
    std::error_code ignored;
    const auto told_size = fs::file_size(file, ignored);
    std::size_t capacity = (ignored ? 0 : static_cast<std::size_t>(told_size)) + FileText::slack;
    auto bytes = host_system::memory_for_text(capacity);
    std::size_t size = 0;
    for (;;) {
        const std::size_t got = std::fread(bytes.get() + size, 1, capacity - size, opened);
        const std::error_code fault = last_error();
        size += got;
        if (std::ferror(opened) != 0 && errors == ReadErrors::fail) fail(shown, "read", fault);
        if (capacity - size < FileText::slack) {
            capacity *= 2;
            auto larger = host_system::memory_for_text(capacity);
            std::copy_n(bytes.get(), size, larger.get());
            bytes = std::move(larger);
        }
        if (got == 0) return {std::move(bytes), size};
    }
}

}  // namespace

HostFiles::HostFiles(fs::path drive_c) : paths_(std::move(drive_c)) {}

std::string HostFiles::current_directory() const { return paths_.current_directory().text(); }

void HostFiles::change_directory(std::string_view path) {
    ProgramPath target = paths_.parse(path);
    std::error_code fault;
    const bool folder = fs::is_directory(paths_.host(target), fault);
    if (!folder) {
        fail(to_utf8(path), "made the current directory",
             fault ? fault : std::make_error_code(std::errc::not_a_directory));
    }
    paths_.set_current_directory(std::move(target));
}

bool HostFiles::make_folder(std::string_view path) {
    if (path.empty()) return false;
    try {
        std::error_code ignored;
        return fs::create_directory(host_path(path), ignored);
    } catch (const FatalFailure&) {
        return false;
    }
}

FileText HostFiles::read(std::string_view path, ReadErrors errors) const {
    return read_host_file(host_path(path), to_utf8(path), errors);
}

std::unique_ptr<OutputFile> HostFiles::create(std::string_view path) { return open(path, "wb"); }

std::unique_ptr<OutputFile> HostFiles::append(std::string_view path) { return open(path, "ab"); }

std::unique_ptr<OutputFile> HostFiles::open(std::string_view path, const char* mode) const {
    fs::path host = host_path(path);
    OpenFile file = open_file(host, mode);
    if (!file) {
        const std::error_code fault = last_error();
        fail(to_utf8(path), "opened for writing", fault);
    }
    return std::make_unique<HostOutputFile>(std::move(file), std::move(host), to_utf8(path));
}

void HostFiles::remove(std::string_view path) {
    const fs::path host = host_path(path);
    std::error_code fault;
    if (is_folder(host)) fault = std::make_error_code(std::errc::is_a_directory);
    if (!fault && !fs::remove(host, fault) && !fault) {
        fault = std::make_error_code(std::errc::no_such_file_or_directory);
    }
    if (fault) fail(to_utf8(path), "deleted", fault);
}

std::string HostFiles::full_path(std::string_view path) const { return paths_.parse(path).text(); }

std::vector<std::string> HostFiles::drives() const { return paths_.drives(); }

std::vector<std::string> HostFiles::folders_in(std::string_view path) const {
    return names_in(host_path(path), to_utf8(path),
                    [](const fs::directory_entry& entry, const std::string& /*name*/) {
                        return is_folder(entry.path()) && !host_system::is_hidden(entry.path());
                    });
}

std::vector<std::string> HostFiles::files_in(std::string_view path,
                                             std::string_view pattern) const {
    return names_in(host_path(path), to_utf8(path),
                    [pattern](const fs::directory_entry& entry, const std::string& name) {
                        std::error_code ignored;
                        return name_matches(name, pattern) && entry.is_regular_file(ignored);
                    });
}

fs::path HostFiles::host_path(std::string_view path) const {
    return paths_.host(paths_.parse(path));
}

std::string cause_in_words(const std::error_code& cause) {
    return cause.default_error_condition().message();
}

FileText read_host_file(const fs::path& file, const std::string& shown, ReadErrors errors) {
    if (is_folder(file)) fail(shown, "read", std::make_error_code(std::errc::is_a_directory));
    const OpenFile opened = open_file(file, "rb");
    if (!opened) fail(shown, "opened", last_error());
    try {
        return read_to_end(opened.get(), file, shown, errors);
    } catch (const std::bad_alloc&) {
        fail(shown, "read", std::make_error_code(std::errc::not_enough_memory));
    }
}

}  // namespace brooklander
