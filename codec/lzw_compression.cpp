#include "codec/lzw_compression.h"

#include <algorithm>
#include <utility>

#include "codec/gif_lzw.h"
#include "platform/parallel_for.h"

namespace plenovia {

namespace {

// Bits in the order of GIF: from the lowest bit of each byte on.
class BitWriter {
 public:
  void Write(std::uint32_t bits, int count) {
    pending_ |= std::uint64_t{bits} << pendingBits_;
    pendingBits_ += count;
    if (pendingBits_ < 32) return;
    const std::size_t at = bytes_.size();
    bytes_.resize(at + 4);
    for (std::size_t i = 0; i < 4; ++i) {
      bytes_[at + i] = static_cast<std::uint8_t>(pending_ >> (8 * i));
    }
    pending_ >>= 32;
    pendingBits_ -= 32;
  }
  void Append(const BitWriter& other) {
    for (std::size_t at = 0; at < other.bytes_.size(); at += 4) {
      std::uint32_t word = 0;
      for (std::size_t i = 0; i < 4; ++i) word |= std::uint32_t{other.bytes_[at + i]} << (8 * i);
      Write(word, 32);
    }
    Write(static_cast<std::uint32_t>(other.pending_), other.pendingBits_);
  }
  ByteBuffer Finish() {
    for (; pendingBits_ > 0; pendingBits_ -= 8, pending_ >>= 8) {
      bytes_.push_back(static_cast<std::uint8_t>(pending_));
    }
    return std::move(bytes_);
  }

 private:
  ByteBuffer bytes_;  // whole words of four until Finish()
  std::uint64_t pending_ = 0;
  int pendingBits_ = 0;  // below 32 between calls
};

// The strings that have codes: each is the string of another code and one pixel more. 0 stands for
// none.
class StringTable {
 public:
  StringTable() : codes_(std::size_t{256} * kLzwCodes) { used_.reserve(kLzwCodes); }

  // The code of the string of `code` and `pixel`; when it has none, Add() gives it one.
  std::uint32_t Find(std::uint32_t code, std::uint8_t pixel) {
    place_ = std::uint32_t{pixel} * kLzwCodes + code;
    return codes_[place_];
  }
  void Add(std::uint32_t newCode) {
    codes_[place_] = static_cast<std::uint16_t>(newCode);
    used_.push_back(place_);
  }
  void Clear() {
    for (const std::uint32_t place : used_) codes_[place] = 0;
    used_.clear();
  }

 private:
  std::vector<std::uint16_t> codes_;  // by pixel, then by code: what pictures use lies together
  std::vector<std::uint32_t> used_;   // places that are not 0
  std::uint32_t place_ = 0;
};

// What follows a clear code, up to the next one.
struct Part {
  BitWriter bits;
  int widthAfter = 0;  // of the code that follows
};

void CompressPart(int codeBits, std::span<const std::uint8_t> pixels, StringTable& strings,
                  Part& part) {
  const std::uint32_t clear = 1u << codeBits;
  int width = codeBits + 1;
  std::uint32_t next = clear + 2;
  const auto write = [&](std::uint32_t code) {
    part.bits.Write(code, width);
    if (next >> width != 0) ++width;
  };
  strings.Clear();
  std::uint32_t code = pixels[0];
  for (const std::uint8_t pixel : pixels.subspan(1)) {
    if (const std::uint32_t longer = strings.Find(code, pixel); longer != 0) {
      code = longer;
      continue;
    }
    write(code);
    code = pixel;
    if (next < kLzwCodes - 1) {
      strings.Add(next++);
    } else {
      write(clear);
      strings.Clear();
      width = codeBits + 1;
      next = clear + 2;
    }
  }
  write(code);
  part.widthAfter = width;
}

}  // namespace

ByteBuffer CompressLzw(int codeBits, std::span<const std::uint8_t> pixels, int threads) {
  const std::size_t parts = (pixels.size() + kLzwPartPixels - 1) / kLzwPartPixels;
  std::vector<Part> done(parts);
  const std::size_t workers = std::min(WorkerCount(threads), parts);
  std::vector<StringTable> tables(workers);
  const auto compress = [&](std::size_t worker, int part) {
    const std::size_t begin = static_cast<std::size_t>(part) * kLzwPartPixels;
    const std::size_t count = std::min(kLzwPartPixels, pixels.size() - begin);
    CompressPart(codeBits, pixels.subspan(begin, count), tables[worker],
                 done[static_cast<std::size_t>(part)]);
  };
  static_cast<void>(
      ParallelFor(static_cast<int>(parts), workers, compress, [](int) { return true; }));
  BitWriter all;
  int width = codeBits + 1;
  for (const Part& part : done) {
    all.Write(1u << codeBits, width);
    all.Append(part.bits);
    width = part.widthAfter;
  }
  all.Write((1u << codeBits) + 1, width);
  return all.Finish();
}

}  // namespace plenovia
