// The busy cursor over a window for as long as it lives.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/ui/resource_pictures.h"

namespace plenovia {

class BusyCursor {
 public:
  explicit BusyCursor(QWidget& window) : window_(&window) { ShowBusyCursor(window, true); }
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;
  ~BusyCursor() {
    if (window_) ShowBusyCursor(*window_, false);
  }

 private:
  QPointer<QWidget> window_;
};

}  // namespace plenovia
