#include "codec/picture_format.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "codec/bmp.h"
#include "codec/gif.h"
#include "codec/jpeg.h"
#include "codec/pcx.h"
#include "codec/png.h"
#include "platform/ascii.h"

namespace plenovia {

namespace {

template <auto kDecode>
Result<DecodedPicture> Decode(std::span<const std::uint8_t> file, int) {
  return kDecode(file);
}

template <auto kEncode>
Result<EncodedPicture> Encode(const IndexedImage& picture, int, std::string_view) {
  return kEncode(picture);
}

template <auto kEncode>
Result<EncodedPicture> EncodeWithComment(const IndexedImage& picture, int,
                                         std::string_view comment) {
  return kEncode(picture, comment);
}

constexpr PictureFormat kFormats[] = {
    {GraphicFormat::kGif,
     "GIF",
     "GIF Files",
     {".gif"},
     "image/gif",
     FileLists::kSaveOpenWizard,
     true,
     LooksLikeGif,
     Decode<DecodeGif>,
     EncodeGif,
     GifLibrary},
    {GraphicFormat::kPcx,
     "PCX",
     "PCX Files",
     {".pcx"},
     "image/vnd.zbrush.pcx",
     FileLists::kSaveOpenWizard,
     true,
     LooksLikePcx,
     Decode<DecodePcx>,
     Encode<EncodePcx>,
     nullptr},
    {GraphicFormat::kJpeg,
     "JPEG",
     "JPEG Files",
     {".jpg", ".jpeg"},
     "image/jpeg",
     FileLists::kSave,
     false,
     LooksLikeJpeg,
     DecodeJpeg,
     EncodeWithComment<EncodeJpeg>,
     JpegLibrary},
    {GraphicFormat::kDepthMap,
     "RDS",
     "Depth Map File",
     {".rds"},
     "application/x-plenovia-depth-map",
     FileLists::kSaveOpen,
     true,
     nullptr,
     nullptr,
     nullptr,
     nullptr},
    {GraphicFormat::kPng,
     "PNG",
     "PNG Files",
     {".png"},
     "image/png",
     FileLists::kSaveOpen,
     true,
     LooksLikePng,
     Decode<DecodePng>,
     EncodeWithComment<EncodePng>,
     PngLibrary},
    {GraphicFormat::kBmp,
     "BMP",
     "Bitmap Files",
     {".bmp"},
     "image/bmp",
     FileLists::kSaveOpenWizard,
     true,
     LooksLikeBmp,
     Decode<DecodeBmp>,
     Encode<EncodeBmp>,
     nullptr},
};

std::vector<PictureFormat> ByNumber() {
  std::vector<PictureFormat> formats(std::begin(kFormats), std::end(kFormats));
  std::sort(formats.begin(), formats.end(),
            [](const auto& a, const auto& b) { return a.number < b.number; });
  return formats;
}

std::string InCapitals(std::string_view extension) {
  std::string capitals(extension);
  for (char& c : capitals) c = AsciiUpper(c);
  return capitals;
}

std::string Entries(FileLists list) {
  std::string entries;
  for (const PictureFormat& format : ByNumber()) {
    if (format.lists < list) continue;
    const std::string_view extension = format.extensions[0];
    entries.append(format.fileType).append(" (*").append(InCapitals(extension)).append(")|*");
    entries.append(extension).append("|");
  }
  return entries;
}

std::string AllPatterns(bool maps) {
  std::string patterns;
  for (const PictureFormat& format : ByNumber()) {
    if (format.decode == nullptr && !maps) continue;
    for (const std::string_view extension : format.extensions) {
      if (extension.empty()) continue;
      patterns.append(patterns.empty() ? "*" : " *").append(extension);
    }
  }
  return patterns + '|';
}

std::string Listed(const std::vector<std::string_view>& words) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 < words.size() ? ", " : " or ";
    text += words[i];
  }
  return text;
}

}  // namespace

std::span<const PictureFormat> PictureFormats() {
  return kFormats;
}

const PictureFormat* FindFormat(GraphicFormat number) {
  const auto* found = std::find_if(std::begin(kFormats), std::end(kFormats),
                                   [&](const auto& format) { return format.number == number; });
  return found == std::end(kFormats) ? nullptr : found;
}

GraphicFormat DetectFormat(std::span<const std::uint8_t> bytes) {
  for (const PictureFormat& format : kFormats) {
    if (format.looksLike != nullptr && format.looksLike(bytes)) return format.number;
  }
  return GraphicFormat::kUnknown;
}

GraphicFormat FormatOfPath(std::string_view path) {
  const std::string lower = AsciiLower(path);
  for (const std::size_t which : {std::size_t{0}, std::size_t{1}}) {
    for (const PictureFormat& format : kFormats) {
      const bool written = format.encode != nullptr || format.number == GraphicFormat::kDepthMap;
      const std::string_view extension = format.extensions[which];
      if (written && !extension.empty() && lower.find(extension) != std::string::npos) {
        return format.number;
      }
    }
  }
  return GraphicFormat::kBmp;
}

GraphicFormat FormatOfExtension(std::string_view path) {
  const std::string its = AsciiLower(std::filesystem::path(path).extension().native());
  for (const PictureFormat& format : kFormats) {
    if (its.empty() || format.encode == nullptr) continue;
    const auto& known = format.extensions;
    if (std::find(known.begin(), known.end(), its) != known.end()) return format.number;
  }
  return GraphicFormat::kUnknown;
}

std::string OpenExtension(GraphicFormat number) {
  const PictureFormat* format = FindFormat(number);
  const bool listed = format != nullptr && format->lists >= FileLists::kSaveOpen;
  return SaveExtension(listed ? number : GraphicFormat::kBmp);
}

std::string SaveExtension(GraphicFormat number) {
  const PictureFormat* format = FindFormat(number);
  if (format == nullptr || format->lists < FileLists::kSave) return "BMP";
  return InCapitals(format->extensions[0].substr(1));
}

std::string_view FormatName(GraphicFormat number) {
  const PictureFormat* format = FindFormat(number);
  return format == nullptr ? "unknown" : format->name;
}

std::string_view NameWhileReading(GraphicFormat number) {
  const PictureFormat* format = FindFormat(number);
  return format == nullptr || format->lists < FileLists::kSaveOpen ? "" : format->name;
}

std::string_view NameWhileWriting(GraphicFormat number) {
  const PictureFormat* format = FindFormat(number);
  return format == nullptr || format->encode == nullptr ? "BMP" : format->name;
}

std::string OpenFileTypes() {
  return Entries(FileLists::kSaveOpen) + "All Pictures and Depth Maps|" + AllPatterns(true);
}

std::string SaveFileTypes() {
  return Entries(FileLists::kSave);
}

std::string WizardFileTypes() {
  return Entries(FileLists::kSaveOpenWizard) + "All Pictures|" + AllPatterns(false);
}

std::string ReadableNames() {
  std::vector<std::string_view> names;
  for (const PictureFormat& format : ByNumber()) {
    if (format.decode != nullptr) names.push_back(format.name);
  }
  return Listed(names);
}

std::string WritableExtensions() {
  std::vector<std::string_view> all;
  for (const PictureFormat& format : ByNumber()) {
    if (format.encode == nullptr) continue;
    for (const std::string_view extension : format.extensions) {
      if (!extension.empty()) all.push_back(extension);
    }
  }
  return Listed(all);
}

}  // namespace plenovia
