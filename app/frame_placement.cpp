#include "app/frame_placement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cstdint>
#include <utility>

namespace plenovia {

namespace {

const std::string kSection = "WinSize";
constexpr int kLargestSide = 32767;
constexpr int kLooks = 40;
constexpr int kMillisecondsBetweenLooks = 25;

int Side(std::int32_t from, std::int32_t to) {
  return static_cast<int>(std::clamp<std::int64_t>(std::int64_t{to} - from, 1, kLargestSide));
}

QRect FirstRect() {
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  QRect rect(QPoint(), room.size() * 4 / 5);
  rect.moveCenter(room.center());
  return rect;
}

// Looks now and then whether the margins are known, for a second.
class MarginsWatch : public QObject {
 public:
  MarginsWatch(QMainWindow& frame, const QRect& rect, std::function<void()> placed)
      : QObject(&frame), frame_(frame), rect_(rect), placed_(std::move(placed)) {
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
      placed_();
    }
    deleteLater();
  }

 private:
  QMainWindow& frame_;
  QRect rect_;
  std::function<void()> placed_;
  int looks_ = 0;
};

}  // namespace

QRect LoadFrameRect(const ProfileFile& settings) {
  const QRect first = FirstRect();
  const std::int32_t left = settings.GetInt(kSection, "X1", first.left());
  const std::int32_t top = settings.GetInt(kSection, "Y1", first.top());
  const std::int32_t right = settings.GetInt(kSection, "X2", first.right() + 1);
  const std::int32_t bottom = settings.GetInt(kSection, "Y2", first.bottom() + 1);
  return {std::clamp(left, -kLargestSide, kLargestSide),
          std::clamp(top, -kLargestSide, kLargestSide), Side(left, right), Side(top, bottom)};
}

bool LoadStartsMaximised(const ProfileFile& settings) {
  return settings.GetInt(kSection, "MX", 0) != 0;
}

void PlaceFrame(QMainWindow& frame, QRect rect, std::function<void()> placed) {
  const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
  rect.setSize(rect.size().boundedTo(desktop.size()));
  const QPoint last = desktop.bottomRight() - QPoint(rect.width() - 1, rect.height() - 1);
  rect.moveTo(std::clamp(rect.left(), desktop.left(), last.x()),
              std::clamp(rect.top(), desktop.top(), last.y()));
  frame.move(rect.topLeft());
  frame.resize(rect.size());
  new MarginsWatch(frame, rect, std::move(placed));
}

void SaveFrameRect(const QMainWindow& frame, ProfileFile& settings) {
  const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
  QRect outer = frame.frameGeometry();
  if (frame.isMaximized() && frame.normalGeometry().isValid()) {
    outer = frame.normalGeometry().marginsAdded(frame.windowHandle()->frameMargins());
  }
  settings.SetInt(kSection, "X1", std::max(outer.left(), desktop.left()));
  settings.SetInt(kSection, "Y1", std::max(outer.top(), desktop.top()));
  settings.SetInt(kSection, "X2", std::min(outer.right(), desktop.right()) + 1);
  settings.SetInt(kSection, "Y2", std::min(outer.bottom(), desktop.bottom()) + 1);
  settings.SetInt(kSection, "MX", frame.isMaximized() ? 1 : 0);
}

}  // namespace plenovia
