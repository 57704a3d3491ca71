// Files that are dropped onto the frame from another program.
#pragma once

#include <QMimeData>
#include <QObject>
#include <QStringList>
#include <QWidget>
#include <functional>

namespace plenovia {

// The paths of the files of this machine among what is dragged; folders and what lies elsewhere are
// left out.
QStringList DroppedFiles(const QMimeData& data);

// Lets files be dropped anywhere on the frame and its document windows, and opens each. Refuses
// them while `mayOpen` says no and while a dialog waits.
class FileDrop : public QObject {
 public:
  // Belongs to the frame.
  FileDrop(QWidget& frame, std::function<bool()> mayOpen, std::function<void(const QString&)> open);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool MayOpen() const;

  std::function<bool()> mayOpen_;
  std::function<void(const QString&)> open_;
};

}  // namespace plenovia
