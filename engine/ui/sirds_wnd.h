// The window of a picture: an opened or pasted one, or a stereogram.
#pragma once

#include <QString>
#include <memory>

#include "engine/sirds_settings.h"
#include "images/sird_patt.h"
#include "images/ui/picture_wnd.h"
#include "platform/level_grid.h"
#include "platform/result.h"

namespace plenovia {

// What a run from a picture gives to the frame, which opens a window for it.
struct TSirdResult {
  std::shared_ptr<const IndexedImage> bitmap;  // none when the run was stopped
  QString title;
};

class TSirdsWnd : public TPictureWnd {
  Q_OBJECT

 public:
  // `settings` is the frame's one record and outlives the window; further as TPictureWnd.
  TSirdsWnd(QMdiArea* client, const QString& title, QWidget* frame,
            std::shared_ptr<const IndexedImage> picture, const QSize& size,
            const TSirdsSettings* settings);

  bool IsStereogram() const { return isStereogram_; }
  void SetIsStereogram(bool is) { isStereogram_ = is; }
  // The frame's library, which it hands out on WM_NEEDPATTERNS. Borrowed.
  void SetPatternLibrary(const TSirdPatt* patterns) { patterns_ = patterns; }
  void SetSettings(const TSirdsSettings* settings) { settings_ = settings; }

  // The generation runs. They report to the frame with WM_PROGRESS and handle events while they
  // work, so any window may be closed before they return, this one too. kCancelled when a run was
  // stopped; other errors have a sentence for the user.

  // Makes a stereogram from this window's picture and leaves the window as it is.
  [[nodiscard]] Result<TSirdResult> MakeSirdFromBitmap();
  // Makes the stereogram of a depth map in this window. When it cannot, the window closes. `map`
  // has to stay for the whole run, in which any other window may be closed.
  [[nodiscard]] Result<void> MakeSirdFromDepthMap(const LevelGrid& map);
  // Makes the stereogram of a mathematical figure in this window, over its picture when it has one
  // and the settings ask for that. `code` is below 0: -(number of the figure + 1). When the run is
  // stopped, or cannot be made and there was no picture, the window closes.
  [[nodiscard]] Result<void> MakeSirdFromFigure(std::int32_t code);

  bool HandlesCommand(int command) const override;
  void RunCommand(int command) override;
  bool NeedsSaving() const override { return !IsSaved() && Picture(); }

 private:
  std::shared_ptr<const IndexedImage> CurrentPattern();
  Result<void> Finish(Result<IndexedImage> made);
  void DropAndClose();

  const TSirdsSettings* settings_;
  const TSirdPatt* patterns_ = nullptr;
  bool isStereogram_ = false;
};

}  // namespace plenovia
