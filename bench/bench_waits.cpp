// What a user of the desktop program waits for, from the command to the result, beside the part of
// it that a library or plain copying takes alone. (Start-up is in bench_desktop_start.)

#include <gif_lib.h>
#include <zlib.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/file_commands.h"
#include "app/plenovia_wnd.h"
#include "bench/colour_jpeg.h"
#include "bench/crowded_map.h"
#include "bench/desktop_program.h"
#include "bench/smooth_depth.h"
#include "bench/stopwatch.h"
#include "bench/table.h"
#include "codec/graph_io.h"
#include "codec/picture_format.h"
#include "figures/sirdmath.h"
#include "platform/file_io.h"

namespace plenovia {
namespace {

namespace fs = std::filesystem;
using Picture = std::shared_ptr<const IndexedImage>;

// A folder for files, gone at the end.
class Folder {
 public:
  Folder() : path_(fs::temp_directory_path() / ("plenovia-waits-" + std::to_string(getpid()))) {
    fs::create_directory(path_);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { fs::remove_all(path_); }
  fs::path operator/(const char* name) const { return path_ / name; }

 private:
  fs::path path_;
};

void OpenJpeg(bench::DesktopProgram& program, const Folder& folder) {
  const fs::path path = folder / "photo.jpg";
  const std::vector<std::uint8_t> file = bench::ColourJpeg(5472, 3648);
  if (!WriteFile(path, std::span<const std::uint8_t>(file))) std::exit(1);
  const auto open = [&] {
    OpenByName(program.Frame().Context(), QString::fromStdString(path.string()));
    program.HandleEvents();
  };
  const auto [waited, floor] = bench::SecondsInTurn(
      open, [&] { bench::ReadJpegRows(file); }, 5);
  bench::PrintTimes("open a JPEG of 20 megapixels", waited, "libjpeg reading its rows once", floor);
  program.Frame().Context().desk.CloseDocuments();
  program.HandleEvents();
}

int AppendBytes(GifFileType* file, const GifByteType* bytes, int count) {
  auto& to = *static_cast<std::vector<GifByteType>*>(file->UserData);
  to.insert(to.end(), bytes, bytes + count);
  return count;
}

void WriteWithGiflib(const IndexedImage& picture) {
  std::vector<GifByteType> bytes;
  GifFileType* file = EGifOpen(&bytes, AppendBytes, nullptr);
  ColorMapObject* map = GifMakeMapObject(256, nullptr);
  EGifPutScreenDesc(file, picture.width(), picture.height(), 8, 0, map);
  EGifPutImageDesc(file, 0, 0, picture.width(), picture.height(), false, nullptr);
  std::vector<GifPixelType> row;
  for (int y = 0; y < picture.height(); ++y) {
    row.assign(picture.Row(y).begin(), picture.Row(y).end());
    EGifPutLine(file, row.data(), picture.width());
  }
  EGifCloseFile(file, nullptr);
  GifFreeMapObject(map);
  bench::Keep(bytes.data());
}

void CompressWithZlib(const IndexedImage& picture) {
  uLongf size = compressBound(picture.pixels().size());
  std::vector<Bytef> bytes(size);
  compress2(bytes.data(), &size, picture.pixels().data(), picture.pixels().size(), 1);
  bench::Keep(bytes.data());
}

void Save(const Folder& folder, const Picture& stereogram) {
  const auto save = [&](GraphicFormat format) {
    return [&folder, &stereogram, format] {
      const fs::path path = folder / "stereogram";
      fs::remove(path);  // an old file would also have to be on the disk before it is replaced
      TGraphIO codec;
      codec.SetGraphicFormat(static_cast<int>(format));
      if (!codec.Write_File(path, *stereogram)) std::exit(1);
    };
  };
  const auto [gif, giflib] = bench::SecondsInTurn(
      save(GraphicFormat::kGif), [&] { WriteWithGiflib(*stereogram); }, 5);
  bench::PrintTimes("save a stereogram of 12 megapixels as GIF", gif, "giflib in memory", giflib);
  const auto [png, zlib] = bench::SecondsInTurn(
      save(GraphicFormat::kPng), [&] { CompressWithZlib(*stereogram); }, 5);
  bench::PrintTimes("save a stereogram of 12 megapixels as PNG", png, "zlib at level 1 in memory",
                    zlib);
}

// All levels of a figure, pixel by pixel.
void FigureLevels(int side, std::int32_t code) {
  std::int64_t sum = 0;
  for (std::int32_t y = 0; y < side; ++y) {
    for (std::int32_t x = 0; x < side; ++x) {
      sum += _GetFigureLevel(x, y, side / 2, side / 2, 0, code);
    }
  }
  bench::Keep(&sum);
}

void MakeFigures(bench::DesktopProgram& program) {
  constexpr int kSide = 1200;
  TSirdsSettings& settings = program.Frame().Settings();
  const TSirdsSettings before = settings;
  settings.w = settings.h = kSide;
  TSirdsWnd* window = program.Show(nullptr);
  double slowest = 0;
  double levels = 0;
  int slowestFigure = 0;
  for (int figure = 0; figure < _GetFigureCount(); ++figure) {
    const auto [waited, alone] = bench::SecondsInTurn(
        [&] {
          if (!window->MakeSirdFromFigure(-(figure + 1))) std::exit(1);
          program.HandleEvents();
        },
        [&] { FigureLevels(kSide, -(figure + 1)); }, 3);
    if (waited < slowest) continue;
    slowest = waited;
    levels = alone;
    slowestFigure = figure;
  }
  char title[40];
  _GetFigureTitle(slowestFigure, title, sizeof title);
  bench::PrintTimes("the slowest figure, 1200 x 1200", slowest,
                    "its levels alone: " + std::string(title), levels);
  settings = before;
  window->SetSaved(true);
  program.Close(window);
}

void Repaint(bench::DesktopProgram& program, const Picture& picture) {
  QWidget& frame = program.Frame();
  frame.resize(1920, 1080);
  TSirdsWnd* window = program.Show(picture);
  window->showMaximized();
  program.HandleEvents();
  // Memory that nothing was written to is read faster than any picture.
  QImage shown(window->size(), QImage::Format_RGB32);
  shown.fill(Qt::white);
  QImage screen(shown.size(), QImage::Format_RGB32);
  for (const char* zoom : {"1", "2", "1/2"}) {
    if (zoom[0] == '2') window->ZoomIn();
    if (zoom[1] == '/') window->ZoomOut(), window->ZoomOut();
    const auto [waited, copy] = bench::SecondsInTurn([&] { frame.repaint(); },
                                                     [&] {
                                                       QPainter(&screen).drawImage(0, 0, shown);
                                                       bench::Keep(screen.constBits());
                                                     },
                                                     20);
    bench::PrintTimes("repaint a frame of 1920 x 1080, zoom " + std::string(zoom), waited,
                      "painting a ready picture as large", copy);
  }
  program.Close(window);
}

void SampleMap(bench::DesktopProgram& program) {
  constexpr int kSide = 4000;
  TSirdsWnd* window = program.Show(nullptr);
  const auto make = [&](const std::shared_ptr<const LevelGrid>& map) {
    if (!window->MakeSirdFromDepthMap(map)) std::exit(1);
    program.HandleEvents();
  };
  const auto big = std::make_shared<TDepthList>(bench::CrowdedMap(kSide, 1000));
  const auto flat = std::make_shared<TDepthList>(kSide, kSide);
  const auto [waited, without] = bench::SecondsInTurn([&] { make(big); }, [&] { make(flat); }, 5);
  bench::PrintTimes("a run on a map of 4000 x 4000, 1000 objects", waited,
                    "the same map without objects", without);
  window->SetSaved(true);
  program.Close(window);
}

int Run() {
  const Folder folder;
  bench::DesktopProgram program;
  OpenJpeg(program, folder);
  const auto depth = std::make_shared<const IndexedImage>(bench::SmoothDepth(4000, 3000));
  program.Frame().Settings().zmax = 255;
  TSirdsWnd* source = program.Show(depth);
  const Picture stereogram =
      MakeSirdFromBitmap(*source, program.Frame().Patterns(), program.Frame().Settings())
          .value()
          .bitmap;
  program.Close(source);
  Save(folder, stereogram);
  MakeFigures(program);
  Repaint(program, stereogram);
  SampleMap(program);
  return 0;
}

}  // namespace
}  // namespace plenovia

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  return plenovia::Run();
}
