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
constexpr std::string_view kMapMagic = "DEPTHMAP";

bool LooksLikeDepthMap(const ByteBuffer& bytes) {
  const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  return text.starts_with(kMapMagic);
}

Outcome<TDepthList> DecodeMap(const std::string& file, const ByteBuffer& bytes) {
  auto contents = DecodeDepthMap(bytes);
  if (!contents) return Failed(file, contents.error());
  if (contents->damaged) {
    return Failed(file, {ErrorCode::kCorrupt, "the depth map is damaged or cut off"});
  }
  return std::move(contents->list);
}

}  // namespace

bool NamesFigure(const std::string& text) {
  return text.starts_with(kFigurePrefix);
}

Outcome<Source> OpenSource(const std::string& text) {
  if (NamesFigure(text)) {
    return FigureList()
        .Find(std::string_view(text).substr(kFigurePrefix.size()))
        .map([](int number) { return Source(Figure{number}); });
  }
  return OpenFile(text).map([](OpenedFile&& opened) { return std::move(opened.source); });
}

Outcome<OpenedFile> OpenFile(const std::string& file) {
  const auto bytes = ReadFile(file);
  if (!bytes) return Failed(file, bytes.error());
  if (LooksLikeDepthMap(*bytes)) {
    auto map = DecodeMap(file, *bytes);
    if (!map) return tl::unexpected(map.error());
    return OpenedFile{std::move(*map), "RDS"};
  }
  auto picture = DecodePicture(*bytes);
  if (!picture) return Failed(file, picture.error());
  return OpenedFile{std::move(*picture), std::string(FormatName(DetectFormat(*bytes)))};
}

Outcome<IndexedImage> ReadPicture(const std::string& file) {
  const auto bytes = ReadFile(file);
  if (!bytes) return Failed(file, bytes.error());
  auto picture = DecodePicture(*bytes);
  if (!picture) return Failed(file, picture.error());
  return std::move(*picture);
}

}  // namespace plenovia
