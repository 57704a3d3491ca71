#include "images/ui/print_job.h"

#include <utility>

namespace plenovia {

PrintJob::PrintJob(std::shared_ptr<QPrinter> printer) : printer_(std::move(printer)) {}

PrintJob::PrintJob(const QString& pdfFile, const QPageLayout& layout, const QString& creator)
    : file_(std::make_unique<QSaveFile>(pdfFile)), pdf_(std::make_unique<QPdfWriter>(file_.get())) {
  pdf_->setPageLayout(layout);
  pdf_->setCreator(creator);
}

bool PrintJob::Begin(const QString& name) {
  if (printer_) {
    printer_->setDocName(name);
    printer_->setResolution(kPrintDotsPerInch);
    return painter_.begin(printer_.get());
  }
  pdf_->setTitle(name);
  pdf_->setResolution(kPrintDotsPerInch);
  return file_->open(QIODevice::WriteOnly) && painter_.begin(pdf_.get());
}

bool PrintJob::Finish() {
  const bool ended = painter_.end();
  if (printer_) return ended && printer_->printerState() != QPrinter::Error;
  return ended && file_->commit();
}

void PrintJob::Abort() {
  if (printer_) printer_->abort();
  painter_.end();
}

}  // namespace plenovia
