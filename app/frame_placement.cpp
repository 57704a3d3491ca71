#include "app/frame_placement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cstdint>

namespace plenovia {

namespace {

const std::string kSection = "WinSize";
constexpr int kLargestSide = 32767;
constexpr int kLooks = 40;
constexpr int kMillisecondsBetweenLooks = 25;

int Side(std::int32_t from, std::int32_t to) {
  return static_cast<int>(std::clamp<std::int64_t>(std::int64_t{to} - from, 1, kLargestSide));
}

// Looks now and then whether the margins are known, for a second.
class MarginsWatch : public QObject {
 public:
  MarginsWatch(QMainWindow& frame, const QRect& rect)
      : QObject(&frame), frame_(frame), rect_(rect) {
    startTimer(kMillisecondsBetweenLooks);
  }

 protected:
  void timerEvent(QTimerEvent*) override {
    const QWindow* window = frame_.windowHandle();
    const QMargins margins = window != nullptr ? window->frameMargins() : QMargins();
    const bool known = frame_.isVisible() && !margins.isNull();
    if (!known && ++looks_ < kLooks) return;
    // A user who was faster keeps the size that he gave it.
    if (known && !frame_.isMaximized() && frame_.size() == rect_.size()) {
      frame_.resize(rect_.size().shrunkBy(margins));
    }
    deleteLater();
  }

 private:
  QMainWindow& frame_;
  QRect rect_;
  int looks_ = 0;
};

}  // namespace

QRect LoadFrameRect(const ProfileFile& settings) {
  const std::int32_t left = settings.GetInt(kSection, "X1", 0);
  const std::int32_t top = settings.GetInt(kSection, "Y1", 0);
  const std::int32_t right = settings.GetInt(kSection, "X2", 640);
  const std::int32_t bottom = settings.GetInt(kSection, "Y2", 480);
  return {std::clamp(left, -kLargestSide, kLargestSide),
          std::clamp(top, -kLargestSide, kLargestSide), Side(left, right), Side(top, bottom)};
}

bool LoadStartsMaximised(const ProfileFile& settings) {
  return settings.GetInt(kSection, "MX", 0) != 0;
}

void PlaceFrame(QMainWindow& frame, QRect rect) {
  const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
  rect.setSize(rect.size().boundedTo(desktop.size()));
  if (!desktop.intersects(rect)) rect.moveTopLeft(desktop.topLeft());
  frame.move(rect.topLeft());
  frame.resize(rect.size());
  new MarginsWatch(frame, rect);
}

void SaveFrameRect(const QMainWindow& frame, ProfileFile& settings) {
  const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
  const QRect outer = frame.frameGeometry();
  settings.SetInt(kSection, "X1", std::max(outer.left(), desktop.left()));
  settings.SetInt(kSection, "Y1", std::max(outer.top(), desktop.top()));
  settings.SetInt(kSection, "X2", std::min(outer.right(), desktop.right()) + 1);
  settings.SetInt(kSection, "Y2", std::min(outer.bottom(), desktop.bottom()) + 1);
  settings.SetInt(kSection, "MX", 0);
}

}  // namespace plenovia
