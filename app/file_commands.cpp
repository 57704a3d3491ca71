#include "app/file_commands.h"

#include <QPointer>
#include <memory>
#include <utility>

#include "app/plenovia_wnd.h"
#include "app/status_bar.h"
#include "codec/graph_io.h"
#include "codec/graphic_format.h"
#include "depthmap/ui/map_window.h"
#include "engine/ui/sirds_wnd.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/message_box.h"
#include "platform/ui/private_message.h"
#include "platform/ui/text.h"
#include "platform/vector_state.h"

namespace plenovia {

namespace {

constexpr QSize kWindowBeforePicture(200, 20);
constexpr int kMapSideBeforeFile = 400;

QString OpenFilters() {
  return QStringLiteral(
      "Bitmap Files (*.BMP)|*.bmp|PCX Files (*.PCX)|*.pcx|GIF Files (*.GIF)|*.gif|"
      "Depth Map File (*.RDS)|*.rds|PNG Files (*.PNG)|*.png|"
      "All Pictures and Depth Maps|*.bmp *.pcx *.gif *.jpg *.jpeg *.rds *.png|");
}

QString SaveFilters() {
  return QStringLiteral(
      "Bitmap Files (*.BMP)|*.bmp|PCX Files (*.PCX)|*.pcx|GIF Files (*.GIF)|*.gif|"
      "JPEG Files (*.JPG)|*.jpg|Depth Map File (*.RDS)|*.rds|PNG Files (*.PNG)|*.png|");
}

GraphicFormat LastFormat(const TPlenoviaWnd& frame) {
  return static_cast<GraphicFormat>(frame.LastFormat());
}

// Formats beyond those that have a text of their own are written as BMP files are.
QString WritingText(GraphicFormat format) {
  switch (format) {
    case GraphicFormat::kPcx:
    case GraphicFormat::kGif:
    case GraphicFormat::kJpeg:
    case GraphicFormat::kPng:
      return TPlenoviaWnd::tr("Writing %1 File").arg(ToQString(FormatName(format)));
    default:
      return TPlenoviaWnd::tr("Writing BMP File");
  }
}

QString ReadingText(GraphicFormat format) {
  switch (format) {
    case GraphicFormat::kPcx:
    case GraphicFormat::kGif:
    case GraphicFormat::kPng:
      return TPlenoviaWnd::tr("Reading %1 File").arg(ToQString(FormatName(format)));
    case GraphicFormat::kJpeg:
      return {};
    default:
      return TPlenoviaWnd::tr("Reading BMP File");
  }
}

// The busy cursor for as long as it lives.
class BusyFrame {
 public:
  explicit BusyFrame(TPlenoviaWnd& frame) : frame_(frame) { frame_.SetBusyCursor(true); }
  BusyFrame(const BusyFrame&) = delete;
  BusyFrame& operator=(const BusyFrame&) = delete;
  ~BusyFrame() { frame_.SetBusyCursor(false); }

 private:
  TPlenoviaWnd& frame_;
};

void ShowReason(TPlenoviaWnd& frame, const QString& what, const Error& error) {
  ShowMessage(&frame, what, TPlenoviaWnd::tr("Error"), MessageIcon::kInformation);
  frame.Status().SetMessage(ToQString(error.message));
}

void SavePicture(TPlenoviaWnd& frame, TSirdsWnd& window, const QString& path) {
  const auto picture = window.Picture();
  if (!picture) return;
  TGraphIO codec;
  codec.SetGraphicFormat(frame.LastFormat());
  frame.Status().SetMessage(WritingText(LastFormat(frame)));
  ClearUpperVectorHalves();
  const Result<void> written = codec.Write_File(ToPath(path), *picture);
  window.SetSaved(written.has_value());
  if (written) window.SetTitle(path);
  frame.Status().SetMessage(written ? QString() : ToQString(written.error().message));
}

void SaveMap(TPlenoviaWnd& frame, TMapWindow& window, const QString& path) {
  frame.Status().SetMessage(TPlenoviaWnd::tr("Writing Depth Map File"));
  const Result<void> written = window.WriteDepthMap(path);
  frame.Status().SetMessage(written ? QString() : ToQString(written.error().message));
}

}  // namespace

void CmFileNew(TPlenoviaWnd& frame) {
  const TSirdsSettings& settings = frame.Settings();
  frame.Adopt(
      *new TMapWindow(frame.Area(), TPlenoviaWnd::tr("untitled"), settings.w, settings.h, &frame));
}

void CmFileOpen(TPlenoviaWnd& frame) {
  frame.Status().ClearHint();
  FileQuestion question;
  question.title = TPlenoviaWnd::tr("Open");
  question.filters = OpenFilters();
  question.preselected = frame.LastFormat();
  question.defaultExtension = ToQString(OpenExtension(LastFormat(frame)));
  const auto path = AskOpenFile(&frame, question);
  if (path) OpenByName(frame, *path);
}

void OpenByName(TPlenoviaWnd& frame, const QString& path) {
  const BusyFrame busy(frame);
  frame.RepaintAll();
  if (path.contains(QStringLiteral(".rds"), Qt::CaseInsensitive)) {
    OpenDepthMap(frame, path);
  } else {
    OpenPicture(frame, path);
  }
}

void OpenPicture(TPlenoviaWnd& frame, const QString& path) {
  frame.SetLastFormat(TGraphIO::GetGraphicFormat(ToPath(path)));
  const QString text = ReadingText(LastFormat(frame));
  if (!text.isEmpty()) frame.Status().SetMessage(text);
  ClearUpperVectorHalves();
  TGraphIO codec;
  auto picture = codec.Read_File(ToPath(path));
  if (!picture) {
    ShowReason(frame, TPlenoviaWnd::tr("Error Opening the Bitmap file"), picture.error());
    return;
  }
  auto* window =
      new TSirdsWnd(frame.Area(), path, &frame, nullptr, kWindowBeforePicture, &frame.Settings());
  frame.Adopt(*window);
  window->SetImage(std::make_shared<const IndexedImage>(std::move(*picture)));
  window->SetSaved(true);
  frame.Status().SetMessage(QString());
  SendPrivateMessage(&frame, PrivateMessage(WM_UPDATESTATUS));
}

void OpenDepthMap(TPlenoviaWnd& frame, const QString& path) {
  frame.SetLastFormat(static_cast<int>(GraphicFormat::kDepthMap));
  frame.Status().SetMessage(TPlenoviaWnd::tr("Reading Depth Map File"));
  auto* window = new TMapWindow(frame.Area(), path, kMapSideBeforeFile, kMapSideBeforeFile, &frame);
  const auto read = window->ReadDepthMap(path);
  if (!read) {
    delete window;
    ShowReason(frame, TPlenoviaWnd::tr("Error Opening the Depth Map file"), read.error());
    return;
  }
  frame.Adopt(*window);
  frame.Status().SetMessage(QString());
  SendPrivateMessage(&frame, PrivateMessage(WM_UPDATESTATUS));
  if (*read == DepthMapState::kDamaged) {
    ShowMessage(&frame,
                TPlenoviaWnd::tr("The file is damaged.\rWhat could be read of it is shown."),
                TPlenoviaWnd::tr("Note"), MessageIcon::kExclamation);
  }
}

void CmFileSave(TPlenoviaWnd& frame) {
  frame.Status().ClearHint();
  const QPointer<TMouseWnd> active = frame.GetActiveChild();
  if (active && active->GetWindowKind() != kColourTableWindow) {
    FileQuestion question;
    question.title = TPlenoviaWnd::tr("Save");
    question.filters = SaveFilters();
    question.preselected = frame.LastFormat();
    question.defaultExtension = ToQString(SaveExtension(LastFormat(frame)));
    const auto path = AskSaveFile(&frame, question);
    if (path && active) {
      frame.RepaintAll();
      const BusyFrame busy(frame);
      frame.SetLastFormat(static_cast<int>(FormatOfPath(path->toStdString())));
      if (auto* picture = qobject_cast<TSirdsWnd*>(active)) SavePicture(frame, *picture, *path);
      if (auto* map = qobject_cast<TMapWindow*>(active)) SaveMap(frame, *map, *path);
    }
  }
  frame.RepaintAll();
}

}  // namespace plenovia
