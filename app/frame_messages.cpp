#include "app/frame_messages.h"

#include <cstdint>

#include "app/file_commands.h"
#include "app/plenovia_wnd.h"
#include "app/sirds_commands.h"
#include "app/status_bar.h"
#include "depthmap/ui/map_window.h"
#include "engine/ui/sirds_wnd.h"
#include "images/ui/popup_hint.h"
#include "platform/free_memory.h"
#include "platform/ui/private_message.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr std::int64_t kBytesInK = 1000;

void NeedPatterns(TPlenoviaWnd& frame, PrivateMessage& message) {
  auto* window = qobject_cast<TSirdsWnd*>(message.window());
  if (window == nullptr) window = frame.ActivePicture();
  if (window != nullptr) window->SetPatternLibrary(frame.Patterns());
}

void UpdateFrame(TPlenoviaWnd& frame, PrivateMessage&) {
  frame.RepaintAll();
}

void ColorTableClosed(TPlenoviaWnd& frame, PrivateMessage&) {
  frame.SetColourTable(nullptr);
}

void SaveChild(TPlenoviaWnd& frame, PrivateMessage& message) {
  auto* window = qobject_cast<QMdiSubWindow*>(message.window());
  if (window == nullptr) return;
  frame.Area()->setActiveSubWindow(window);
  CmFileSave(frame);
}

void ShowNothing(TCStatusBar& status) {
  status.SetImageText({});
  status.SetMessage({});
}

void ShowSize(TCStatusBar& status, int width, int height, int bitsPerPixel, std::int64_t bytes) {
  status.SetImageText(TPlenoviaWnd::tr("Image: %1 K").arg(bytes / kBytesInK));
  status.SetMessage(
      QStringLiteral("%1 x %2 x %3").arg(width).arg(height).arg(std::int64_t{1} << bitsPerPixel));
}

void UpdateStatus(TPlenoviaWnd& frame, PrivateMessage&) {
  TCStatusBar& status = frame.Status();
  TMouseWnd* active = frame.GetActiveChild();
  const auto* picture = qobject_cast<TSirdsWnd*>(active);
  if (picture != nullptr && picture->Picture()) {
    const BitmapInfo info = picture->Description();
    ShowSize(status, info.width, info.height, info.bitsPerPixel, picture->ImageBytes());
  } else if (const auto* map = qobject_cast<TMapWindow*>(active)) {
    const DepthMapInfo info = map->GetBitmapInfo();
    ShowSize(status, info.width, info.height, info.bitsPerPixel,
             static_cast<std::int64_t>(map->GetImageSize()));
  } else if (active != nullptr && active->GetWindowKind() == kColourTableWindow) {
    status.SetImageText({});
  } else {
    ShowNothing(status);
  }
  status.SetFreeText(TPlenoviaWnd::tr("Free: %1 K").arg(FreeMemoryBytes() / kBytesInK));
  status.repaint();
  frame.Commands().RefreshSoon();
}

void Progress(TPlenoviaWnd& frame, PrivateMessage& message) {
  TCStatusBar& status = frame.Status();
  const ProgressInfo& info = *message.progress();
  const int percent = info.total > 0 ? static_cast<int>(info.done * 100 / info.total) : 0;
  switch (static_cast<ProgressPhase>(message.value())) {
    case ProgressPhase::kStart:
      status.ClearHint();
      frame.OperationBegins();
      frame.SetBusyCursor(true);
      status.SetMessage(ToQString(info.text));
      status.SetProgress(0);
      break;
    case ProgressPhase::kEnd:
      status.SetProgress(100);
      status.SetMessage({});
      status.SetProgress(0);
      frame.SetBusyCursor(false);
      frame.OperationEnds();
      break;
    case ProgressPhase::kFirstStep:
    case ProgressPhase::kStep:
      status.SetMessage(ToQString(info.text));
      status.SetProgress(percent);
      break;
  }
}

void AddPattern(TPlenoviaWnd& frame, PrivateMessage& message) {
  message.SetResult(AddPatternFromPicture(frame) ? 1 : 0);
}

void ButtonHint(TPlenoviaWnd& frame, PrivateMessage& message) {
  frame.Hint().Report(message.value());
}

struct MessageRow {
  PrivateMessageNumber number;
  void (*handler)(TPlenoviaWnd&, PrivateMessage&);
};

constexpr MessageRow kMessages[] = {
    {WM_NEEDPATTERNS, &NeedPatterns}, {WM_UPDATEFRAME, &UpdateFrame},
    {WM_SAVECHILD, &SaveChild},       {WM_COLORTABLECLOSED, &ColorTableClosed},
    {WM_UPDATESTATUS, &UpdateStatus}, {WM_PROGRESS, &Progress},
    {WM_ADDPATTERN, &AddPattern},     {WM_BUTTONHINT, &ButtonHint},
};

}  // namespace

void HandlePrivateMessage(TPlenoviaWnd& frame, PrivateMessage& message) {
  for (const MessageRow& row : kMessages) {
    if (row.number == message.number()) row.handler(frame, message);
  }
}

}  // namespace plenovia
