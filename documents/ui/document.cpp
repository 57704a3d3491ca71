#include "documents/ui/document.h"

#include <QSet>
#include <algorithm>

#include "platform/ui/message_box.h"
#include "platform/ui/private_message.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr std::int64_t kBytesInK = 1000;

}  // namespace

Document::Document(QMdiArea* client, const QString& title, QWidget* frame) : frame_(frame) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(title);
  client->addSubWindow(this);
  activation_ =
      connect(client, &QMdiArea::subWindowActivated, this, [this, client](QMdiSubWindow* window) {
        // No window is told when the program goes to the background: then the current one stays.
        const QMdiSubWindow* current = window != nullptr ? window : client->currentSubWindow();
        if (active_ == (current == this)) return;
        active_ = !active_;
        EvMDIActivate(active_);
      });
}

Document::~Document() {
  // The area makes another window the active one while this one is half gone.
  disconnect(activation_);
}

void Document::SetDistinctTitle(const QString& title) {
  QSet<QString> others;
  for (const QMdiSubWindow* window : mdiArea()->subWindowList()) {
    if (window != this && !window->isHidden()) others << window->windowTitle();
  }
  QString distinct = title;
  for (int n = 2; others.contains(distinct); ++n) {
    distinct = QStringLiteral("%1 %2").arg(title).arg(n);
  }
  setWindowTitle(distinct);
}

void Document::SetFile(const QString& path) {
  file_ = path;
  SetDistinctTitle(BaseNameTitle(path));
}

QString Document::ProposedFile() const {
  if (!file_.isEmpty()) return file_;
  return proposed_.isEmpty() ? GetTitle() : proposed_;
}

bool Document::CanClose() {
  if (NeedsSaving()) {
    const QPointer<Document> self(this);
    const Answer answer = AskYesNoCancel(
        window(), tr("Save\r %s\r before closing?").replace(QStringLiteral("%s"), GetTitle()),
        tr("Confirm"));
    if (!self || answer == Answer::kCancel) return false;
    if (answer == Answer::kYes) {
      SendPrivateMessage(frame_, PrivateMessage(WM_SAVECHILD, this));
      if (!self || NeedsSaving()) return false;
    }
  }
  PostPrivateMessage(frame_, WM_UPDATESTATUS);
  return true;
}

void Document::CloseUnasked() {
  asksToClose_ = false;
  close();
}

void Document::PlaceAt(QRect place) {
  const QSize desk = parentWidget()->size();
  if (parentWidget()->isVisible()) {
    place.setSize(place.size().boundedTo(desk));
    place.moveLeft(std::clamp(place.left(), 0, desk.width() - place.width()));
    place.moveTop(std::clamp(place.top(), 0, desk.height() - place.height()));
  }
  setGeometry(place);
}

void Document::closeEvent(QCloseEvent* event) {
  if (!asksToClose_ || CanClose()) {
    QMdiSubWindow::closeEvent(event);
  } else {
    event->ignore();
  }
}

DocumentStatus PictureStatus(int width, int height, int bitsPerPixel, std::int64_t bytes) {
  return {
      QStringLiteral("%1 x %2 x %3").arg(width).arg(height).arg(std::int64_t{1} << bitsPerPixel),
      Document::tr("Image: %1 K").arg(bytes / kBytesInK)};
}

}  // namespace plenovia
