#include "sources/fine_picture.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>
#include <string>
#include <utility>

#include "codec/decoded_picture.h"
#include "sources/heights.h"
#include "sources/words.h"

namespace plenovia {

namespace {

constexpr std::uint32_t kHighest = FineImage::kHighest;

tl::unexpected<Error> Broken(std::string_view format) {
  return Failure(ErrorCode::kCorrupt,
                 "The header of the " + std::string(format) + " file makes no sense.");
}

// All pixels are 0.
Result<DecodedFineImage> Blank(int width, int height) {
  auto image = FineImage::Create(width, height);
  if (!image) return tl::unexpected(image.error());
  std::ranges::fill(image->pixels(), std::uint16_t{0});
  return DecodedFineImage{std::move(*image), {}};
}

Result<DecodedFineImage> DecodePgm(std::span<const std::uint8_t> bytes) {
  Words words(bytes, true);
  const bool text = words.Next() == "P2";
  const auto width = words.NextNumber<int>();
  const auto height = words.NextNumber<int>();
  const auto white = words.NextNumber<std::uint32_t>();
  if (!width || !height || !white || *white < 1 || *white > kHighest) return Broken("PGM");
  if (auto fits = CheckPictureSize(*width, *height); !fits) return tl::unexpected(fits.error());
  const auto rest = words.Rest();
  const std::size_t pixels = static_cast<std::size_t>(*width) * static_cast<std::size_t>(*height);
  const std::size_t each = *white > 255 ? 2 : 1;
  if (!WorthReading(pixels * each, rest.size())) return Truncated();
  auto decoded = Blank(*width, *height);
  if (!decoded) return decoded;
  const auto level = [&](std::uint32_t gray) {
    return static_cast<std::uint16_t>((std::min(gray, *white) * kHighest + *white / 2) / *white);
  };
  const auto to = decoded->image.pixels();
  std::size_t there = 0;
  if (text) {
    for (; there < pixels; ++there) {
      const auto gray = words.NextNumber<std::uint32_t>();
      if (!gray) break;
      to[there] = level(*gray);
    }
  } else {
    there = std::min(pixels, rest.size() / each);
    for (std::size_t i = 0; i < there; ++i) {
      to[i] = level(each == 1 ? rest[i] : std::uint32_t{rest[2 * i]} << 8 | rest[2 * i + 1]);
    }
  }
  if (there < pixels) decoded->damage = kTruncated;
  return decoded;
}

// Rows bottom up.
Result<DecodedFineImage> DecodePfm(std::span<const std::uint8_t> bytes, Nearness nearness) {
  Words words(bytes, true);
  words.Next();
  const auto width = words.NextNumber<int>();
  const auto height = words.NextNumber<int>();
  const auto order = words.NextNumber<double>();  // below 0: the low byte comes first
  if (!width || !height || !order || *order == 0 || !std::isfinite(*order)) return Broken("PFM");
  if (auto fits = CheckPictureSize(*width, *height); !fits) return tl::unexpected(fits.error());
  const auto rest = words.Rest();
  const std::size_t pixels = static_cast<std::size_t>(*width) * static_cast<std::size_t>(*height);
  if (!WorthReading(pixels * sizeof(float), rest.size())) return Truncated();
  auto decoded = Blank(*width, *height);
  if (!decoded) return decoded;
  const bool turned = (*order < 0) != (std::endian::native == std::endian::little);
  const auto heightAt = [&](std::size_t i) {
    std::uint32_t word = 0;
    std::memcpy(&word, rest.data() + i * sizeof word, sizeof word);
    const auto z = std::bit_cast<float>(turned ? __builtin_bswap32(word) : word);
    if (!std::isfinite(z)) return std::numeric_limits<float>::quiet_NaN();
    return nearness == Nearness::kDark ? -z : z;
  };
  const std::size_t there = std::min(pixels, rest.size() / sizeof(float));
  HeightScale scale;
  for (std::size_t i = 0; i < there; ++i) scale.Include(heightAt(i));
  if (scale.empty()) return Failure(ErrorCode::kInvalid, "There is no depth anywhere.");
  scale.Fix();
  for (std::size_t i = 0; i < there;) {
    const int y = *height - 1 - static_cast<int>(i / static_cast<std::size_t>(*width));
    for (std::uint16_t& level : decoded->image.Row(y)) {
      if (i < there) level = scale.LevelOf(heightAt(i));
      ++i;
    }
  }
  if (there < pixels) decoded->damage = kTruncated;
  return decoded;
}

void TurnRound(FineImage& image) {
  for (std::uint16_t& level : image.pixels()) {
    level = static_cast<std::uint16_t>(FineImage::kHighest - level);
  }
}

}  // namespace

std::string_view FinePictureFormat(std::span<const std::uint8_t> bytes) {
  if (LooksLikeFinePng(bytes)) return "PNG";
  if (bytes.size() < 3 || bytes[0] != 'P' || !(IsBlank(bytes[2]) || bytes[2] == '#')) return {};
  if (bytes[1] == '2' || bytes[1] == '5') return "PGM";
  return bytes[1] == 'f' ? "PFM" : std::string_view();
}

Result<DecodedFineImage> DecodeFinePicture(std::span<const std::uint8_t> bytes, Nearness nearness) {
  const std::string_view format = FinePictureFormat(bytes);
  if (format.empty()) {
    return Failure(ErrorCode::kUnsupported, "This is no depth picture of fine levels.");
  }
  if (format == "PFM") return DecodePfm(bytes, nearness);
  auto decoded = format == "PNG" ? DecodeFinePng(bytes) : DecodePgm(bytes);
  if (decoded && nearness == Nearness::kDark) TurnRound(decoded->image);
  return decoded;
}

}  // namespace plenovia
