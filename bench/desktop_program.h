// The desktop program inside a benchmark.
#pragma once

#include <memory>

#include "app/plenovia_app.h"
#include "engine/ui/sirds_wnd.h"

namespace plenovia::bench {

// Needs a QApplication.
class DesktopProgram {
 public:
  DesktopProgram() { app_.InitMainWindow(); }

  TPlenoviaWnd& Frame() { return app_.Frame(); }

  // Shows a picture in a window of its own, or with null an empty one.
  TSirdsWnd* Show(const std::shared_ptr<const IndexedImage>& picture) {
    const QSize size = picture ? QSize(picture->width(), picture->height()) : QSize(100, 100);
    auto* window = new TSirdsWnd(Frame().Area(), QStringLiteral("bench"), &Frame(), nullptr, size,
                                 &Frame().Settings());
    Frame().Adopt(*window);
    if (picture) window->SetImage(picture);
    window->SetSaved(true);
    HandleEvents();
    return window;
  }
  static void Close(QWidget* window) {
    window->close();
    HandleEvents();
  }
  static void HandleEvents() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

 private:
  TPlenoviaApp app_;
};

}  // namespace plenovia::bench
