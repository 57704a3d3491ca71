#include "app/button_bar.h"

#include <QLayout>
#include <QMouseEvent>
#include <QStatusTipEvent>

#include "app/bar_button.h"
#include "platform/ui/private_message.h"

namespace plenovia {

namespace {

constexpr int kNoCommand = -1;
constexpr int kSeparatorCommand = 0;

}  // namespace

ButtonBar::ButtonBar(QWidget* frame, int pictureSize)
    : QToolBar(frame),
      frame_(frame),
      pictureSize_(pictureSize),
      exclusive_(new QActionGroup(this)) {
  setMovable(false);
  setFloatable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setMouseTracking(true);
  layout()->setSpacing(0);
}

void ButtonBar::AddCommand(QAction* action) {
  addWidget(new BarButton(action, pictureSize_, this));
}

void ButtonBar::AddExclusive(QAction* action) {
  action->setCheckable(true);
  exclusive_->addAction(action);
  AddCommand(action);
}

void ButtonBar::AddSeparator(int size) {
  auto* space = new QWidget(this);
  space->setFixedSize(size, size);
  space->setMouseTracking(true);
  addWidget(space);
}

void ButtonBar::PressButton(int command) {
  const BarButton* button = Find(command);
  if (button == nullptr || button->defaultAction()->actionGroup() != exclusive_) return;
  button->defaultAction()->setChecked(true);
}

void ButtonBar::SetFace(int command, const QPixmap& face) {
  if (BarButton* button = Find(command)) button->SetFace(face);
}

QToolButton* ButtonBar::FindButton(int command) const {
  return Find(command);
}

BarButton* ButtonBar::Find(int command) const {
  return findChild<BarButton*>(QStringLiteral("button%1").arg(command));
}

bool ButtonBar::event(QEvent* event) {
  if (event->type() == QEvent::StatusTip) {
    Q_EMIT HintChanged(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
  }
  return QToolBar::event(event);
}

void ButtonBar::changeEvent(QEvent* event) {
  QToolBar::changeEvent(event);
  if (event->type() == QEvent::StyleChange) layout()->setSpacing(0);
}

void ButtonBar::mouseMoveEvent(QMouseEvent* event) {
  const QWidget* under = childAt(event->position().toPoint());
  if (!event->buttons().testFlag(Qt::LeftButton)) pressing_ = false;
  if (pressing_) {
    if (under != nullptr) Report(kNoCommand);
    return;
  }
  const auto* button = qobject_cast<const BarButton*>(under);
  if (button != nullptr) {
    Report(button->command());
  } else {
    Report(under != nullptr ? kSeparatorCommand : kNoCommand);
  }
}

void ButtonBar::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QWidget* under = childAt(event->position().toPoint());
  pressing_ = qobject_cast<const BarButton*>(under) != nullptr && under->isEnabled();
  if (under != nullptr) Report(kNoCommand);
}

void ButtonBar::leaveEvent(QEvent* event) {
  QToolBar::leaveEvent(event);
  Report(kNoCommand);
}

void ButtonBar::Report(int command) {
  SendPrivateMessage(frame_, PrivateMessage(WM_BUTTONHINT, command));
}

}  // namespace plenovia
