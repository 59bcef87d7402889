// What the logic asks of the machine's files.
//
// Paths are the program's own: `c:\folder\name`, in the code page, with either slash and with no
// regard to case. A path without a drive is taken from the current directory. Unless a function
// says otherwise, what cannot be done ends in a FatalFailure whose sentence names the path and the
// cause.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace brooklander {

// A file's bytes, held once. Behind the text stand `slack` zero bytes, so that the last bytes of it
// may be copied in whole blocks.
class FileText {
  public:
    static constexpr std::size_t slack = 64;

    FileText() = default;

    // Takes a buffer of at least size + slack bytes over, of which the first `size` are the text.
    FileText(std::unique_ptr<char[]> bytes, std::size_t size);

    // A copy of a text.
    explicit FileText(std::string_view text);

    FileText(FileText&& other) noexcept;
    FileText& operator=(FileText&& other) noexcept;
    ~FileText() = default;

    std::string_view view() const { return {bytes_.get(), size_}; }
    std::size_t size() const { return size_; }

  private:
    std::unique_ptr<char[]> bytes_;
    std::size_t size_ = 0;
};

// A file that is being written. Destroying it closes it without a word; close() tells a failure.
class OutputFile {
  public:
    // Writing in multiples of this, from the start of a file, is fastest.
    static constexpr std::size_t good_block = 1024 * 1024;

    OutputFile() = default;
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    virtual ~OutputFile() = default;

    // Hands the bytes to the system at once; nothing is held back. After a failure a part of them
    // may be in the file.
    virtual void write(std::string_view bytes) = 0;

    // Cuts the file to so many bytes behind what it held when it was opened. Where that cannot be
    // done, nothing happens.
    virtual void cut_back(std::uint64_t bytes) = 0;
    virtual void close() = 0;
};

// What a failure while reading does, after the file was opened: it is a FatalFailure, or it ends
// the text there, as the end of the file would.
enum class ReadErrors { fail, end_text };

class Files {
  public:
    Files() = default;
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    virtual ~Files() = default;

    // The current directory, without a slash at its end but for a drive's root (`c:\`).
    virtual std::string current_directory() const = 0;
    virtual void change_directory(std::string_view path) = 0;

    // Makes a folder in a folder that exists. False when it could not be made, an empty name and a
    // folder that is there already included: everyone who makes folders goes on all the same.
    virtual bool make_folder(std::string_view path) = 0;

    // The whole file. Whatever becomes of the file later, the text stays.
    virtual FileText read(std::string_view path, ReadErrors errors = ReadErrors::fail) const = 0;

    // Opens for writing anew: a file of that name is emptied, whatever its letters' case.
    virtual std::unique_ptr<OutputFile> create(std::string_view path) = 0;

    // Opens for writing behind what the file holds; makes the file if there is none.
    virtual std::unique_ptr<OutputFile> append(std::string_view path) = 0;

    // Deletes a file, not a folder.
    virtual void remove(std::string_view path) = 0;

    // The path in full, from the drive on, as current_directory() is written. Touches no file.
    virtual std::string full_path(std::string_view path) const = 0;

    // The drives, as `c:`, in the order of their letters.
    virtual std::vector<std::string> drives() const = 0;

    // The names of the folders in a folder, by name without regard to case. Folders that the host
    // hides and names outside the code page are left out, as are names that no file may have here.
    virtual std::vector<std::string> folders_in(std::string_view path) const = 0;

    // The names of the files in a folder that match a pattern of `*` (any text) and `?` (any one
    // character), by name without regard to case. `*.*` matches names without a dot, too. Names
    // outside the code page are left out.
    virtual std::vector<std::string> files_in(std::string_view path,
                                              std::string_view pattern) const = 0;
};

}  // namespace brooklander
