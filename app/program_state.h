// What all windows and commands of the program share.
#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "app/new_map_size.h"
#include "app/recent_files.h"
#include "engine/sirds_settings.h"
#include "images/sird_patt.h"
#include "images/ui/clipboard.h"
#include "images/ui/printer_int.h"
#include "platform/on_demand.h"
#include "sources/formula.h"

namespace plenovia {

class ProgramState : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  // The one record of stereogram parameters.
  TSirdsSettings settings;
  // The formula that a stereogram was made of last.
  Formula formula = FormulaExamples().front().formula;
  // The pattern library, read from its files when it is first needed; null before the settings are
  // loaded.
  OnDemand<TSirdPatt> patterns;
  ClipboardPictures clipboard;
  // GraphicFormat of the file that was opened or saved last.
  int lastFormat = 1;
  // GraphicFormat of the last lossless picture format that was saved: PNG at first.
  int saveFormat = 6;
  // Whether stereograms are saved with what made them.
  bool keepsRecipes = true;
  RecentFiles recentFiles;
  NewMapSize newMapSize;
  // Where the open dialog found a file last; empty before.
  QString openFolder;
  // Null until the frame is shown.
  std::unique_ptr<TPrinterInt> printer;

  // A file was opened or saved.
  void NoteFile(const QString& path);

 Q_SIGNALS:
  // The recent files or the folder to open from.
  void FilesChanged();
  // Another pattern may be the current one.
  void PatternChanged();
  // The record was changed by no command.
  void SettingsChanged();
};

}  // namespace plenovia
