#include "app/tests/program.h"

#include <QTimer>
#include <fstream>
#include <utility>

#include "app/file_commands.h"
#include "codec/graph_io.h"
#include "codec/picture_format.h"
#include "platform/random.h"
#include "platform/ui/text.h"

namespace plenovia {

ProgramTest::ProgramTest() {
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder_.path().string()));
}

ProgramTest::~ProgramTest() {
  app_.reset();
  Settle();
}

void ProgramTest::Start() {
  app_ = std::make_unique<TPlenoviaApp>();
  app_->InitMainWindow();
  Settle();
}

bool ProgramTest::Stop() {
  const bool closed = Frame().close();
  Settle();
  return closed;
}

std::filesystem::path ProgramTest::SettingsFile() const {
  return folder_.path() / "plenovia" / "PLENOVIA.INI";
}

void ProgramTest::WriteSettings(const std::string& text) const {
  std::filesystem::create_directories(SettingsFile().parent_path());
  std::ofstream(SettingsFile()) << text;
}

void ProgramTest::RunAnd(int command, const std::function<void()>& during) {
  QTimer timer;
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, &timer, during);
  timer.start(0);
  Run(command);
  EXPECT_FALSE(timer.isActive()) << "the run handled no events";
  Settle();
}

void ProgramTest::Settle() {
  for (int i = 0; i < 5; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
}

QString ProgramTest::PictureFile(const std::string& name, int width, int height) const {
  const std::filesystem::path path = folder_.path() / name;
  TGraphIO codec;
  codec.SetGraphicFormat(static_cast<int>(FormatOfPath(name)));
  EXPECT_TRUE(codec.Write_File(path, *NoisePicture(width, height, 64)).has_value());
  return PathToQString(path);
}

TSirdsWnd* ProgramTest::Open(const QString& path) {
  OpenByName(Frame().Context(), path);
  Settle();
  return ActivePicture();
}

TSirdsWnd* ProgramTest::AddPicture(const std::shared_ptr<const IndexedImage>& picture) {
  auto* window = new TSirdsWnd(Frame().Area(), QStringLiteral("picture"), &Frame(), nullptr,
                               QSize(picture->width(), picture->height()), &Frame().Settings());
  Frame().Adopt(*window);
  window->SetImage(picture);
  window->SetSaved(true);
  Settle();
  return window;
}

std::shared_ptr<const IndexedImage> NoisePicture(int width, int height, int colours) {
  Random random(11);
  Palette palette = Palette::Grays(colours);
  for (int i = 0; i < colours; ++i) {
    const auto value = static_cast<std::uint8_t>(i);
    palette.Set(i, {value, static_cast<std::uint8_t>(255 - i), static_cast<std::uint8_t>(3 * i)});
  }
  IndexedImage picture = IndexedImage::Create(width, height, palette).value();
  for (auto& pixel : picture.pixels()) {
    pixel = static_cast<std::uint8_t>(random.Int(0, colours - 1));
  }
  return std::make_shared<const IndexedImage>(std::move(picture));
}

}  // namespace plenovia
