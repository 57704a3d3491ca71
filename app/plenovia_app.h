// The application object: brings the main frame up.
#pragma once

#include <QObject>
#include <memory>

#include "app/plenovia_wnd.h"

namespace plenovia {

class TPlenoviaApp : public QObject {
  Q_OBJECT

 public:
  TPlenoviaApp() = default;

  // Shows the start-up picture, builds the frame as the settings say and shows it.
  void InitMainWindow();
  TPlenoviaWnd& Frame() { return *frame_; }

 private:
  void CmRelocateBar();

  std::unique_ptr<TPlenoviaWnd> frame_;
};

}  // namespace plenovia
