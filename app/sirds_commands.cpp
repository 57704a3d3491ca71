#include "app/sirds_commands.h"

#include <QPointer>
#include <utility>

#include "app/command_table.h"
#include "app/file_commands.h"
#include "app/plenovia_wnd.h"
#include "app/settings_path.h"
#include "app/status_bar.h"
#include "depthmap/ui/map_window.h"
#include "engine/ui/sett_dialog.h"
#include "engine/ui/sirds_wnd.h"
#include "engine/ui/wizard_run.h"
#include "figures/sirdmath.h"
#include "images/add_pattern.h"
#include "images/pattern_files.h"
#include "images/ui/figure_titles.h"
#include "images/ui/patt_dialog.h"
#include "platform/ui/message_box.h"
#include "platform/ui/private_message.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

// A run that the user stopped needs no words.
void ShowFailure(TPlenoviaWnd& frame, const Error& error) {
  if (error.code == ErrorCode::kCancelled) return;
  ShowMessage(&frame, ToQString(error.message), TPlenoviaWnd::tr("Error"), MessageIcon::kStop);
}

void MakeFromPicture(TPlenoviaWnd& frame, TSirdsWnd& source) {
  if (source.IsStereogram()) {
    ShowMessage(&frame, TPlenoviaWnd::tr("The active window is already a SIRD."),
                TPlenoviaWnd::tr("Note"), MessageIcon::kInformation);
    return;
  }
  auto made = source.MakeSirdFromBitmap();
  if (!made) {
    ShowFailure(frame, made.error());
    return;
  }
  const QSize size(made->bitmap->width(), made->bitmap->height());
  auto* window = new TSirdsWnd(frame.Area(), made->title, &frame, nullptr, size, &frame.Settings());
  window->SetIsStereogram(true);
  frame.Adopt(*window);
  window->SetImage(std::move(made->bitmap));
}

void MakeFromMap(TPlenoviaWnd& frame, TMapWindow& map) {
  const DepthMapInfo info = map.GetBitmapInfo();
  const QPointer<TSirdsWnd> window =
      new TSirdsWnd(frame.Area(), TPlenoviaWnd::tr("untitled"), &frame, nullptr,
                    QSize(info.width, info.height), &frame.Settings());
  frame.Adopt(*window);
  frame.Status().SetMessage(QString());
  frame.Status().SetImageText(QString());
  const auto levels = map.Levels();  // kept, should the map be closed meanwhile
  const auto made = window->MakeSirdFromDepthMap(*levels);
  if (!made) {
    ShowFailure(frame, made.error());
  } else if (window) {
    window->SetIsStereogram(true);
    SendPrivateMessage(&frame, PrivateMessage(WM_UPDATESTATUS));
  }
}

void PostCommand(TPlenoviaWnd& frame, int command) {
  QMetaObject::invokeMethod(
      &frame, [&frame, command] { frame.Commands().Run(command); }, Qt::QueuedConnection);
}

}  // namespace

void CmMakeSirds(TPlenoviaWnd& frame) {
  TMouseWnd* active = frame.GetActiveChild();
  if (auto* picture = qobject_cast<TSirdsWnd*>(active)) {
    MakeFromPicture(frame, *picture);
  } else if (auto* map = qobject_cast<TMapWindow*>(active)) {
    MakeFromMap(frame, *map);
  }
  frame.RepaintAll();
}

void CmFigure(TPlenoviaWnd& frame, int command) {
  const int number = command - kCmFirstFigure;
  if (number < 0 || number >= _GetFigureCount()) return;
  QPointer<TSirdsWnd> window = frame.Settings().useBmp != 0 ? frame.ActivePicture() : nullptr;
  const bool isNew = window.isNull();
  if (isNew) {
    const TSirdsSettings& settings = frame.Settings();
    window = new TSirdsWnd(frame.Area(), FigureTitle(number), &frame, nullptr,
                           QSize(settings.w, settings.h), &settings);
    frame.Adopt(*window);
  }
  const auto made = window->MakeSirdFromFigure(-(number + 1));
  if (!made) {
    ShowFailure(frame, made.error());
  } else if (window && isNew) {
    window->SetIsStereogram(true);
    SendPrivateMessage(&frame, PrivateMessage(WM_UPDATESTATUS));
  }
}

void CmWizard(TPlenoviaWnd& frame) {
  const auto source = RunWizard(&frame, frame.Settings(), *frame.Patterns(), SettingsPath());
  frame.UpdatePatternButton();
  if (!source) return;
  if (source->type == kFigureSource) {
    PostCommand(frame, kCmFirstFigure + source->figure);
    return;
  }
  if (source->type == kBitmapSource) {
    OpenPicture(frame, source->name);
  } else {
    OpenDepthMap(frame, source->name);
  }
  frame.Status().SetMessage(QString());
  SendPrivateMessage(&frame, PrivateMessage(WM_UPDATESTATUS));
  frame.SetBusyCursor(false);
  PostCommand(frame, kCmMakeSirds);
}

void CmSettings(TPlenoviaWnd& frame) {
  TSettDialog(&frame, frame.Settings()).exec();
}

void CmPatterns(TPlenoviaWnd& frame) {
  TPattDialog(&frame, *frame.Patterns(), frame.ActivePicture() != nullptr).exec();
  frame.UpdatePatternButton();
}

bool AddPatternFromPicture(TPlenoviaWnd& frame) {
  const TSirdsWnd* window = frame.ActivePicture();
  if (window == nullptr || !window->Picture()) return false;
  return AddPattern(*frame.Patterns(), *window->Picture(), UserPatternFolder()).has_value();
}

}  // namespace plenovia
