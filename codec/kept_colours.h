// True colour kept until the palette for it is known.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <thread>

#include "codec/colour_reducer.h"
#include "platform/indexed_image.h"
#include "platform/pixel_buffer.h"

namespace plenovia {

// Makes a picture with a palette, as ReduceRows() does, of rows that come once: for files whose
// second reading would take longer than keeping all colours. Rows are counted on a thread of its
// own while the next ones are read, and mapped on all threads.
class KeptColours {
 public:
  // For a picture of a size that CheckPictureSize() allows. Null when it is so small that a thread
  // does not pay (less than 2^16 pixels), so large that its colours take more than 128 MiB, or when
  // there is no memory for them.
  static std::unique_ptr<KeptColours> Create(int width, int height, int threads);

  KeptColours(const KeptColours&) = delete;
  KeptColours& operator=(const KeptColours&) = delete;
  ~KeptColours();

  // The next row from the top: red, green and blue of each pixel.
  void Add(std::span<const std::uint8_t> row);
  // To be called once, after the last row.
  [[nodiscard]] Result<IndexedImage> Reduce();

 private:
  KeptColours(int width, int height, std::size_t workers);
  std::span<const Rgb> Row(int y) const;
  void CountRows();

  int width_;
  int height_;
  std::size_t workers_;  // threads that may work; 1: all work is done in Add() and Reduce()
  ByteBuffer colours_;
  int added_ = 0;
  std::atomic<int> countable_{0};  // rows that the counting thread may read; -1 ends it early
  ColourReducer reducer_;
  std::thread counting_;
};

}  // namespace plenovia
