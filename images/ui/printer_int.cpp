#include "images/ui/printer_int.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QImage>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRectF>
#include <algorithm>
#include <cstddef>
#include <span>

#include "images/print_file.h"
#include "images/print_layout.h"
#include "platform/ui/message_box.h"
#include "platform/ui/resource_pictures.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr int kJobNameLength = 50;
constexpr int kBandDots = 1 << 22;
// A viewer that softens the edges of images would let the paper shine through between two bands.
constexpr int kBandOverlap = 32;
// Places are rounded on their way to the paper. A band that then ended a little beyond a dot's edge
// would be stretched over one dot more. In dots.
constexpr qreal kInset = 0.01;

class BusyCursor {
 public:
  explicit BusyCursor(qreal scaleFactor) {
    QGuiApplication::setOverrideCursor(CursorById(kBusyCursor, scaleFactor));
  }
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;
  ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
};

// Paints the picture in bands that are already as large as they are printed, so that nothing behind
// has a reason to smooth dots, and a page never stands in memory as a whole.
bool DrawPicture(QPainter& painter, const IndexedImage& picture, const PrintLayout& layout) {
  painter.setRenderHint(QPainter::LosslessImageRendering);
  const int step = std::max(1, kBandDots / layout.width);
  for (int top = 0; top < layout.height; top += step) {
    QImage band(layout.width, std::min(step + kBandOverlap, layout.height - top),
                QImage::Format_RGB32);
    if (band.isNull()) return false;
    RenderForPrint(picture, layout, top,
                   {reinterpret_cast<std::uint32_t*>(band.bits()),
                    static_cast<std::size_t>(band.sizeInBytes()) / sizeof(std::uint32_t)});
    const QRectF place(layout.left, layout.top + top, band.width(), band.height());
    painter.drawImage(place.adjusted(kInset, kInset, -kInset, -kInset), band);
  }
  return true;
}

// Whether the system does not know the printer any more.
bool IsGone(const QPrinter& printer) {
  return printer.outputFormat() != QPrinter::PdfFormat &&
         QPrinterInfo::printerInfo(printer.printerName()).isNull();
}

}  // namespace

TPrinterInt::TPrinterInt(const QString& documentName) : documentName_(documentName) {}

void TPrinterInt::PrinterSetup(QWidget* owner) {
  if (!chosen_) chosen_ = std::make_shared<QPrinter>(QPrinter::HighResolution);
  setupChosen_ = false;
  QPrintDialog dialog(chosen_.get(), owner);
  dialog.setWindowTitle(tr("Printer Setup"));
  dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
  // The dialog's own word for it would be "Print".
  if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
    if (auto* ok = buttons->button(QDialogButtonBox::Ok)) ok->setText(tr("OK"));
  }
  setupChosen_ = dialog.exec() == QDialog::Accepted;
  fileWritten_ = false;
}

std::unique_ptr<PrintJob> TPrinterInt::MakeJob() {
  if (!setupChosen_) {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull()) return nullptr;
    return std::make_unique<PrintJob>(std::make_shared<QPrinter>(info, QPrinter::HighResolution));
  }
  if (chosen_->outputFormat() != QPrinter::PdfFormat) return std::make_unique<PrintJob>(chosen_);
  QString file = chosen_->outputFileName();
  if (fileWritten_) file = PathToQString(FreePrintFile(ToPath(file)));
  return std::make_unique<PrintJob>(file, chosen_->pageLayout(), documentName_);
}

bool TPrinterInt::BeginJob(QWidget* owner, const QString& jobName) {
  if (setupChosen_ && IsGone(*chosen_)) return false;
  job_ = MakeJob();
  if (job_ && job_->Begin(jobName.left(kJobNameLength))) return true;
  job_.reset();
  ShowMessage(owner, tr("Printer initialization failed."), tr("Error"), MessageIcon::kStop);
  return false;
}

bool TPrinterInt::EndJob() {
  const bool whole = job_->Finish();
  job_.reset();
  fileWritten_ = fileWritten_ || whole;
  return whole;
}

void TPrinterInt::AbortJob() {
  job_->Abort();
  job_.reset();
}

void TPrinterInt::PrintPage(QWidget* owner, const IndexedImage& picture) {
  const PrintLayout layout = LayOutOnPage(picture, PageSize().width(), PageSize().height());
  if (!layout.fits) {
    ShowMessage(owner, tr("Image does not fit on the page.  Adjusting to fit."), tr("Printing"),
                MessageIcon::kInformation);
  }
  bool printed = false;
  {
    const BusyCursor busy(owner->devicePixelRatioF());
    printed = DrawPicture(Context(), picture, layout);
    if (printed) {
      printed = EndJob();
    } else {
      AbortJob();
    }
  }
  if (!printed) {
    ShowMessage(owner, tr("Printing failed.\rPlease Check Printer Setup\rand Memory."),
                tr("Printing Error"), MessageIcon::kInformation);
  }
}

void TPrinterInt::PrintPicture(QWidget* owner, const IndexedImage& picture, const QString& jobName,
                               const std::function<void(const QString&)>& statusText) {
  if (picture.empty()) return;
  const QString program = QStringLiteral("Plenovia");
  if (BeginJob(owner, jobName)) {
    statusText(tr("%s - Spooling ...").replace(QStringLiteral("%s"), program));
    PrintPage(owner, picture);
  } else {
    ShowMessage(owner, tr("Printer is not responding.  Please Check Printer Setup"),
                tr("Driver Error"), MessageIcon::kInformation);
  }
  statusText(program);
}

}  // namespace plenovia
