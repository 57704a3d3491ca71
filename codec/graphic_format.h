// The file formats by number, and the rules that tie them to file names.
#pragma once

#include <string_view>

namespace plenovia {

enum class GraphicFormat {
  kUnknown = 0,
  kBmp = 1,
  kPcx = 2,
  kGif = 3,
  kJpeg = 4,
  kDepthMap = 5,  // not a picture: the codecs refuse it
  kPng = 6,
};

// The format that a file is written in by its name: the first of ".gif", ".pcx", ".jpg", ".rds",
// ".png" and ".jpeg" that occurs anywhere in the path, in upper or lower case; else BMP.
GraphicFormat FormatOfPath(std::string_view path);

// What an open or save dialog appends to a name without extension: "BMP", "PCX", ...; opening
// proposes "BMP" for JPEG.
std::string_view OpenExtension(GraphicFormat format);
std::string_view SaveExtension(GraphicFormat format);

// "BMP", "JPEG", ...; "RDS" for depth maps; "unknown" for the rest.
std::string_view FormatName(GraphicFormat format);

}  // namespace plenovia
