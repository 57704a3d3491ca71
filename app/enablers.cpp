#include "app/enablers.h"

#include "app/plenovia_wnd.h"
#include "depthmap/ui/map_window.h"
#include "engine/ui/sirds_wnd.h"
#include "images/ui/clipboard.h"

namespace plenovia {

namespace {

int ActiveKind(const TPlenoviaWnd& frame) {
  const TMouseWnd* active = frame.GetActiveChild();
  return active != nullptr ? active->GetWindowKind() : 0;
}

}  // namespace

bool IsIdle(const TPlenoviaWnd& frame) {
  return !frame.IsBusy();
}
bool IsBusy(const TPlenoviaWnd& frame) {
  return frame.IsBusy();
}

bool CanSave(const TPlenoviaWnd& frame) {
  if (frame.IsBusy()) return false;
  if (const TSirdsWnd* picture = frame.ActivePicture()) return !picture->IsSaved();
  const auto* map = qobject_cast<TMapWindow*>(frame.GetActiveChild());
  return map != nullptr && !map->IsSaved();
}

bool CanWorkOnPicture(const TPlenoviaWnd& frame) {
  return !frame.IsBusy() && ActiveKind(frame) == kPictureWindow;
}

bool CanCopy(const TPlenoviaWnd& frame) {
  const int kind = ActiveKind(frame);
  return !frame.IsBusy() && (kind == kPictureWindow || kind == kColourTableWindow);
}

bool CanPaste(const TPlenoviaWnd& frame) {
  return !frame.IsBusy() && ClipboardHasPicture();
}

bool CanZoomIn(const TPlenoviaWnd& frame) {
  return CanWorkOnPicture(frame) && frame.ActivePicture()->CanZoomIn();
}

bool CanZoomOut(const TPlenoviaWnd& frame) {
  return CanWorkOnPicture(frame) && frame.ActivePicture()->CanZoomOut();
}

bool CanMakeSirds(const TPlenoviaWnd& frame) {
  const int kind = ActiveKind(frame);
  return !frame.IsBusy() && (kind == kPictureWindow || kind == kDepthMapWindow);
}

bool HasWindows(const TPlenoviaWnd& frame) {
  return !frame.Area()->subWindowList().isEmpty();
}

}  // namespace plenovia
