#include "cli/source.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "cli/figure_list.h"
#include "codec/graph_io.h"
#include "depthmap/depth_map_file.h"
#include "platform/file_io.h"
#include "sources/formula.h"

namespace plenovia {

namespace {

Outcome<TDepthList> DecodeMap(const std::string& file, const ByteBuffer& bytes) {
  auto contents = DecodeDepthMap(bytes);
  if (!contents) return Failed(file, contents.error());
  if (contents->damaged) Warn(file, "The depth map is damaged or cut off.");
  return std::move(contents->list);
}

Outcome<DecodedPicture> Decode(const std::string& file, const ByteBuffer& bytes, int threads) {
  auto picture = DecodePicture(bytes, threads);
  if (!picture) return Failed(file, picture.error());
  if (!picture->damage.empty()) Warn(file, picture->damage);
  return std::move(*picture);
}

Outcome<Source> OpenFigure(const std::string& name, const SourceOptions&, int, RunMonitor&) {
  return FigureList().Find(name).map([](int number) { return Source(Figure{number}); });
}

Outcome<Source> OpenFormula(const std::string& text, const SourceOptions& options, int threads,
                            RunMonitor& monitor) {
  const Formula formula = options.FormulaOf(text);
  if (auto checked = CheckFormula(formula); !checked) {
    return WrongUsage("formula: " + checked.error().message);
  }
  auto image = DrawFormula(formula, options.width(), options.height(), threads, monitor);
  if (!image) return Failed("formula", image.error());
  return Source(std::move(*image));
}

// The forms of source that are no files.
struct SourceOpener {
  std::string_view prefix;
  SourceForm form;
  RecipeKind kind;
  Outcome<Source> (*open)(const std::string& text, const SourceOptions& options, int threads,
                          RunMonitor& monitor);
};
constexpr SourceOpener kOpeners[] = {
    {"figure:", SourceForm::kFigure, RecipeKind::kFigure, OpenFigure},
    {"formula:", SourceForm::kFormula, RecipeKind::kFormula, OpenFormula},
};

// The one whose prefix the text has, or null.
const SourceOpener* OpenerOf(const std::string& text) {
  const auto opener = std::ranges::find_if(
      kOpeners, [&](const SourceOpener& each) { return text.starts_with(each.prefix); });
  return opener == std::end(kOpeners) ? nullptr : opener;
}

}  // namespace

std::string SourceHelp() {
  return "A picture (" + ReadableNames() +
         "), a depth map\n(.rds), figure:NUMBER, figure:TITLE or formula:Z, such\n"
         "as \"formula:cos(x)*cos(y)\"";
}

Outcome<Source> OpenSource(const std::string& text, const SourceOptions& options, int threads,
                           RunMonitor& monitor) {
  if (const SourceOpener* opener = OpenerOf(text)) {
    if (auto checked = options.Check(opener->form); !checked) {
      return tl::unexpected(checked.error());
    }
    return opener->open(text.substr(opener->prefix.size()), options, threads, monitor);
  }
  auto opened = OpenFile(text, threads);
  if (!opened) return tl::unexpected(opened.error());
  const bool isMap = std::holds_alternative<TDepthList>(opened->source);
  if (auto checked = options.Check(isMap ? SourceForm::kMap : SourceForm::kPicture); !checked) {
    return tl::unexpected(checked.error());
  }
  return std::move(opened->source);
}

Outcome<OpenedFile> OpenFile(const std::string& file, int threads) {
  const auto bytes = ReadFile(file);
  if (!bytes) return Failed(file, bytes.error());
  if (LooksLikeDepthMap(*bytes)) {
    auto map = DecodeMap(file, *bytes);
    if (!map) return tl::unexpected(map.error());
    return OpenedFile{std::move(*map), "RDS", {}};
  }
  auto picture = Decode(file, *bytes, threads);
  if (!picture) return tl::unexpected(picture.error());
  std::string comment = std::move(picture->comment);
  return OpenedFile{IndexedImage(std::move(*picture)),
                    std::string(FormatName(DetectFormat(*bytes))), std::move(comment)};
}

RecipeSource RecipeSourceOf(const std::string& text, const Source& source) {
  if (const auto* figure = std::get_if<Figure>(&source)) {
    return {RecipeKind::kFigure, FigureList().titles()[static_cast<std::size_t>(figure->number)]};
  }
  if (const SourceOpener* opener = OpenerOf(text)) {
    return {opener->kind, text.substr(opener->prefix.size())};
  }
  const bool isMap = std::holds_alternative<TDepthList>(source);
  return {isMap ? RecipeKind::kDepthMap : RecipeKind::kPicture, text};
}

Outcome<IndexedImage> ReadPicture(const std::string& file, int threads) {
  const auto bytes = ReadFile(file);
  if (!bytes) return Failed(file, bytes.error());
  return Decode(file, *bytes, threads).map([](DecodedPicture&& picture) -> IndexedImage {
    return std::move(picture);
  });
}

}  // namespace plenovia
