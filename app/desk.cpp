#include "app/desk.h"

#include <QColor>
#include <QLayout>

#include "app/cascade.h"

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
  if (area_->subWindowList().size() <= 1) cascaded_ = 0;
  window.PlaceAt({CascadeCorner(cascaded_++, window), window.size()});
  window.show();
  area_->setActiveSubWindow(&window);
}

bool Desk::AllMayClose() {
  QList<QPointer<Document>> windows;
  for (QMdiSubWindow* window : area_->subWindowList()) windows << qobject_cast<Document*>(window);
  for (const auto& window : windows) {
    // A window may have closed while another one asked.
    if (window == nullptr || !area_->subWindowList().contains(window)) continue;
    area_->setActiveSubWindow(window);
    if (!window->CanClose()) return false;
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
