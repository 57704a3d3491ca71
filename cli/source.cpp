#include "cli/source.h"

#include <string_view>
#include <utility>

#include "cli/figure_list.h"
#include "codec/graph_io.h"
#include "depthmap/depth_map_file.h"
#include "platform/file_io.h"

namespace plenovia {

namespace {

constexpr std::string_view kFigurePrefix = "figure:";

Outcome<TDepthList> DecodeMap(const std::string& file, const ByteBuffer& bytes) {
  auto contents = DecodeDepthMap(bytes);
  if (!contents) return Failed(file, contents.error());
  if (contents->damaged) Warn(file, "The depth map is damaged or cut off.");
  return std::move(contents->list);
}

Outcome<IndexedImage> Decode(const std::string& file, const ByteBuffer& bytes, int threads) {
  auto picture = DecodePicture(bytes, threads);
  if (!picture) return Failed(file, picture.error());
  if (!picture->damage.empty()) Warn(file, picture->damage);
  return IndexedImage(std::move(*picture));
}

}  // namespace

std::string SourceHelp() {
  return "A picture (" + ReadableNames() + "), a depth map\n(.rds), figure:NUMBER or figure:TITLE";
}

bool NamesFigure(const std::string& text) {
  return text.starts_with(kFigurePrefix);
}

Outcome<Source> OpenSource(const std::string& text, int threads) {
  if (NamesFigure(text)) {
    return FigureList()
        .Find(std::string_view(text).substr(kFigurePrefix.size()))
        .map([](int number) { return Source(Figure{number}); });
  }
  return OpenFile(text, threads).map([](OpenedFile&& opened) { return std::move(opened.source); });
}

Outcome<OpenedFile> OpenFile(const std::string& file, int threads) {
  const auto bytes = ReadFile(file);
  if (!bytes) return Failed(file, bytes.error());
  if (LooksLikeDepthMap(*bytes)) {
    auto map = DecodeMap(file, *bytes);
    if (!map) return tl::unexpected(map.error());
    return OpenedFile{std::move(*map), "RDS"};
  }
  auto picture = Decode(file, *bytes, threads);
  if (!picture) return tl::unexpected(picture.error());
  return OpenedFile{std::move(*picture), std::string(FormatName(DetectFormat(*bytes)))};
}

Outcome<IndexedImage> ReadPicture(const std::string& file, int threads) {
  const auto bytes = ReadFile(file);
  if (!bytes) return Failed(file, bytes.error());
  return Decode(file, *bytes, threads);
}

}  // namespace plenovia
