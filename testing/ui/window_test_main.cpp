#include <gtest/gtest.h>

#include <QApplication>
#include <QString>
#include <cstdio>

namespace {

// Warnings of Qt's tell of our own mistakes: each fails the test that runs. The offscreen platform
// warns of every window that has size limits.
void FailOnWarnings(QtMsgType type, const QMessageLogContext&, const QString& text) {
  // The offscreen platform has no order of windows.
  if (text == QStringLiteral("This plugin does not support raise()")) return;
  if (text.contains(QStringLiteral("does not support propagateSizeHints"))) return;
  // Nor can one window take all events, as one does that is moved by the keyboard.
  if (text.contains(QStringLiteral("does not support grabbing"))) return;
  // And it has no other programs that a link could open.
  if (text.contains(QStringLiteral("does not support QPlatformServices::openDocument"))) return;
  std::fprintf(stderr, "Qt: %s\n", qUtf8Printable(text));
  if (type != QtDebugMsg && type != QtInfoMsg) ADD_FAILURE() << "Qt: " << qUtf8Printable(text);
}

}  // namespace

// On a display with an accessibility bus the library of that bus keeps a buffer to the end.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libdbus";
}

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  qInstallMessageHandler(FailOnWarnings);
  return RUN_ALL_TESTS();
}
