// Live View in the frame: what it follows, and where it is from one start to the next.
#pragma once

#include <QMainWindow>
#include <QObject>

#include "live/ui/live_dock.h"
#include "live/ui/live_model.h"
#include "platform/profile_file.h"

namespace plenovia {

struct CommandContext;
class CommandRouter;

class LiveHost : public QObject {
  Q_OBJECT

 public:
  // Adds the dock to `frame`. Where the settings say nothing, it is open when the screen has room.
  LiveHost(QMainWindow& frame, CommandContext& context, CommandRouter& commands,
           const ProfileFile& settings);
  ~LiveHost() override;

  // Section "LiveView" of the settings.
  void Store(ProfileFile& settings) const;
  // Shows the dock, or hides it.
  void Toggle();

  LiveDock& Dock() { return *dock_; }
  LiveModel& Model() { return model_; }

 Q_SIGNALS:
  // What Store() writes may have changed.
  void Changed();

 private:
  void Restore(const ProfileFile& settings);
  void CommandDone(int command);
  void Make();

  QMainWindow& frame_;
  CommandContext& context_;
  CommandRouter& commands_;
  LiveModel model_;
  LiveDock* dock_;
  int screenWidth_;
};

}  // namespace plenovia
