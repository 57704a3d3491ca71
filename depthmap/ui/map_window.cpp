#include "depthmap/ui/map_window.h"

#include <QAbstractScrollArea>
#include <QPointer>
#include <cstddef>
#include <utility>

#include "depthmap/depth_map_file.h"
#include "depthmap/handles.h"
#include "depthmap/level_choice.h"
#include "depthmap/map_size.h"
#include "depthmap/picking.h"
#include "depthmap/shape_steps.h"
#include "depthmap/ui/edit_names.h"
#include "depthmap/ui/handle_painting.h"
#include "depthmap/ui/level_dialog.h"
#include "depthmap/ui/level_keys.h"
#include "depthmap/ui/map_keys.h"
#include "depthmap/ui/map_making.h"
#include "depthmap/ui/map_words.h"
#include "depthmap/ui/shape_commands.h"
#include "platform/file_io.h"
#include "platform/ui/message_box.h"
#include "platform/ui/private_message.h"
#include "platform/ui/resource_pictures.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

DepthPoint ToDepthPoint(const QPoint& point) {
  return {point.x(), point.y()};
}

DepthRect ToDepthRect(const TrackRect& track) {
  return {track.anchor.x(), track.anchor.y(), track.moving.x(), track.moving.y()};
}

}  // namespace

TMapWindow::TMapWindow(QMdiArea* client, const QString& title, int width, int height,
                       QWidget* frame)
    : TMapView(client, title, frame) {
  SetWindowKind(kDepthMapWindow);
  setWindowIcon(NamedIcon(QStringLiteral("i3")));
  SetList(std::make_shared<TDepthList>(width, height));
  SetFileName(title);
  SetTool(kSelectTool);
  auto* view = findChild<QAbstractScrollArea*>(QStringLiteral("client"));
  new LevelKeys(*this, *view, *view->viewport());
  SetWindowSize({width, height});
  ResizeToMap();
}

void TMapWindow::SetList(std::shared_ptr<TDepthList> list) {
  gesture_.reset();
  ShowList(std::move(list));
  list_->KeepHistory();
  knownSize_ = {list_->GetWidth(), list_->GetHeight()};
  Q_EMIT MapChanged();
  StateMayHaveChanged();
}

void TMapWindow::SetFileName(const QString& path) {
  setWindowTitle(BaseNameTitle(path));
}

DepthMapInfo TMapWindow::GetBitmapInfo() const {
  return {list_->GridWidth(), list_->GridHeight()};
}

Result<DepthMapState> TMapWindow::ReadDepthMap(const QString& path) {
  const auto bytes = ReadFile(ToPath(path));
  if (!bytes) return tl::unexpected(bytes.error());
  return ReadDepthMap(std::span<const std::uint8_t>(*bytes));
}

Result<DepthMapState> TMapWindow::ReadDepthMap(std::span<const std::uint8_t> bytes) {
  auto contents = DecodeDepthMap(bytes);
  if (contents && contents->list.GetImageSize() == 0) {
    contents = Failure(ErrorCode::kCorrupt, "The depth map has no size.");
  }
  if (!contents) {
    if (contents.error().code == ErrorCode::kCorrupt) {
      ShowMessage(window(), tr("Invalid Depth Map file"), tr("Error"), MessageIcon::kStop);
    }
    return tl::unexpected(contents.error());
  }
  SetList(std::make_shared<TDepthList>(std::move(contents->list)));
  ResizeToMap();
  return contents->damaged ? DepthMapState::kDamaged : DepthMapState::kWhole;
}

Result<DepthMapState> TMapWindow::ReadRecovered(std::span<const std::uint8_t> bytes) {
  auto state = ReadDepthMap(bytes);
  if (!state) return state;
  list_->MarkUnsaved();
  StateMayHaveChanged();
  return state;
}

bool TMapWindow::IsUntouched() const {
  return File().isEmpty() && !list_->UndoKind() && list_->CountObjects() <= 1;
}

void TMapWindow::SetMapSize(const QSize& size) {
  ResizeMap(*list_, size.width(), size.height());
  StateMayHaveChanged();
  SendPrivateMessage(Frame(), PrivateMessage(WM_UPDATESTATUS));
}

Result<void> TMapWindow::WriteDepthMap(const QString& path) {
  Result<void> written = plenovia::WriteDepthMap(*list_, ToPath(path));
  SetFileName(path);
  StateMayHaveChanged();
  return written;
}

void TMapWindow::SetTool(int id) {
  if (!IsMapTool(id)) return;
  tool_ = id;
  SetCursorId(id);
  Q_EMIT ToolChanged(id);
}

Result<void> TMapWindow::Save(const QString& path) {
  Result<void> written = WriteDepthMap(path);
  if (written) SetFile(path);
  return written;
}

QString TMapWindow::SavingText(const QString&) const {
  return tr("Writing Depth Map File");
}

DocumentStatus TMapWindow::Status() const {
  const DepthMapInfo info = GetBitmapInfo();
  return PictureStatus(info.width, info.height, info.bitsPerPixel,
                       static_cast<std::int64_t>(GetImageSize()));
}

bool TMapWindow::HandlesCommand(int command) const {
  return IsMapCommand(command);
}

bool TMapWindow::CommandEnabled(int command) const {
  if (command == kCmUndo) return list_->UndoKind().has_value();
  if (command == kCmRedo) return list_->RedoKind().has_value();
  if (command == kCmMapSteps) {
    return list_->Selected() != nullptr && CanMakeSteps(*list_->Selected());
  }
  if (IsShapeCommand(command)) return HasSelectedShape();
  return HandlesCommand(command);
}

bool TMapWindow::HasSelectedShape() const {
  const std::size_t selected = list_->Selection().size();
  return selected > 1 || (selected == 1 && list_->Selected() != list_->Background());
}

QList<QByteArray> TMapWindow::PasteFormats() const {
  return ShapeFormats();
}

bool TMapWindow::Paste(const QByteArray& bytes) {
  const bool pasted = PasteShapes(*list_, bytes);
  StateMayHaveChanged();
  return pasted;
}

QString TMapWindow::CommandSubject(int command) const {
  const auto kind = command == kCmUndo   ? list_->UndoKind()
                    : command == kCmRedo ? list_->RedoKind()
                                         : std::nullopt;
  return kind ? EditName(*kind) : QString();
}

void TMapWindow::RunCommand(int command) {
  // The window may be closed while a dialog asks.
  const std::shared_ptr<TDepthList> list = list_;
  const QPoint middle = QRect({}, ClientSize()).center();
  const QPointer<TMapWindow> alive(this);  // a dialog may outlive the window
  switch (command) {
    case kCmZoomIn:
      return Zoom(1, middle);
    case kCmZoomOut:
      return Zoom(-1, middle);
    case kCmActualSize:
      return SetLook({look_.view, MapScale()}, middle);
    case kCmZoomToFit:
      return ZoomToFit();
    case kCmMapView:
      return SetLook({NextView(look_.view), look_.scale}, middle);
    case kSetLevel:
      CmSetLevel();
      return;
    case kTextTool:
      CmText();
      break;
    case kCmMapSteps:
      AskForSteps(window(), *list);
      break;
    case kCmSelectAll:
      list_->SelectAll(ObjectsAboveBackground(*list_));
      break;
    case kCmUndo:
      list_->Undo();
      break;
    case kCmRedo:
      list_->Redo();
      break;
    default:
      if (IsShapeCommand(command)) RunShapeCommand(*list, command, window());
      if (alive) SetTool(command);
  }
  if (alive) StateMayHaveChanged();
}

void TMapWindow::CmSetLevel() {
  // The window may be closed before the dialog is.
  const std::shared_ptr<TDepthList> list = list_;
  std::int32_t level = list->CurrentLevel();
  TLevelDialog dialog(window(), level);
  const QPointer<TMapWindow> alive(this);
  if (dialog.exec() != QDialog::Accepted) return;
  list->SetCurrentLevel(level);
  if (alive) StateMayHaveChanged();
}

void TMapWindow::CmText() {
  const QPointer<TMapWindow> alive(this);
  const QPoint middle = TrackingPoint(QRect({}, ClientSize().boundedTo(extent_)).center());
  TextStyle style = textStyle_;
  const std::shared_ptr<TDepthList> list = list_;
  const bool put = AskForText(window(), *list, ToDepthPoint(middle), style);
  if (!alive) return;
  textStyle_ = style;
  SetTool(put ? kMoveTool : tool_);
}

std::int32_t TMapWindow::LevelAtHand() const {
  const TDepthObj* selected = list_->Selected();
  return selected != nullptr ? selected->GetLevel() : list_->CurrentLevel();
}

void TMapWindow::SetLevelAtHand(std::int32_t level) {
  {
    const MapEdit step(*list_, EditKind::kSetLevel);
    for (const TDepthObj* object : list_->Selection()) list_->SetObjectLevel(object, level);
  }
  list_->SetCurrentLevel(level);
  StateMayHaveChanged();
  Q_EMIT Told(tr("Level %1").arg(level));
}

void TMapWindow::EndLevelChange() {
  list_->EndEdit();
  StateMayHaveChanged();
}

void TMapWindow::EvMDIActivate(bool active) {
  if (!active) return;
  SendPrivateMessage(Frame(), PrivateMessage(WM_UPDATESTATUS));
  SetTool(tool_);
}

void TMapWindow::Edit(const std::function<void(TDepthList&)>& change) {
  change(*list_);
  StateMayHaveChanged();
}

void TMapWindow::StateMayHaveChanged() {
  const bool objectsChanged =
      !changed_.empty() || std::exchange(knownEdition_, list_->Edition()) != list_->Edition();
  RepaintChanged();
  if (knownSize_ != std::pair(list_->GetWidth(), list_->GetHeight())) {
    knownSize_ = {list_->GetWidth(), list_->GetHeight()};
    UpdateExtent();
    SetScrollExtent(extent_);
    InvalidateAll();
  }
  if (objectsChanged) Q_EMIT MapChanged();
  const bool changed = knownSaved_ != IsSaved() || knownSelected_ != list_->Selected() ||
                       knownUndo_ != list_->UndoKind() || knownRedo_ != list_->RedoKind() ||
                       knownLevels_ != std::pair(LevelAtHand(), list_->CurrentLevel());
  knownLevels_ = {LevelAtHand(), list_->CurrentLevel()};
  knownSaved_ = IsSaved();
  knownSelected_ = list_->Selected();
  knownUndo_ = list_->UndoKind();
  knownRedo_ = list_->RedoKind();
  if (changed) Q_EMIT StateChanged();
}

void TMapWindow::PressOnObjects(MouseKeys keys, QPoint point) {
  const GesturePress press{ToDepthPoint(point), ToGestureKeys(keys.modifiers),
                           PickTolerance(look_.scale)};
  gesture_ = PressOnHandle(*list_, press);
  if (gesture_) return;
  gesture_ = tool_ == kMoveTool ? PressToMove(*list_, press) : PressToSelect(*list_, press);
}

void TMapWindow::MouseMoved(MouseKeys keys, QPoint point) {
  if (!gesture_ || !LeftDown()) {
    TMouseWnd::MouseMoved(keys, point);
    return;
  }
  gesture_->MoveTo(ToDepthPoint(point), ToGestureKeys(keys.modifiers));
  SetLastPoint(point.x(), point.y());
  Q_EMIT Told(PlaceWords(*list_, ToDepthPoint(point), look_.scale));
  ShowFrame();
  StateMayHaveChanged();
}

void TMapWindow::ShowFrame() {
  const std::optional<DepthRect> frame = gesture_->Frame();
  if (!frame) return;
  InvalidateRubber();
  if (!rubber_.IsActive()) rubber_.Start(SquareBoxObj, *frame);
  rubber_.SetRect(*frame);
  InvalidateRubber();
}

bool TMapWindow::EndGesture(bool cancelled) {
  const bool active = gesture_ != nullptr || rubber_.IsActive();
  if (gesture_) cancelled ? gesture_->Cancel() : gesture_->Finish();
  gesture_.reset();
  InvalidateRubber();
  rubber_.SetClosed(false);
  if (tool_ != kPolygonTool || cancelled) rubber_.Stop();
  return active;
}

bool TMapWindow::KeyPressed(const QKeyEvent& event) {
  bool used = false;
  if (event.key() == Qt::Key_Escape) {
    used = EndGesture(true);
    EndLeftTrack();
  } else if (rubber_.IsPolygon() &&
             (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)) {
    FinishPolygon();
    used = true;
  } else if (!gesture_) {
    used = PressMapKey(*list_, event);
  }
  StateMayHaveChanged();
  return used;
}

void TMapWindow::OnLButtonDown(MouseKeys keys, QPoint point) {
  const TDepthObj* object = PickObject(*list_, ToDepthPoint(point), PickTolerance(look_.scale));
  switch (tool_) {
    case kSelectTool:
    case kMoveTool:
      PressOnObjects(keys, point);
      break;
    case kGetLevelTool:
      list_->GetObjectLevel(object);
      break;
    case kApplyLevelTool:
      list_->ApplyObjectLevel(object);
      break;
    case kPolygonTool:
      AddVertex(point);
      break;
    default:
      InvalidateRubber();
      rubber_.Start(KindOfTool(tool_), ToDepthRect(Tracking()));
  }
  StateMayHaveChanged();
}

void TMapWindow::LeftDrag(int x, int y) {
  UpdateTrack(x, y);
  InvalidateRubber();
  rubber_.SetRect(ToDepthRect(Tracking()));
  rubber_.SetClosed(true);
  InvalidateRubber();
  if (rubber_.IsActive()) Q_EMIT Told(DrawingWords(rubber_, list_->CurrentLevel()));
}

void TMapWindow::OnLButtonUp(MouseKeys, QPoint) {
  if (LeftDragged() && IsDrawingTool(tool_) && tool_ != kPolygonTool) AddShape();
  EndGesture(false);
  StateMayHaveChanged();
}

void TMapWindow::OnLeftTrackLost() {
  EndGesture(false);
  StateMayHaveChanged();
}

void TMapWindow::HoverMove(int x, int y) {
  if (tool_ == kPolygonTool && rubber_.IsPolygon()) {
    InvalidateRubber();
    rubber_.SetLine(ToDepthPoint(ButtonDownPoint()), {x, y});
    InvalidateRubber();
  }
  SetLastPoint(x, y);
  ShowHandleCursor(QPoint(x, y));
  const QString place = PlaceWords(*list_, {x, y}, look_.scale);
  const QString drawing = DrawingWords(rubber_, list_->CurrentLevel());
  Q_EMIT Told(drawing.isEmpty() ? place : tr("%1 (%2)").arg(drawing, place));
}

void TMapWindow::ShowHandleCursor(QPoint point) {
  if (!PicksObjects(tool_)) return;
  const auto handle = HandleOfSelected(*list_, ToDepthPoint(point), PickTolerance(look_.scale));
  if (handle) {
    ShowCursor(CursorOf(*list_->Selected(), *handle));
  } else {
    SetCursorId(tool_);
  }
}

void TMapWindow::OnLButtonDblClk(MouseKeys, QPoint point) {
  if (tool_ == kPolygonTool && rubber_.IsPolygon()) FinishPolygon();
  if (!PicksObjects(tool_)) return;
  const auto added = AddPointAt(*list_, ToDepthPoint(point), PickTolerance(look_.scale));
  if (added == AddedPoint::kTooMany) Q_EMIT Told(tr("A polygon has at most 64 points."));
  StateMayHaveChanged();
}

void TMapWindow::AddShape() {
  auto shape = std::make_unique<TDepthObj>(nullptr, ToDepthRect(Tracking()), KindOfTool(tool_),
                                           list_->CurrentLevel());
  if (AddDrawn(std::move(shape))) list_->Select(list_->Head());
}

bool TMapWindow::AddDrawn(std::unique_ptr<TDepthObj> object) {
  if (IsDegenerate(*object)) {
    Q_EMIT Told(tr("A shape that covers no dot is not made."));
    return false;
  }
  const bool seen = StandsOut(*object, *list_);
  list_->AddObject(std::move(object));
  Q_EMIT Told(seen ? QString() : HiddenWords(list_->CurrentLevel()));
  return true;
}

void TMapWindow::AddVertex(QPoint point) {
  if (rubber_.IsPolygon() && rubber_.IsClosedBy(ToDepthPoint(point), PickTolerance(look_.scale))) {
    FinishPolygon();
    return;
  }
  InvalidateRubber();
  if (!rubber_.IsPolygon()) {
    rubber_.Start(PolygonObj, ToDepthRect(Tracking()));
  } else if (rubber_.Vertices().size() < TDepthObj::kMaxVertices) {
    rubber_.AddVertex(ToDepthPoint(point));
  } else {
    FinishPolygon();
    Q_EMIT Told(tr("A polygon has at most 64 points."));
    return;
  }
  InvalidateRubber();
  Q_EMIT Told(DrawingWords(rubber_, list_->CurrentLevel()));
}

void TMapWindow::FinishPolygon() {
  auto polygon =
      std::make_unique<TDepthObj>(nullptr, DepthRect{}, PolygonObj, list_->CurrentLevel());
  polygon->SetPoints(rubber_.Vertices());
  InvalidateRubber();
  rubber_.Stop();
  AddDrawn(std::move(polygon));
  StateMayHaveChanged();
}

}  // namespace plenovia
