#include "app/plenovia_app.h"

#include "app/command_table.h"
#include "app/frame_placement.h"
#include "app/settings_path.h"
#include "images/ui/welcome.h"
#include "platform/ui/resource_pictures.h"

namespace plenovia {

void TPlenoviaApp::InitMainWindow() {
  // A file that cannot be read is as none.
  const ProfileFile settings = ProfileFile::Load(SettingsPath()).value_or(ProfileFile());
  auto* welcome = new TWelcome(QStringLiteral("Plenovia"), QStringLiteral(":/start_up.svg"), 0,
                               LoadFrameRect(settings));
  welcome->setAttribute(Qt::WA_DeleteOnClose);
  welcome->ShowNow();
  frame_ = std::make_unique<TPlenoviaWnd>(settings, welcome);
  ShowBusyCursor(*frame_, true);
  const int location = settings.GetInt("Tools", "CntlBar", 0);
  frame_->InsertBars(location < 0 || location > 2 ? 0 : location);
  frame_->Commands().SetApplicationCommand(kCmRelocateBar, [this] { CmRelocateBar(); });
  frame_->SetupWindow(settings);
}

void TPlenoviaApp::CmRelocateBar() {
  frame_->PlaceMainBar((frame_->BarLocation() + 1) % 3);
}

}  // namespace plenovia
