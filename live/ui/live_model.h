// The one owner of what Live View shows.
#pragma once

#include <QObject>
#include <QPointer>
#include <QSize>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>

#include "documents/ui/document.h"
#include "images/sird_patt.h"
#include "live/ui/live_scene.h"
#include "live/ui/live_worker.h"
#include "viewing/level_snapshot.h"

namespace plenovia {

// Follows the document or figure at hand, the record of parameters and the pattern, and has the
// worker make what they give, once the events that wait are handled. Documents are only read.
class LiveModel : public QObject {
  Q_OBJECT

 public:
  // `settings` is the one record. `patterns` gives the library, null until it is loaded.
  LiveModel(QObject* parent, TSirdsSettings& settings, std::function<TSirdPatt*()> patterns);

  // The document becomes the source when it has depth and is no stereogram; else the source stays.
  void Follow(Document* document);
  // `number` from 0.
  void ShowFigure(int number);
  // The parameters or the pattern may have changed.
  void Refresh();
  // Only while it is watched is anything made.
  void SetWatched(bool watched);

  void SetView(LiveView view);
  void SetFit(bool fit);
  void SetPane(const QSize& pixels);
  void SetRelief(const ReliefView& relief);
  void SetMillimetresPerPixel(double millimetres);

  const LiveRequest& Shown() const { return request_; }
  const TSirdsSettings& Settings() const { return settings_; }
  TSirdPatt* Patterns() const { return patterns_(); }
  // The document that is shown; null when a figure is.
  Document* Source() const { return document_; }
  // The number of the figure that is shown, or else was used last.
  int Figure() const { return figure_; }

  // Edits the record, which is settled then; zmin may stay above zmax, which exchanges near and
  // far.
  void Edit(const std::function<void(TSirdsSettings&)>& edit);
  void ChoosePattern(int index);

 Q_SIGNALS:
  // The source, the parameters, the pattern or the view is another one.
  void RequestChanged();
  void PictureMade(const std::shared_ptr<const LivePicture>& picture);
  void LevelsCounted(const std::shared_ptr<const LevelHistogram>& histogram);
  void Measured(const std::shared_ptr<const LiveMeter>& meter);
  // The record or the choice of the pattern was edited here.
  void SettingsEdited();
  void PatternChosen();

 private:
  void Unfollow();
  void RowsChanged(int first, int end);
  LiveSource ReadSource();
  LiveSource FigureSource() const;
  void AskWorker();

  TSirdsSettings& settings_;
  std::function<TSirdPatt*()> patterns_;
  LiveRequest request_;
  std::optional<LiveRequest> asked_;
  bool watched_ = false;
  QTimer soon_;
  QPointer<Document> document_;
  int figure_ = 0;
  // Of the document's levels, with the rows that changed since.
  std::weak_ptr<const LevelGrid> read_;
  std::shared_ptr<const LevelSnapshot> snapshot_;
  int firstChanged_ = 0;
  int endChanged_ = 0;
  LiveWorker worker_;
};

}  // namespace plenovia
