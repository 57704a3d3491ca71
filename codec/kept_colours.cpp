#include "codec/kept_colours.h"

#include <algorithm>
#include <new>
#include <system_error>

#include "platform/parts.h"

namespace plenovia {

namespace {

constexpr std::size_t kLeastPixels = std::size_t{1} << 16;
constexpr std::size_t kMostBytes = std::size_t{128} << 20;
constexpr int kBandRows = 32;  // handed over at once
static_assert(sizeof(Rgb) == 3 && alignof(Rgb) == 1, "bytes of pixels are read as colours");

}  // namespace

std::unique_ptr<KeptColours> KeptColours::Create(int width, int height) {
  const std::size_t pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  if (pixels < kLeastPixels || pixels > kMostBytes / sizeof(Rgb)) return nullptr;
  try {
    return std::unique_ptr<KeptColours>(new KeptColours(width, height));
  } catch (const std::bad_alloc&) {
  } catch (const std::system_error&) {  // no thread
  }
  return nullptr;
}

KeptColours::KeptColours(int width, int height) : width_(width), height_(height) {
  colours_.resize(sizeof(Rgb) * static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  counting_ = std::thread([this] { CountRows(); });
}

KeptColours::~KeptColours() {
  if (!counting_.joinable()) return;
  countable_ = -1;
  countable_.notify_one();
  counting_.join();
}

std::span<const Rgb> KeptColours::Row(int y) const {
  const auto width = static_cast<std::size_t>(width_);
  const auto* all = reinterpret_cast<const Rgb*>(colours_.data());
  return {all + static_cast<std::size_t>(y) * width, width};
}

void KeptColours::CountRows() {
  for (int counted = 0; counted < height_;) {
    countable_.wait(counted);
    const int end = countable_;
    if (end < 0) return;
    for (; counted < end; ++counted) reducer_.Count(Row(counted));
  }
}

void KeptColours::Add(std::span<const std::uint8_t> row) {
  const std::size_t rowBytes = sizeof(Rgb) * static_cast<std::size_t>(width_);
  std::copy_n(row.begin(), rowBytes,
              colours_.begin() + static_cast<std::ptrdiff_t>(rowBytes) * added_);
  ++added_;
  if (added_ % kBandRows != 0 && added_ != height_) return;
  countable_ = added_;
  countable_.notify_one();
}

Result<IndexedImage> KeptColours::Reduce() {
  counting_.join();
  reducer_.BuildPalette();
  auto picture = IndexedImage::Create(width_, height_, reducer_.palette());
  if (!picture) return picture;
  const auto map = [&](std::size_t, int band) {
    const int end = std::min(height_, (band + 1) * kBandRows);
    for (int y = band * kBandRows; y < end; ++y) reducer_.Map(Row(y), picture->Row(y));
  };
  static_cast<void>(ShareParts((height_ + kBandRows - 1) / kBandRows,
                               std::thread::hardware_concurrency(), map, [](int) { return true; }));
  return picture;
}

}  // namespace plenovia
