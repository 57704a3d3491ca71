#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QImage>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <filesystem>

#include "images/ui/printer_int.h"
#include "platform/ui/picture_painting.h"
#include "platform/ui/text.h"
#include "testing/picture_compare.h"
#include "testing/temp_folder.h"
#include "testing/ui/dialog_answers.h"

namespace plenovia {
namespace {

// The margins that a PDF page has as long as nobody changes them.
constexpr int kPageMargin = 10 * kPrintDotsPerInch / 72;

class Printing : public testing::Test {
 protected:
  // Chooses the PDF file in the setup; cancels it when the name is empty.
  void SetUpPrinter(const QString& file) {
    DialogAnswers answers;
    answers.Add([=](QDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle().toStdString(), "Printer Setup");
      if (file.isEmpty()) return dialog.reject();
      auto* printers = dialog.findChild<QComboBox*>(QStringLiteral("printers"));
      auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
      ASSERT_TRUE(printers != nullptr && name != nullptr);
      printers->setCurrentIndex(printers->findText(QStringLiteral("Print to File (PDF)")));
      name->setText(file);
      dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    printer.PrinterSetup(&frame);
  }
  void Print(const IndexedImage& picture) {
    printer.PrintPicture(&frame, picture, QStringLiteral("a picture.gif"),
                         [this](const QString& t) {
                           told += t.toStdString() + "|";
                           if (whilePrinting) whilePrinting();
                         });
  }
  void ExpectNoPrinter(DialogAnswers& answers) {
    answers.AddMessage(QStringLiteral("Printer initialization failed."), QStringLiteral("Error"));
    answers.AddMessage(QStringLiteral("Printer is not responding.  Please Check Printer Setup"),
                       QStringLiteral("Driver Error"));
  }

  QWidget frame;
  TempFolder folder;
  TPrinterInt printer{QStringLiteral("Plenovia")};
  std::string told;
  std::function<void()> whilePrinting;
};

IndexedImage Picture(int width, int height) {
  Random random(21);
  return RandomPicture(random, width, height, 256);
}

// The top of the page in dots of the printer, `height` of them; null where it cannot be had.
QImage RenderTop(const std::filesystem::path& pdf, int height) {
  QProcess render;
  render.start(
      QStringLiteral("pdftoppm"),
      {QStringLiteral("-r"), QString::number(kPrintDotsPerInch), QStringLiteral("-x"),
       QStringLiteral("0"), QStringLiteral("-y"), QStringLiteral("0"), QStringLiteral("-W"),
       QStringLiteral("9999"), QStringLiteral("-H"), QString::number(height), PathToQString(pdf)});
  render.waitForFinished();
  return QImage::fromData(render.readAllStandardOutput(), "PPM");
}

TEST_F(Printing, EveryDotIsABlockOnTheRenderedPage) {
  if (QStandardPaths::findExecutable(QStringLiteral("pdftoppm")).isEmpty()) {
    GTEST_SKIP() << "pdftoppm renders the page";
  }
  SetUpPrinter(PathToQString(folder / "page.pdf"));
  struct Case {
    IndexedImage picture;
    bool fits;
  };
  int number = 0;
  for (const auto& [picture, fits] :
       {Case{Picture(400, 100), true}, Case{Picture(6000, 900), false}}) {
    DialogAnswers answers;
    if (!fits) {
      answers.AddMessage(QStringLiteral("Image does not fit on the page.  Adjusting to fit."),
                         QStringLiteral("Printing"));
    }
    Print(picture);
    const std::string name = ++number == 1 ? "page.pdf" : "page-2.pdf";
    const QImage page = RenderTop(folder / name, 1600);
    ASSERT_FALSE(page.isNull()) << name;
    // All of an A4 page's width but the margins.
    const int corner = kPageMargin + 20;
    const int width = 4958 - 2 * corner;
    const int height = width * picture.height() / picture.width();
    const QImage dots = ToImage(picture);
    for (int y = 0; y < page.height(); ++y) {
      for (int x = 0; x < page.width(); ++x) {
        const QPoint dot(x - corner, y - corner);
        const bool inside = QRect(0, 0, width, height).contains(dot);
        const QRgb expected = inside ? dots.pixel(dot.x() * picture.width() / width,
                                                  dot.y() * picture.height() / height)
                                     : qRgb(255, 255, 255);
        ASSERT_EQ(page.pixel(x, y), expected) << x << ", " << y;
      }
    }
  }
  EXPECT_EQ(folder.Count(), 2);
  EXPECT_EQ(told, "Plenovia - Spooling ...|Plenovia|Plenovia - Spooling ...|Plenovia|");
}

TEST_F(Printing, WithoutAChoiceItGoesToTheDefaultPrinterAndThereIsNone) {
  if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this system has a printer";
  for (const bool cancelled : {false, true}) {
    if (cancelled) SetUpPrinter(PathToQString(folder / "page.pdf"));
    if (cancelled) SetUpPrinter(QString());
    DialogAnswers answers;
    ExpectNoPrinter(answers);
    Print(Picture(10, 10));
  }
  EXPECT_EQ(told, "Plenovia|Plenovia|");
  EXPECT_EQ(folder.Count(), 0);
  Print(IndexedImage());
}

TEST_F(Printing, AFileThatCannotBeWrittenIsTold) {
  const auto inner = folder / "inner";
  std::filesystem::create_directory(inner);
  SetUpPrinter(PathToQString(inner / "page.pdf"));
  whilePrinting = [&] { std::filesystem::remove_all(inner); };
  {
    DialogAnswers answers;
    answers.AddMessage(QStringLiteral("Printing failed.\nPlease Check Printer Setup\nand Memory."),
                       QStringLiteral("Printing Error"));
    Print(Picture(10, 10));
  }
  DialogAnswers answers;
  ExpectNoPrinter(answers);
  Print(Picture(10, 10));
  EXPECT_EQ(folder.Count(), 0);
}

}  // namespace
}  // namespace plenovia
