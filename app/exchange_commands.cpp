#include "app/exchange_commands.h"

#include <memory>
#include <utility>

#include "app/plenovia_wnd.h"
#include "app/status_bar.h"
#include "engine/ui/sirds_wnd.h"
#include "images/cut_picture.h"
#include "images/ui/clipboard.h"
#include "images/ui/color_wnd.h"
#include "images/ui/printer_int.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr QSize kWindowBeforePicture(200, 40);

PixelRect ToPixelRect(const QRect& area) {
  return {area.left(), area.top(), area.left() + area.width(), area.top() + area.height()};
}

}  // namespace

void CmCopy(TPlenoviaWnd& frame) {
  TMouseWnd* active = frame.GetActiveChild();
  if (const auto* table = qobject_cast<TColorWnd*>(active)) {
    CopyToClipboard(table->MakeBitmap());
  } else if (const TSirdsWnd* window = frame.ActivePicture(); window && window->Picture()) {
    const auto cut = CutPicture(*window->Picture(), ToPixelRect(window->Selection()));
    if (cut) CopyToClipboard(*cut);
  }
}

void CmPaste(TPlenoviaWnd& frame) {
  auto picture = PictureFromClipboard();
  if (!picture) {
    frame.Status().SetMessage(ToQString(picture.error().message));
    return;
  }
  auto* window = new TSirdsWnd(frame.Area(), TPlenoviaWnd::tr("untitled"), &frame, nullptr,
                               kWindowBeforePicture, &frame.Settings());
  frame.Adopt(*window);
  window->SetImage(std::make_shared<const IndexedImage>(std::move(*picture)));
}

void CmPrint(TPlenoviaWnd& frame) {
  const TSirdsWnd* window = frame.ActivePicture();
  if (window == nullptr || !window->Picture()) return;
  const auto picture = window->Picture();
  const QString jobName = window->GetTitle();
  frame.SetBusyCursor(true);
  frame.Printer().PrintPicture(&frame, *picture, jobName,
                               [&frame](const QString& text) { frame.Status().SetMessage(text); });
  frame.SetBusyCursor(false);
}

void CmPrinterSetup(TPlenoviaWnd& frame) {
  frame.Printer().PrinterSetup(&frame);
}

}  // namespace plenovia
