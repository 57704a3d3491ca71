#include "app/info_commands.h"

#include <QScreen>
#include <array>
#include <cstdint>

#include "app/about_dialog.h"
#include "app/help_window.h"
#include "app/plenovia_wnd.h"
#include "codec/graph_io.h"
#include "figures/sirdmath.h"
#include "platform/ui/message_box.h"
#include "platform/ui/private_message.h"
#include "platform/ui/text.h"

namespace plenovia {

void CmHelpIndex(TPlenoviaWnd& frame) {
  frame.Help().ShowIndex();
}

void CmHelpSirds(TPlenoviaWnd& frame) {
  frame.Help().ShowTopic(QStringLiteral("Plenovia Overview"));
}

void CmAbout(TPlenoviaWnd& frame) {
  TAboutDialog(&frame).exec();
}

void CmGraphicsLib(TPlenoviaWnd& frame) {
  ShowMessage(&frame, ToQString(TGraphIO::GetVersionString()), TPlenoviaWnd::tr("Graphics Library"),
              MessageIcon::kInformation);
}

void CmVersion(TPlenoviaWnd& frame) {
  std::array<char, 20> version{};
  _GetLibVersion(version.data());
  ShowMessage(&frame,
              TPlenoviaWnd::tr("Math Library Version %1").arg(QString::fromLatin1(version.data())),
              QStringLiteral("Plenovia"), MessageIcon::kInformation);
}

void CmVideoInformation(TPlenoviaWnd& frame) {
  const qulonglong colours = std::uint64_t{1} << frame.screen()->depth();
  ShowMessage(&frame,
              TPlenoviaWnd::tr("The current video driver is\rset for %1 colors.\r Plenovia may not "
                               "work with some video drivers with more than 256 colors.")
                  .arg(colours),
              TPlenoviaWnd::tr("Video Information"), MessageIcon::kInformation);
}

void CmStopProcess(TPlenoviaWnd& frame) {
  PostPrivateMessage(&frame, WM_STOPPROCESS);
  frame.SetProcessState(true);
}

void CmExit(TPlenoviaWnd& frame) {
  frame.close();
}

}  // namespace plenovia
