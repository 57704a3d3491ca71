#include "cli/source.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "cli/figure_list.h"
#include "codec/graph_io.h"
#include "depthmap/depth_map_file.h"
#include "platform/file_io.h"
#include "sources/fine_picture.h"
#include "sources/formula.h"
#include "sources/heights.h"
#include "sources/model.h"
#include "sources/resample.h"
#include "sources/text.h"

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

Outcome<Source> OpenText(const std::string& lines, const SourceOptions& options, int, RunMonitor&) {
  auto image = DrawText(options.TextOf(lines), options.width(), options.height());
  if (!image) return Failed("text", image.error());
  return Source(std::move(*image));
}

SourceForm FormOf(const Source& file) {
  if (std::holds_alternative<Mesh>(file)) return SourceForm::kModel;
  if (std::holds_alternative<TDepthList>(file)) return SourceForm::kMap;
  return std::holds_alternative<FineImage>(file) ? SourceForm::kFinePicture : SourceForm::kPicture;
}

std::string NameOf(ModelFormat format) {
  return format == ModelFormat::kStl ? "STL" : format == ModelFormat::kObj ? "OBJ" : "PLY";
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
    {"text:", SourceForm::kText, RecipeKind::kText, OpenText},
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
         "), a depth\npicture of fine levels (PNG or PGM of 16 bits, PFM),\na model (STL, OBJ, "
         "PLY), "
         "a depth map (.rds),\nfigure:NUMBER, figure:TITLE, formula:Z, such as\n"
         "\"formula:cos(x)*cos(y)\", or text:LINES";
}

Outcome<Source> OpenSource(const std::string& text, const SourceOptions& options, int threads,
                           RunMonitor& monitor) {
  if (const SourceOpener* opener = OpenerOf(text)) {
    if (auto checked = options.Check(opener->form); !checked) {
      return tl::unexpected(checked.error());
    }
    return opener->open(text.substr(opener->prefix.size()), options, threads, monitor);
  }
  auto opened = OpenFile(text, threads, options.nearness());
  if (!opened) return tl::unexpected(opened.error());
  if (auto checked = options.Check(FormOf(opened->source)); !checked) {
    return tl::unexpected(checked.error());
  }
  if (const auto* mesh = std::get_if<Mesh>(&opened->source)) {
    auto drawn = DrawModel(*mesh, options.view(), options.width(), options.height(), threads);
    if (!drawn) return Failed(text, drawn.error());
    return Source(std::move(*drawn));
  }
  if (auto* fine = std::get_if<FineImage>(&opened->source)) {
    StretchLevels(*fine);
    const auto [width, height] = options.SizeOf(fine->width(), fine->height());
    if (width == fine->width() && height == fine->height()) return std::move(opened->source);
    auto resampled = ResampleLevels(*fine, width, height);
    if (!resampled) return Failed(text, resampled.error());
    return Source(std::move(*resampled));
  }
  return std::move(opened->source);
}

Outcome<OpenedFile> OpenFile(const std::string& file, int threads, Nearness nearness) {
  const auto bytes = ReadFile(file);
  if (!bytes) return Failed(file, bytes.error());
  if (LooksLikeDepthMap(*bytes)) {
    auto map = DecodeMap(file, *bytes);
    if (!map) return tl::unexpected(map.error());
    return OpenedFile{std::move(*map), "RDS", {}};
  }
  if (const auto format = FinePictureFormat(*bytes); !format.empty()) {
    auto decoded = DecodeFinePicture(*bytes, nearness);
    if (!decoded) return Failed(file, decoded.error());
    if (!decoded->damage.empty()) Warn(file, decoded->damage);
    return OpenedFile{std::move(decoded->image), std::string(format), {}};
  }
  if (const ModelFormat format = ModelFormatOf(*bytes, file); format != ModelFormat::kNone) {
    auto mesh = DecodeModel(format, *bytes);
    if (!mesh) return Failed(file, mesh.error());
    return OpenedFile{std::move(*mesh), NameOf(format), {}};
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
