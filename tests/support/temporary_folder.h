// A folder of the host for one test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace brooklander::test {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "brooklander-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) std::abort();
        path_ = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& path() const { return path_; }

    // Writes a file, making its folders.
    void write(const std::filesystem::path& name, std::string_view text) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        std::ofstream(path_ / name, std::ios::binary) << text;
    }

    std::string read(const std::filesystem::path& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    std::filesystem::path path_;
};

}  // namespace brooklander::test
