#include "app/live_host.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <string>

#include "app/command_context.h"
#include "app/command_router.h"
#include "app/desk.h"
#include "app/program_state.h"
#include "documents/ui/commands.h"

namespace plenovia {

namespace {

const std::string kSection = "LiveView";
constexpr int kRoomForDock = 1280;  // the least width of a screen on which it opens by itself
constexpr int kFirstWidth = 380;
constexpr int kWidest = 32767;

}  // namespace

LiveHost::LiveHost(QMainWindow& frame, CommandContext& context, CommandRouter& commands,
                   const ProfileFile& settings)
    : QObject(&frame),
      frame_(frame),
      context_(context),
      commands_(commands),
      model_(this, context.state.settings, [&context] { return context.state.patterns.get(); }),
      dock_(nullptr),
      screenWidth_(settings.GetInt(kSection, "ScreenWidth", 0)) {
  const int view = settings.GetInt(kSection, "View", 1);
  model_.SetView(static_cast<LiveView>(std::clamp(view, 1, kLiveViews)));
  model_.SetFit(settings.GetInt(kSection, "Fit", 1) != 0);
  dock_ = new LiveDock(&frame, model_, screenWidth_);
  Restore(settings);

  connect(&context.desk, &Desk::StateChanged, &model_,
          [this] { model_.Follow(context_.desk.Active()); });
  connect(&commands, &CommandRouter::CommandDone, this, &LiveHost::CommandDone);
  connect(&context.state, &ProgramState::SettingsChanged, &model_, &LiveModel::Refresh);
  connect(&context.state, &ProgramState::PatternChanged, &model_, &LiveModel::Refresh);
  connect(&context.state, &ProgramState::FilesChanged, &model_, &LiveModel::Refresh);
  connect(&model_, &LiveModel::SettingsEdited, &context.state, &ProgramState::SettingsChanged);
  connect(&model_, &LiveModel::PatternChosen, &context.state, &ProgramState::PatternChanged);
  connect(&model_, &LiveModel::PatternChosen, this, &LiveHost::Changed);
  connect(dock_, &LiveDock::MakeAsked, this, &LiveHost::Make);
  connect(dock_, &LiveDock::ScreenWidthChosen, this, [this](int width) {
    screenWidth_ = width;
    Q_EMIT Changed();
  });
  connect(dock_, &LiveDock::ViewChosen, this, &LiveHost::Changed);
  connect(dock_, &LiveDock::FitChosen, this, &LiveHost::Changed);
  connect(dock_, &LiveDock::PlaceChanged, this, &LiveHost::Changed);
}

LiveHost::~LiveHost() {
  delete dock_;
}

void LiveHost::Restore(const ProfileFile& settings) {
  const auto number = [&settings](const char* key, int missing) {
    return settings.GetInt(kSection, key, missing);
  };
  const bool left = number("Left", 0) != 0;
  frame_.addDockWidget(left ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea, dock_);
  const int width = std::clamp(number("Width", kFirstWidth), 1, kWidest);
  frame_.resizeDocks({dock_}, {width}, Qt::Horizontal);
  if (number("Floats", 0) != 0) {
    dock_->setFloating(true);
    const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
    QRect place(number("X", 0), number("Y", 0), width,
                std::clamp(number("Height", 600), 1, kWidest));
    if (!desktop.intersects(place)) place.moveTopLeft(desktop.topLeft());
    dock_->setGeometry(place);
  }
  const bool hasRoom =
      QGuiApplication::primaryScreen()->availableGeometry().width() >= kRoomForDock;
  dock_->setVisible(number("Open", hasRoom ? 1 : 0) != 0);
}

void LiveHost::Store(ProfileFile& settings) const {
  const auto set = [&settings](const char* key, int value) {
    settings.SetInt(kSection, key, value);
  };
  set("Open", dock_->isHidden() ? 0 : 1);
  set("View", static_cast<int>(model_.Shown().view));
  set("Fit", model_.Shown().fit ? 1 : 0);
  set("ScreenWidth", screenWidth_);
  set("Left", frame_.dockWidgetArea(dock_) == Qt::LeftDockWidgetArea ? 1 : 0);
  set("Floats", dock_->isFloating() ? 1 : 0);
  if (dock_->Panel() == nullptr) return;  // it has no size of its own yet
  set("Width", dock_->width());
  if (!dock_->isFloating()) return;
  set("X", dock_->x());
  set("Y", dock_->y());
  set("Height", dock_->height());
}

void LiveHost::Toggle() {
  dock_->setVisible(dock_->isHidden());
}

void LiveHost::CommandDone(int command) {
  if (IsFigureCommand(command)) {
    model_.ShowFigure(command - kCmFirstFigure);
  } else {
    model_.Refresh();
  }
}

// As the command would: from the source's own window, or as a figure.
void LiveHost::Make() {
  int command = kCmFirstFigure + model_.Figure();
  if (Document* source = model_.Source()) {
    context_.desk.Area().setActiveSubWindow(source);
    command = kCmMakeSirds;
  }
  if (commands_.IsAvailable(command)) context_.runLater(command);
}

}  // namespace plenovia
