#include "codec/pcx_lines.h"

#include <algorithm>

namespace plenovia {

namespace {
constexpr std::uint8_t kRunMark = 0xc0;  // the upper two bits of a run's length byte
constexpr std::size_t kLongestRun = 63;
}  // namespace

bool PcxLineReader::Read(std::span<std::uint8_t> line) {
  if (!runLength_) {
    if (encoded_.size() - at_ < line.size()) return false;
    std::copy_n(encoded_.begin() + static_cast<std::ptrdiff_t>(at_), line.size(), line.begin());
    at_ += line.size();
    return true;
  }
  for (std::size_t done = 0; done < line.size();) {
    if (left_ > 0) {
      const std::size_t taken = std::min(left_, line.size() - done);
      std::fill_n(line.begin() + static_cast<std::ptrdiff_t>(done), taken, value_);
      done += taken;
      left_ -= taken;
      continue;
    }
    if (at_ == encoded_.size()) return false;
    const std::uint8_t byte = encoded_[at_++];
    if (byte < kRunMark) {
      line[done++] = byte;
      continue;
    }
    if (at_ == encoded_.size()) return false;
    left_ = byte & kLongestRun;
    value_ = encoded_[at_++];
  }
  return true;
}

std::size_t EncodePcxLine(std::span<const std::uint8_t> line, std::uint8_t* encoded) {
  std::uint8_t* out = encoded;
  for (std::size_t at = 0; at < line.size();) {
    const std::uint8_t value = line[at];
    const std::size_t end = std::min(line.size(), at + kLongestRun);
    std::size_t next = at + 1;
    while (next < end && line[next] == value) ++next;
    // Written always and kept at need: among random dots a jump would be guessed wrong too often.
    *out = static_cast<std::uint8_t>(kRunMark | (next - at));
    out += next - at > 1 || value >= kRunMark ? 1 : 0;
    *out++ = value;
    at = next;
  }
  return static_cast<std::size_t>(out - encoded);
}

}  // namespace plenovia
