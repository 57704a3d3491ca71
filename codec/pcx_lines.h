// The bytes of a PCX picture line by line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace plenovia {

// Reads plain or run-length encoded bytes from first to last. A run may go on in the next line.
class PcxLineReader {
 public:
  PcxLineReader(std::span<const std::uint8_t> encoded, bool runLength)
      : encoded_(encoded), runLength_(runLength) {}

  // Fills `line` with the next bytes, or returns false when there are not as many.
  [[nodiscard]] bool Read(std::span<std::uint8_t> line);
  // How many encoded bytes the lines took up to now.
  std::size_t Position() const { return at_; }

 private:
  std::span<const std::uint8_t> encoded_;
  bool runLength_;
  std::size_t at_ = 0;
  std::size_t left_ = 0;  // of the run that the last line began
  std::uint8_t value_ = 0;
};

// Encodes one line by itself and returns how many bytes of `encoded` it took, at most twice as many
// as the line has; `encoded` has room for so many.
std::size_t EncodePcxLine(std::span<const std::uint8_t> line, std::uint8_t* encoded);

}  // namespace plenovia
