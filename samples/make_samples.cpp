// Writes the sample files into the folder that is named, or only those whose names follow it.

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string_view>

#include "codec/graph_io.h"
#include "depthmap/depth_map_file.h"
#include "samples/sample_list.h"

namespace plenovia {
namespace {

Result<void> WritePicture(const PictureSample& sample, const std::filesystem::path& path) {
  const Result<IndexedImage> picture = DrawSample(sample);
  if (!picture) return tl::unexpected(picture.error());
  TGraphIO io;
  io.SetGraphicFormat(static_cast<int>(FormatOfPath(sample.file)));
  return io.Write_File(path, *picture);
}

bool Told(const Result<void>& written, const char* file) {
  if (!written)
    std::fprintf(stderr, "make_samples: %s: %s\n", file, written.error().message.c_str());
  return written.has_value();
}

int Run(std::span<char*> arguments) {
  if (arguments.empty()) {
    std::fputs("Usage: make_samples FOLDER [FILE ...]\n", stderr);
    return 2;
  }
  const std::filesystem::path folder = arguments[0];
  const auto wanted = [&](std::string_view file) {
    const auto names = arguments.subspan(1);
    return names.empty() || std::find(names.begin(), names.end(), file) != names.end();
  };
  bool good = true;
  for (const PictureSample& sample : PictureSamples()) {
    if (!wanted(sample.file)) continue;
    good = Told(WritePicture(sample, folder / sample.file), sample.file) && good;
  }
  for (const MapSample& sample : MapSamples()) {
    if (!wanted(sample.file)) continue;
    TDepthList map = sample.map();
    good = Told(WriteDepthMap(map, folder / sample.file), sample.file) && good;
  }
  return good ? 0 : 1;
}

}  // namespace
}  // namespace plenovia

int main(int count, char** arguments) {
  return plenovia::Run(std::span(arguments, static_cast<std::size_t>(count)).subspan(1));
}
