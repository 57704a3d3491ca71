// The platform's own dialogs for opening and saving files.
#pragma once

#include <QFileDialog>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <optional>

namespace plenovia {

// The entries of a filter text "description|pattern|description|pattern|...", in Qt's form
// ("Bitmap Files (*.BMP)" with the pattern in both cases of letters).
QStringList FilterEntries(const QString& notation);

struct FileQuestion {
  QString title;
  QString filters;           // as FilterEntries() takes them
  int preselected = 1;       // position of a filter entry, from 1; beyond the list: the first one
  QString defaultExtension;  // for names typed without one; without a dot
  QString suggestion;        // a file name to start with, or a whole path; may be empty
  QString folder;            // to start in, if it exists; empty: that of the last dialog
  QString place;             // a folder for the side bar, beside the usual ones; may be empty
  std::function<void(QFileDialog&)> extend;  // adds to a dialog that is Qt's own; may be empty
  // What the dialog says below the name while the file with this path is chosen; may be null.
  std::function<QString(const QString& path)> warning;
  // A box below that, when it has a text: `checked` is its state at first and when the dialog was
  // accepted. Only for saving.
  QString choice;
  bool* checked = nullptr;
};

// An existing file, or nothing when the user cancels.
std::optional<QString> AskOpenFile(QWidget* owner, const FileQuestion& question);
// A file in an existing folder; an existing file is not asked about. Nothing on cancel.
std::optional<QString> AskSaveFile(QWidget* owner, const FileQuestion& question);

}  // namespace plenovia
