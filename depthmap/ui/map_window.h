// The editor of a depth map: shapes drawn, moved and given their levels with the mouse.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "depthmap/depth_list.h"
#include "depthmap/map_gesture.h"
#include "depthmap/ui/map_tools.h"
#include "depthmap/ui/map_view.h"
#include "depthmap/ui/text_shapes.h"
#include "platform/result.h"

namespace plenovia {

struct DepthMapInfo {
  int width = 0;
  int height = 0;
  int bitsPerPixel = 8;
};

enum class DepthMapState { kWhole, kDamaged };

class TMapWindow : public TMapView {
  Q_OBJECT

 public:
  // A new map, not saved. `title` may be the path of a file that is then read.
  TMapWindow(QMdiArea* client, const QString& title, int width, int height, QWidget* frame);

  // The caption becomes the lower-cased file name of the path.
  void SetFileName(const QString& path);
  bool IsSaved() const override { return list_->IsSaved(); }

  // The map's size, at most the greatest int, and its bytes as a picture with 8 bits a pixel.
  DepthMapInfo GetBitmapInfo() const;
  std::uint64_t GetImageSize() const { return list_->GetImageSize(); }

  // Replaces the map by that of a file and fits the window to it. kDamaged when the file breaks its
  // format but holds a map nevertheless. A file that is no depth map, or whose map has no size, is
  // kCorrupt: the user has been told, and the map stays as it was. Of other errors the user has not
  // been told.
  [[nodiscard]] Result<DepthMapState> ReadDepthMap(const QString& path);
  // The same with the contents of a file.
  [[nodiscard]] Result<DepthMapState> ReadDepthMap(std::span<const std::uint8_t> bytes);
  // The same with what was kept of a map that was not saved: it counts as not saved still.
  [[nodiscard]] Result<DepthMapState> ReadRecovered(std::span<const std::uint8_t> bytes);
  // Whether it is a new map in which nothing was done.
  bool IsUntouched() const;
  // Takes the path's name, also when the file cannot be written; then the map is as saved or
  // unsaved as it was. The user is not told.
  [[nodiscard]] Result<void> WriteDepthMap(const QString& path);

  // The level of what is selected last, or that of the next shape when nothing is. Setting it gives
  // it to all that is selected and to the next shape. What is set between the two calls is one step
  // to undo.
  std::int32_t LevelAtHand() const;
  void SetLevelAtHand(std::int32_t level);
  void BeginLevelChange() { list_->BeginEdit(EditKind::kSetLevel); }
  void EndLevelChange();

  int CurrentTool() const { return tool_; }
  // Numbers that are no tool's are ignored.
  void SetTool(int id);
  // See ResizeMap().
  void SetMapSize(const QSize& size);

  bool HandlesCommand(int command) const override;
  bool CommandEnabled(int command) const override;
  void RunCommand(int command) override;
  QString CommandSubject(int command) const override;
  QList<QByteArray> PasteFormats() const override;
  bool Paste(const QByteArray& bytes) override;
  bool NeedsSaving() const override { return !IsSaved(); }
  bool CanSave() const override { return true; }
  Result<void> Save(const QString& path) override;
  QString SavingText(const QString& path) const override;
  DocumentStatus Status() const override;
  DocumentDepth Depth() const override { return {nullptr, 1.0, Levels()}; }

  // Does something with the map, for windows beside this one.
  void Edit(const std::function<void(TDepthList&)>& change);

 Q_SIGNALS:
  // The objects, their order or the selection may have changed.
  void MapChanged();
  // Something for the status bar to show.
  void Told(const QString& text);

 protected:
  void EvMDIActivate(bool active) override;
  void OnLButtonDown(MouseKeys keys, QPoint point) override;
  void OnLButtonUp(MouseKeys keys, QPoint point) override;
  void OnLButtonDblClk(MouseKeys keys, QPoint point) override;
  void OnLeftTrackLost() override;
  void LeftDrag(int x, int y) override;
  void HoverMove(int x, int y) override;
  void MouseMoved(MouseKeys keys, QPoint point) override;
  bool KeyPressed(const QKeyEvent& event) override;

 private:
  void SetList(std::shared_ptr<TDepthList> list);
  void StateMayHaveChanged();

  bool HasSelectedShape() const;
  void PressOnObjects(MouseKeys keys, QPoint point);
  void ShowFrame();
  void ShowHandleCursor(QPoint point);
  // Ends what the mouse has begun, as it is or as if it had not been begun. False when there is
  // nothing.
  bool EndGesture(bool cancelled);
  // False, with a word to the user, when the shape would cover nothing.
  bool AddDrawn(std::unique_ptr<TDepthObj> object);
  void AddShape();
  void AddVertex(QPoint point);
  void FinishPolygon();
  void CmSetLevel();
  void CmText();

  TextStyle textStyle_;
  std::unique_ptr<MapGesture> gesture_;  // of list_
  int tool_ = kSelectTool;
  bool knownSaved_ = false;
  std::pair<std::int64_t, std::int64_t> knownSize_;
  std::uint64_t knownEdition_ = 0;
  std::pair<std::int32_t, std::int32_t> knownLevels_;  // at hand, of the next shape
  std::optional<EditKind> knownUndo_;
  std::optional<EditKind> knownRedo_;
  const TDepthObj* knownSelected_ = nullptr;  // compared only
};

}  // namespace plenovia
