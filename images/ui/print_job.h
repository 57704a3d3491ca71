// One printed page, on paper or in a PDF file.
#pragma once

#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>
#include <QSize>
#include <QString>
#include <memory>

namespace plenovia {

inline constexpr int kPrintDotsPerInch = 600;

class PrintJob {
 public:
  // On paper.
  explicit PrintJob(std::shared_ptr<QPrinter> printer);
  // Into a file, which takes its place when the page is finished.
  PrintJob(const QString& pdfFile, const QPageLayout& layout, const QString& creator);

  // False when the printer or the file cannot be written to.
  [[nodiscard]] bool Begin(const QString& name);
  // The dots of the page that can be printed on; the painter counts in them. Both of a job that has
  // begun.
  QSize PageSize() const { return {painter_.device()->width(), painter_.device()->height()}; }
  QPainter& Context() { return painter_; }
  // Prints the page; false when it did not come out whole. Without it nothing is printed.
  [[nodiscard]] bool Finish();
  void Abort();

 private:
  std::shared_ptr<QPrinter> printer_;
  std::unique_ptr<QSaveFile> file_;
  std::unique_ptr<QPdfWriter> pdf_;
  QPainter painter_;  // ends before its device does
};

}  // namespace plenovia
