// What stands on the empty desk: first steps, recent files and samples as cards.
#pragma once

#include <QLabel>
#include <QPixmap>
#include <QScrollArea>
#include <functional>
#include <vector>

#include "app/thumbnail_maker.h"

namespace plenovia {

class StartCard;
struct CommandContext;

// Covers the document area as long as that holds no window. The thumbnails are made when the page
// has been painted, so that the program starts quickly.
class StartPage : public QScrollArea {
  Q_OBJECT

 public:
  // The desk's document area becomes the parent. `context` outlives the page.
  explicit StartPage(CommandContext& context);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct Section {
    Section(const QString& title, QWidget* content);

    QLabel* heading;
    std::vector<StartCard*> cards;
  };

  void AddStep(const QString& name, int picture, const QString& hint,
               const std::function<void()>& chosen);
  void AddFile(Section& section, const QString& path, const QString& description);
  void AddCard(Section& section, StartCard& card, const std::function<void()>& chosen);
  void FillRecent();
  void ChooseFigure();
  // Shows the page or hides it, by whether there are document windows.
  void Update();
  void AskThumbnails();
  void Arrange();
  // False when the key is no arrow.
  bool MoveFocus(const StartCard& from, int key);
  std::vector<StartCard*> Cards() const;

  CommandContext& context_;
  ThumbnailMaker* thumbnails_;
  QWidget* content_;
  Section steps_;
  Section recent_;
  Section samples_;
  bool asked_ = false;  // for the thumbnails of the cards that are there
};

}  // namespace plenovia
