// The help: a window of its own beside the program.
#pragma once

#include <QListWidget>
#include <QMainWindow>
#include <QString>
#include <vector>

#include "app/help_pages.h"

class QLineEdit;

namespace plenovia {

class HelpBrowser;

// Hidden until a page is asked for. Asking again shows that page and raises the window; closing,
// also by Escape, hides it.
class HelpWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit HelpWindow(QWidget* parent);

  void ShowIndex();
  // The page that FindTopic names; without one, the contents and what a search finds.
  void ShowTopic(const QString& keyword);
  void CloseHelp();

 private:
  void BuildToolBar();
  void Open(const QUrl& address);
  void Search(const QString& text);
  void OpenFound(const QListWidgetItem* item);

  std::vector<HelpPage> pages_;
  HelpBrowser* browser_;
  QListWidget* found_;
  QLineEdit* search_;
};

}  // namespace plenovia
