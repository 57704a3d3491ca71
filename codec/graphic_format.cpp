#include "codec/graphic_format.h"

#include <algorithm>
#include <string>
#include <utility>

namespace plenovia {

GraphicFormat FormatOfPath(std::string_view path) {
  constexpr std::pair<std::string_view, GraphicFormat> kRules[] = {
      {".gif", GraphicFormat::kGif},  {".pcx", GraphicFormat::kPcx},
      {".jpg", GraphicFormat::kJpeg}, {".rds", GraphicFormat::kDepthMap},
      {".png", GraphicFormat::kPng},  {".jpeg", GraphicFormat::kJpeg}};
  std::string lower(path);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  for (const auto& [extension, format] : kRules) {
    if (lower.find(extension) != std::string::npos) return format;
  }
  return GraphicFormat::kBmp;
}

std::string_view OpenExtension(GraphicFormat format) {
  return format == GraphicFormat::kJpeg ? "BMP" : SaveExtension(format);
}

std::string_view SaveExtension(GraphicFormat format) {
  switch (format) {
    case GraphicFormat::kPcx:
      return "PCX";
    case GraphicFormat::kGif:
      return "GIF";
    case GraphicFormat::kJpeg:
      return "JPG";
    case GraphicFormat::kDepthMap:
      return "RDS";
    case GraphicFormat::kPng:
      return "PNG";
    default:
      return "BMP";
  }
}

std::string_view FormatName(GraphicFormat format) {
  switch (format) {
    case GraphicFormat::kUnknown:
      return "unknown";
    case GraphicFormat::kJpeg:
      return "JPEG";
    default:
      return SaveExtension(format);
  }
}

}  // namespace plenovia
