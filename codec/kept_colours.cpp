#include "codec/kept_colours.h"

#include <algorithm>
#include <new>
#include <system_error>

#include "platform/parallel_for.h"

namespace plenovia {

namespace {

constexpr std::size_t kLeastPixels = std::size_t{1} << 16;
constexpr std::size_t kMostBytes = std::size_t{128} << 20;
constexpr int kBandRows = 32;  // handed over at once
static_assert(sizeof(Rgb) == 3 && alignof(Rgb) == 1, "bytes of pixels are read as colours");

}  // namespace

std::unique_ptr<KeptColours> KeptColours::Create(int width, int height, int threads) {
  const std::size_t pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  if (pixels < kLeastPixels || pixels > kMostBytes / sizeof(Rgb)) return nullptr;
  try {
    return std::unique_ptr<KeptColours>(new KeptColours(width, height, WorkerCount(threads)));
  } catch (const std::bad_alloc&) {
  } catch (const std::system_error&) {  // no thread
  }
  return nullptr;
}

KeptColours::KeptColours(int width, int height, std::size_t workers)
    : width_(width), height_(height), workers_(workers) {
  colours_.resize(sizeof(Rgb) * static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  if (workers_ > 1) counting_ = std::thread([this] { CountRows(); });
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
  if (workers_ == 1) reducer_.Count(Row(added_));
  ++added_;
  if (added_ % kBandRows != 0 && added_ != height_) return;
  countable_ = added_;
  countable_.notify_one();
}

Result<IndexedImage> KeptColours::Reduce() {
  if (counting_.joinable()) counting_.join();
  reducer_.BuildPalette();
  auto picture = IndexedImage::Create(width_, height_, reducer_.palette());
  if (!picture) return picture;
  const auto map = [&](std::size_t, int band) {
    const int end = std::min(height_, (band + 1) * kBandRows);
    for (int y = band * kBandRows; y < end; ++y) reducer_.Map(Row(y), picture->Row(y));
  };
  static_cast<void>(
      ParallelFor((height_ + kBandRows - 1) / kBandRows, workers_, map, [](int) { return true; }));
  return picture;
}

}  // namespace plenovia
