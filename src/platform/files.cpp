#include "platform/files.h"

#include <algorithm>
#include <utility>

namespace brooklander {

FileText::FileText(std::unique_ptr<char[]> bytes, std::size_t size)
    : bytes_(std::move(bytes)), size_(size) {
    std::fill_n(bytes_.get() + size_, slack, '\0');
}

FileText::FileText(std::string_view text)
    : FileText(std::make_unique_for_overwrite<char[]>(text.size() + slack), text.size()) {
    std::copy(text.begin(), text.end(), bytes_.get());
}

FileText::FileText(FileText&& other) noexcept
    : bytes_(std::move(other.bytes_)), size_(std::exchange(other.size_, 0)) {}

FileText& FileText::operator=(FileText&& other) noexcept {
    bytes_ = std::move(other.bytes_);
    size_ = std::exchange(other.size_, 0);
    return *this;
}

}  // namespace brooklander
