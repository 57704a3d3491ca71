// Files that are dropped onto the frame from another program.
#pragma once

#include <QMimeData>
#include <QObject>
#include <QStringList>

namespace plenovia {

class TPlenoviaWnd;

// The paths of the files of this machine among what is dragged; folders and what lies elsewhere are
// left out.
QStringList DroppedFiles(const QMimeData& data);

// Lets files be dropped anywhere on the frame and its document windows, and opens each as the
// command Open would. Refuses them while that command is gray and while a dialog waits.
class FileDrop : public QObject {
 public:
  // Belongs to the frame.
  explicit FileDrop(TPlenoviaWnd& frame);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool MayOpen() const;

  TPlenoviaWnd& frame_;
};

}  // namespace plenovia
