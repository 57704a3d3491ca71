#include "depthmap/ui/shape_commands.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMimeData>
#include <cstddef>
#include <span>
#include <utility>

#include "depthmap/arranging.h"
#include "depthmap/depth_map_file.h"
#include "depthmap/map_clip.h"
#include "depthmap/selection_edits.h"
#include "documents/ui/commands.h"

namespace plenovia {

namespace {

constexpr char kMime[] = "application/x-plenovia-depth-map";
constexpr char kTextStart[] = "data:application/x-plenovia-depth-map;base64,";
constexpr double kUsualAngle = 45;

struct Edits {
  Q_DECLARE_TR_FUNCTIONS(Edits)
};

bool CopyShapes(const TDepthList& list) {
  const Result<ByteBuffer> shapes = EncodeObjects(CopiedSelection(list));
  if (!shapes) return false;
  const QByteArray bytes(reinterpret_cast<const char*>(shapes->data()),
                         static_cast<qsizetype>(shapes->size()));
  auto data = std::make_unique<QMimeData>();
  data->setData(QString::fromLatin1(kMime), bytes);
  data->setText(QString::fromLatin1(kTextStart + bytes.toBase64()));
  QGuiApplication::clipboard()->setMimeData(data.release());
  return true;
}

void CutShapes(TDepthList& list) {
  if (!CopyShapes(list)) return;
  const MapEdit edit(list, EditKind::kCut);
  list.CmDelete();
}

void AskAndRotate(TDepthList& list, QWidget* parent) {
  bool chosen = false;
  const double degrees =
      QInputDialog::getDouble(parent, Edits::tr("Rotate"), Edits::tr("Degrees to the right:"),
                              kUsualAngle, -360, 360, 2, &chosen);
  if (chosen) RotateSelection(list, degrees);
}

std::span<const std::uint8_t> BytesOf(const QByteArray& bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.constData()),
          static_cast<std::size_t>(bytes.size())};
}

}  // namespace

void RunShapeCommand(TDepthList& list, int command, QWidget* parent) {
  switch (command) {
    case kMoveObjectUp:
      return list.CmMoveUp();
    case kMoveObjectDown:
      return list.CmMoveDown();
    case kDeleteObject:
      return list.CmDelete();
    case kShapesToTop:
      return PutSelectionOnTop(list);
    case kShapesToBottom:
      return PutSelectionAtBottom(list);
    case kCmCopy:
      CopyShapes(list);
      return;
    case kCmCut:
      return CutShapes(list);
    case kCmDuplicate:
      return DuplicateSelection(list);
    case kTurnLeft:
      return TurnSelection(list, Turn::kLeft);
    case kTurnRight:
      return TurnSelection(list, Turn::kRight);
    case kRotate:
      return AskAndRotate(list, parent);
    case kMirrorLeftRight:
      return MirrorSelection(list, MirrorAxis::kLeftRight);
    case kMirrorUpDown:
      return MirrorSelection(list, MirrorAxis::kUpDown);
    case kSpreadAcross:
      return SpreadSelection(list, Spread::kAcross);
    case kSpreadDown:
      return SpreadSelection(list, Spread::kDown);
    default:
      if (command < kAlignLeft || command > kAlignBottom) return;
      AlignSelection(list, static_cast<Alignment>(command - kAlignLeft));
  }
}

QList<QByteArray> ShapeFormats() {
  return {kMime, "text/plain;charset=utf-8", "UTF8_STRING", "text/plain"};
}

bool PasteShapes(TDepthList& list, const QByteArray& bytes) {
  QByteArray file = bytes;
  if (!LooksLikeDepthMap(BytesOf(file))) {
    const QByteArray text = bytes.trimmed();
    if (!text.startsWith(kTextStart)) return false;
    const auto decoded =
        QByteArray::fromBase64Encoding(text.mid(static_cast<qsizetype>(sizeof(kTextStart)) - 1),
                                       QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded) return false;
    file = *decoded;
  }
  auto shapes = DecodeObjects(BytesOf(file));
  if (!shapes) return false;
  PasteObjects(list, std::move(*shapes));
  return true;
}

}  // namespace plenovia
