#include "app/desk.h"

#include <QColor>
#include <QLayout>
#include <vector>

#include "app/cascade.h"
#include "app/unsaved_dialog.h"
#include "platform/ui/private_message.h"

namespace plenovia {

Desk::Desk(QWidget* frame) : QObject(frame), area_(new QMdiArea(frame)) {
  area_->setObjectName(QStringLiteral("documents"));
  area_->setBackground(QColor(192, 192, 192));
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
  connect(area_, &QMdiArea::subWindowActivated, this, &Desk::StateChanged);
}

Document* Desk::Active() const {
  return qobject_cast<Document*>(area_->currentSubWindow());
}

void Desk::Adopt(Document& window) {
  connect(&window, &Document::StateChanged, this, &Desk::StateChanged);
  connect(&window, &Document::ToolChanged, this, &Desk::ToolChanged);
  window.SetDistinctTitle(window.GetTitle());
  if (area_->subWindowList().size() <= 1) cascaded_ = 0;
  window.PlaceAt({CascadeCorner(cascaded_++, window), window.size()});
  window.show();
  area_->setActiveSubWindow(&window);
}

Desk::Documents Desk::Unsaved(const Documents& settled) const {
  Documents unsaved;
  for (QMdiSubWindow* window : area_->subWindowList()) {
    auto* document = qobject_cast<Document*>(window);
    if (document == nullptr || !document->NeedsSaving() || settled.contains(document)) continue;
    unsaved << document;
  }
  return unsaved;
}

bool Desk::AskAboutAll(const Documents& unsaved) {
  QStringList titles;
  for (const auto& document : unsaved) titles << document->GetTitle();
  UnsavedDialog dialog(area_->window(), titles);
  if (dialog.exec() != QDialog::Accepted) return false;
  const std::vector<bool> checked = dialog.Checked();
  for (qsizetype i = 0; i < unsaved.size(); ++i) {
    const auto& document = unsaved[i];
    // A window may have closed meanwhile.
    if (document == nullptr || !area_->subWindowList().contains(document)) continue;
    if (!checked[static_cast<std::size_t>(i)]) continue;
    SendPrivateMessage(document->Frame(), PrivateMessage(WM_SAVECHILD, document));
    if (document != nullptr && document->NeedsSaving()) return false;
  }
  return true;
}

bool Desk::AllMayClose() {
  // A run that ends while the user is asked leaves something new to ask about.
  Documents settled;
  for (Documents unsaved = Unsaved(settled); !unsaved.isEmpty(); unsaved = Unsaved(settled)) {
    if (unsaved.size() > 1) {
      if (!AskAboutAll(unsaved)) return false;
    } else {
      area_->setActiveSubWindow(unsaved.constFirst());
      if (!unsaved.constFirst()->CanClose()) return false;
    }
    settled << unsaved;
  }
  return true;
}

void Desk::CloseDocuments() {
  for (QMdiSubWindow* window : area_->subWindowList()) {
    if (auto* document = qobject_cast<Document*>(window)) document->CloseUnasked();
  }
}

void Desk::RepaintNow() {
  area_->viewport()->repaint();
}

void Desk::FitDocuments() {
  // The frame's bars take their room first.
  if (QLayout* bars = area_->window()->layout()) bars->activate();
  for (QMdiSubWindow* window : area_->subWindowList()) {
    auto* document = qobject_cast<Document*>(window);
    if (document == nullptr || document->isMaximized() || document->isMinimized()) continue;
    document->PlaceAt(document->geometry());
  }
}

}  // namespace plenovia
