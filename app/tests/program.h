// The whole program, run by a test.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QString>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "app/command_table.h"
#include "app/plenovia_app.h"
#include "app/status_bar.h"
#include "engine/ui/sirds_wnd.h"
#include "platform/indexed_image.h"
#include "testing/temp_folder.h"
#include "testing/ui/dialog_answers.h"

namespace plenovia {

// Each test starts the program with a settings folder of its own, which is empty unless the test
// writes into it before.
class ProgramTest : public testing::Test {
 protected:
  ProgramTest();
  ~ProgramTest() override;

  void Start();
  // Closes the frame; true when it did close.
  bool Stop();
  std::filesystem::path SettingsFile() const;
  void WriteSettings(const std::string& text) const;

  TPlenoviaWnd& Frame() { return app_->Frame(); }
  TSirdsWnd* ActivePicture() { return qobject_cast<TSirdsWnd*>(Frame().GetActiveChild()); }
  void Run(int command) { Frame().Commands().Run(command); }
  bool Available(int command) { return Frame().Commands().IsAvailable(command); }
  // Gives the command of a run, and does `during` when the run handles events for the first time.
  void RunAnd(int command, const std::function<void()>& during);
  // Handles all events that wait, those that they cause too.
  static void Settle();

  // A file with a picture of even noise in 64 colours.
  QString PictureFile(const std::string& name, int width, int height) const;
  TSirdsWnd* Open(const QString& path);
  // A window with a picture that is not from a file.
  TSirdsWnd* AddPicture(const std::shared_ptr<const IndexedImage>& picture);

  TempFolder folder_;
  std::unique_ptr<TPlenoviaApp> app_;
};

std::shared_ptr<const IndexedImage> NoisePicture(int width, int height, int colours);

}  // namespace plenovia
