// The window of a picture: an opened or pasted one, or a stereogram.
#pragma once

#include <QPointer>
#include <QString>
#include <memory>
#include <optional>
#include <string>

#include "engine/sirds_settings.h"
#include "engine/ui/sird_run.h"
#include "images/sird_patt.h"
#include "images/ui/picture_wnd.h"
#include "platform/level_grid.h"
#include "platform/result.h"

namespace plenovia {

// What a run from a picture gives to the frame, which opens a window for it.
struct TSirdResult {
  std::shared_ptr<const IndexedImage> bitmap;  // none when the run was stopped
  QString title;
  SirdRun run;  // that made it
};

// Where the source of a stereogram is.
struct SourcePlace {
  QPointer<Document> window;  // null when it was closed, or never was one
  QString file;               // empty when there is none
};

class TSirdsWnd : public TPictureWnd {
  Q_OBJECT

 public:
  // `settings` is the frame's one record and outlives the window; further as TPictureWnd.
  TSirdsWnd(QMdiArea* client, const QString& title, QWidget* frame,
            std::shared_ptr<const IndexedImage> picture, const QSize& size,
            const TSirdsSettings* settings);

  bool IsStereogram() const override { return isStereogram_; }
  void SetIsStereogram(bool is) { isStereogram_ = is; }
  const Recipe* MadeBy() const override { return recipe_ ? &*recipe_ : nullptr; }
  void SetMadeBy(Recipe recipe) { recipe_ = std::move(recipe); }
  void KeepRecipe(bool keep) override { keepsRecipe_ = keep; }
  const SourcePlace& Source() const { return source_; }
  void SetSource(SourcePlace source) { source_ = std::move(source); }
  void SetPatternLibrary(const TSirdPatt* patterns) override { patterns_ = patterns; }
  void SetSettings(const TSirdsSettings* settings) { settings_ = settings; }

  // The generation runs that draw in this window. They report to the frame with WM_PROGRESS and
  // handle events while they work, so any window may be closed before they return, this one too.
  // A run ends early, with kCancelled, by "Stop Current Process", which drops the window's picture
  // and closes it; when the frame or this window closes; and when a later run has drawn here. Other
  // errors have a sentence for the user; they close a window that is empty.

  // The stereogram of a depth map.
  [[nodiscard]] Result<void> MakeSirdFromDepthMap(std::shared_ptr<const LevelGrid> map);
  // The stereogram of fine levels.
  [[nodiscard]] Result<void> MakeSirdFromFine(FineDrawing draw, RecipeSource source);
  // The stereogram of a mathematical figure, over the window's picture when it has one and the
  // settings ask for that. `code` is below 0: -(number of the figure + 1).
  [[nodiscard]] Result<void> MakeSirdFromFigure(std::int32_t code);

  // Makes the stereogram of the window anew. When it is stopped or fails the old one stays.
  [[nodiscard]] Result<void> MakeAgain(const SirdRun& run);

  // When the range of the run that made the picture was fitted, a notice says so. It keeps the run
  // and offers to make it again, in this window, with the range as set.
  void TellFittedRange(const SirdRun& run);

  // Takes the commands of the figures too, when the settings want them over an open picture.
  bool HandlesCommand(int command) const override;
  bool CommandEnabled(int command) const override;
  void RunCommand(int command) override;

 protected:
  std::string Comment() const override;

 private:
  std::shared_ptr<const IndexedImage> CurrentPattern();
  SirdRun WithNames(SirdRun run, RecipeSource source) const;
  enum class WhenStopped { kCloses, kStays };
  Result<void> Draw(const SirdRun& run, WhenStopped whenStopped = WhenStopped::kCloses);
  void MakeWithRangeAsSet(const SirdRun& run);
  void DropAndClose();

  const TSirdsSettings* settings_;
  const TSirdPatt* patterns_ = nullptr;
  bool isStereogram_ = false;
  std::optional<Recipe> recipe_;
  bool keepsRecipe_ = true;
  SourcePlace source_;
  int drawings_ = 0;  // runs that have drawn here, or closed the window
};

// What a stereogram of the document is called.
QString StereogramTitle(const Document& source);

// The name of the document's file; empty when it has none.
std::string FileNameOf(const Document& document);

// The file of the pattern that is current in the library, which may be null.
std::string PatternFileOf(const TSirdPatt* patterns);

// Makes a stereogram from the picture of `source` and leaves that window as it is. It may be closed
// before this returns, which ends the run. Errors as of the runs above.
[[nodiscard]] Result<TSirdResult> MakeSirdFromBitmap(Document& source, const TSirdPatt* patterns,
                                                     const TSirdsSettings& settings);

}  // namespace plenovia
