#include "app/info_commands.h"

#include <QScreen>
#include <array>
#include <cstdint>

#include "app/about_dialog.h"
#include "app/busy_state.h"
#include "app/command_context.h"
#include "app/help_window.h"
#include "codec/graph_io.h"
#include "figures/sirdmath.h"
#include "platform/ui/message_box.h"
#include "platform/ui/private_message.h"
#include "platform/ui/text.h"

namespace plenovia {

void CmHelpIndex(CommandContext& context) {
  context.help().ShowIndex();
}

void CmHelpSirds(CommandContext& context) {
  context.help().ShowTopic(QStringLiteral("Plenovia Overview"));
}

void CmAbout(CommandContext& context) {
  TAboutDialog(&context.frame).exec();
}

void CmGraphicsLib(CommandContext& context) {
  ShowMessage(&context.frame, ToQString(TGraphIO::GetVersionString()),
              Commands::tr("Graphics Library"), MessageIcon::kInformation);
}

void CmVersion(CommandContext& context) {
  std::array<char, 20> version{};
  _GetLibVersion(version.data());
  ShowMessage(&context.frame,
              Commands::tr("Math Library Version %1").arg(QString::fromLatin1(version.data())),
              QStringLiteral("Plenovia"), MessageIcon::kInformation);
}

void CmVideoInformation(CommandContext& context) {
  const qulonglong colours = std::uint64_t{1} << context.frame.screen()->depth();
  ShowMessage(&context.frame,
              Commands::tr("The current video driver is\rset for %1 colors.\r Plenovia may not "
                           "work with some video drivers with more than 256 colors.")
                  .arg(colours),
              Commands::tr("Video Information"), MessageIcon::kInformation);
}

void CmStopProcess(CommandContext& context) {
  PostPrivateMessage(&context.frame, WM_STOPPROCESS);
  context.busy.SetProcessState(true);
}

void CmExit(CommandContext& context) {
  context.frame.close();
}

}  // namespace plenovia
