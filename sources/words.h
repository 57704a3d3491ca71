// The words of a text file, one after the other.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace plenovia {

inline bool IsBlank(std::uint8_t byte) {
  return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

class Words {
 public:
  // With comments, "#" and the rest of the line count as a blank.
  explicit Words(std::span<const std::uint8_t> bytes, bool comments = false)
      : bytes_(bytes), comments_(comments) {}

  // The next word; empty at the end.
  std::string_view Next() {
    while (at_ < bytes_.size() && (IsBlank(bytes_[at_]) || IsComment(bytes_[at_]))) {
      if (IsComment(bytes_[at_])) {
        while (at_ < bytes_.size() && bytes_[at_] != '\n') ++at_;
      } else {
        ++at_;
      }
    }
    const std::size_t begin = at_;
    while (at_ < bytes_.size() && !IsBlank(bytes_[at_]) && !IsComment(bytes_[at_])) ++at_;
    return {reinterpret_cast<const char*>(bytes_.data()) + begin, at_ - begin};
  }
  // The next word as a number; none when it is none.
  template <class Number>
  std::optional<Number> NextNumber() {
    std::string_view word = Next();
    if (word.starts_with('+')) word.remove_prefix(1);
    Number number{};
    const auto [stop, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (word.empty() || error != std::errc() || stop != word.data() + word.size()) return {};
    return number;
  }
  // What follows the one blank behind the last word.
  std::span<const std::uint8_t> Rest() const {
    return bytes_.subspan(at_ < bytes_.size() ? at_ + 1 : at_);
  }

 private:
  bool IsComment(std::uint8_t byte) const { return comments_ && byte == '#'; }

  std::span<const std::uint8_t> bytes_;
  bool comments_;
  std::size_t at_ = 0;
};

}  // namespace plenovia
