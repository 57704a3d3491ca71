// Printing: the printer that the user chose, and jobs of one page for it.
#pragma once

#include <QCoreApplication>
#include <QPainter>
#include <QPrinter>
#include <QSize>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>

#include "images/ui/print_job.h"
#include "platform/indexed_image.h"

namespace plenovia {

// Made without a look at the system's printers, which can take long.
class TPrinterInt {
  Q_DECLARE_TR_FUNCTIONS(TPrinterInt)

 public:
  // `documentName` is the program's: files tell it as what made them.
  explicit TPrinterInt(const QString& documentName);

  // Lets the user choose a printer or a PDF file, and the paper, for the jobs that follow. When the
  // user cancels, they go to the system's default printer.
  void PrinterSetup(QWidget* owner);

  // False when no job can start; the user is told when the printer or the file refuses. The first
  // job goes to the chosen PDF file itself, those after it to files beside it with numbers.
  [[nodiscard]] bool BeginJob(QWidget* owner, const QString& jobName);
  // The dots of the page that can be printed on, and what paints there. Of an open job.
  QSize PageSize() const { return job_->PageSize(); }
  QPainter& Context() { return job_->Context(); }
  // Sends the page off; false when it did not come out whole.
  [[nodiscard]] bool EndJob();
  void AbortJob();

  // Prints the picture as large as the page allows and tells the user in message boxes what goes
  // wrong. `statusText` gets what to show while it works and afterwards. Nothing happens for an
  // empty picture.
  void PrintPicture(QWidget* owner, const IndexedImage& picture, const QString& jobName,
                    const std::function<void(const QString&)>& statusText);

 private:
  std::unique_ptr<PrintJob> MakeJob();
  void PrintPage(QWidget* owner, const IndexedImage& picture);

  QString documentName_;
  std::shared_ptr<QPrinter> chosen_;  // what the setup shows at first and gives back
  bool setupChosen_ = false;
  bool fileWritten_ = false;  // a job went to the chosen file since the setup
  std::unique_ptr<PrintJob> job_;
};

}  // namespace plenovia
