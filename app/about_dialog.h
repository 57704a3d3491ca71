// The box that says what this program is.
#pragma once

#include <QDialog>

namespace plenovia {

class TAboutDialog : public QDialog {
  Q_OBJECT

 public:
  explicit TAboutDialog(QWidget* parent);
};

}  // namespace plenovia
