// One card of the start page.
#pragma once

#include <QAbstractButton>
#include <QImage>

namespace plenovia {

// A picture with a name below it. A click, Enter or the space bar presses it.
class StartCard : public QAbstractButton {
  Q_OBJECT

 public:
  // `picture` is the room for the picture.
  StartCard(const QString& name, const QSize& picture, QWidget* parent);

  QSize Room() const { return room_; }
  // Of the file that the card stands for; empty when it stands for a command.
  const QString& Path() const { return path_; }
  void SetPath(const QString& path) { path_ = path; }
  // In the display's pixels; stands in the middle of its room.
  void SetPicture(const QImage& picture);
  bool HasPicture() const { return !picture_.isNull(); }
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QSize room_;
  QString path_;
  QImage picture_;
};

}  // namespace plenovia
