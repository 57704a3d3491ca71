#include "app/start_page.h"

#include <QEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <utility>

#include "app/command_context.h"
#include "app/desk.h"
#include "app/enablers.h"
#include "app/file_commands.h"
#include "app/help_window.h"
#include "app/program_state.h"
#include "app/sample_files.h"
#include "app/start_card.h"
#include "documents/ui/commands.h"
#include "images/ui/math_dlg.h"
#include "platform/ui/resource_pictures.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr QSize kStepRoom(128, 36);
constexpr QSize kFileRoom(128, 96);
constexpr int kStepPicture = 32;
constexpr int kMargin = 16;
constexpr int kGap = 8;
// A card in the next row is nearer than any in the row after it.
constexpr int kRowWeight = 10000;

}  // namespace

StartPage::Section::Section(const QString& title, QWidget* content)
    : heading(new QLabel(title, content)) {
  QFont font = heading->font();
  font.setBold(true);
  heading->setFont(font);
}

StartPage::StartPage(CommandContext& context)
    : QScrollArea(context.desk.Area().viewport()),
      context_(context),
      thumbnails_(new ThumbnailMaker(this)),
      content_(new QWidget),
      steps_(tr("Start"), content_),
      recent_(tr("Recent files"), content_),
      samples_(tr("Samples"), content_) {
  setObjectName(QStringLiteral("startPage"));
  setAccessibleName(tr("Start"));
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidget(content_);

  const auto command = [this](int number) {
    return [this, number] {
      if (IsIdle(context_)) context_.runLater(number);
    };
  };
  AddStep(tr("Open..."), kCmOpen, tr("Open a picture or a depth map"), command(kCmOpen));
  AddStep(tr("Draw a scene"), kCmNew, tr("Draw the shapes of a depth map"), command(kCmNew));
  AddStep(tr("Figure..."), kCmMakeSirds, tr("Make a stereogram of a mathematical figure"),
          [this] { ChooseFigure(); });
  AddStep(tr("Wizard"), kCmWizard, tr("Make a stereogram step by step"), command(kCmWizard));
  AddStep(tr("How to see"), kCmHelpIndex, tr("Learn to see the depth in a stereogram"),
          [this] { context_.help().ShowTopic(QStringLiteral("How to See a Stereogram")); });
  for (const QString& path : SampleFiles()) AddFile(samples_, path, tr("Sample"));

  parentWidget()->installEventFilter(this);
  connect(&context_.state, &ProgramState::FilesChanged, this, &StartPage::FillRecent);
  connect(thumbnails_, &ThumbnailMaker::Made, this,
          [this](const QString& path, const Thumbnail& made) {
            for (StartCard* card : Cards()) {
              if (card->Path() == path) card->SetPicture(made.image);
            }
          });
  Update();
}

void StartPage::AddStep(const QString& name, int picture, const QString& hint,
                        const std::function<void()>& chosen) {
  auto* card = new StartCard(name, kStepRoom, content_);
  card->setStatusTip(hint);
  card->setAccessibleDescription(hint);
  const QSize size(kStepPicture, kStepPicture);
  card->SetPicture(DrawnPicture(ButtonPictureFile(picture), size, devicePixelRatioF()).toImage());
  AddCard(steps_, *card, chosen);
}

void StartPage::AddFile(Section& section, const QString& path, const QString& description) {
  auto* card = new StartCard(QFileInfo(path).fileName(), kFileRoom, content_);
  card->SetPath(path);
  card->setToolTip(path);
  card->setStatusTip(path);
  card->setAccessibleDescription(description + QStringLiteral(": ") + path);
  AddCard(section, *card, [this, path] {
    if (IsIdle(context_)) OpenByName(context_, path);
  });
}

void StartPage::AddCard(Section& section, StartCard& card, const std::function<void()>& chosen) {
  section.cards.push_back(&card);
  card.installEventFilter(this);
  // Later, as the card may go when a file opens.
  connect(&card, &StartCard::clicked, this, chosen, Qt::QueuedConnection);
  card.show();
}

void StartPage::FillRecent() {
  if (isHidden()) return;
  for (StartCard* card : recent_.cards) {
    card->hide();
    card->deleteLater();
  }
  recent_.cards.clear();
  for (const auto& file : context_.state.recentFiles.Existing()) {
    AddFile(recent_, PathToQString(file), tr("Recent file"));
  }
  const std::vector<StartCard*> cards = Cards();
  for (std::size_t i = 1; i < cards.size(); ++i) setTabOrder(cards[i - 1], cards[i]);
  Arrange();
  asked_ = false;
}

void StartPage::ChooseFigure() {
  if (!IsIdle(context_)) return;
  MathDlg dialog(&context_.frame);
  if (dialog.exec() != QDialog::Accepted || dialog.SelectedIndex() < 0) return;
  context_.runLater(kCmFirstFigure + dialog.SelectedIndex());
}

void StartPage::Update() {
  const bool empty = context_.desk.Area().subWindowList().isEmpty();
  if (empty != isHidden()) return;
  setVisible(empty);
  if (!empty) return;
  setGeometry(parentWidget()->rect());
  FillRecent();
  steps_.cards.front()->setFocus();
}

void StartPage::AskThumbnails() {
  thumbnails_->DropWaiting();
  for (const StartCard* card : Cards()) {
    if (!card->HasPicture()) thumbnails_->Ask(card->Path(), card->Room() * devicePixelRatioF());
  }
}

void StartPage::Arrange() {
  const int width = viewport()->width();
  int y = kMargin;
  for (const Section* section : {&steps_, &recent_, &samples_}) {
    section->heading->setVisible(!section->cards.empty());
    if (section->cards.empty()) continue;
    section->heading->adjustSize();
    section->heading->move(kMargin, y);
    y += section->heading->height() + kGap;
    const QSize card = section->cards.front()->sizeHint();
    const int columns = std::max(1, (width - 2 * kMargin + kGap) / (card.width() + kGap));
    int column = 0;
    for (StartCard* each : section->cards) {
      if (column == columns) {
        column = 0;
        y += card.height() + kGap;
      }
      each->setGeometry(QRect(QPoint(kMargin + column * (card.width() + kGap), y), card));
      ++column;
    }
    y += card.height() + kMargin;
  }
  content_->resize(width, std::max(y, viewport()->height()));
}

bool StartPage::MoveFocus(const StartCard& from, int key) {
  const bool across = key == Qt::Key_Left || key == Qt::Key_Right;
  if (!across && key != Qt::Key_Up && key != Qt::Key_Down) return false;
  const int direction = key == Qt::Key_Left || key == Qt::Key_Up ? -1 : 1;
  const auto cards = Cards();
  if (across) {
    const auto place = std::find(cards.begin(), cards.end(), &from) - cards.begin() + direction;
    if (place >= 0 && place < std::ssize(cards)) {
      cards[static_cast<std::size_t>(place)]->setFocus(Qt::TabFocusReason);
    }
    return true;
  }
  StartCard* nearest = nullptr;
  int least = std::numeric_limits<int>::max();
  for (StartCard* card : cards) {
    const QPoint way = card->geometry().center() - from.geometry().center();
    const int distance = way.y() * direction * kRowWeight + std::abs(way.x());
    if (way.y() * direction <= 0 || distance >= least) continue;
    least = distance;
    nearest = card;
  }
  if (nearest != nullptr) nearest->setFocus(Qt::TabFocusReason);
  return true;
}

std::vector<StartCard*> StartPage::Cards() const {
  std::vector<StartCard*> cards;
  for (const Section* section : {&steps_, &recent_, &samples_}) {
    cards.insert(cards.end(), section->cards.begin(), section->cards.end());
  }
  return cards;
}

bool StartPage::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (watched == parentWidget()) {
    if (type == QEvent::Resize) setGeometry(parentWidget()->rect());
    if (type == QEvent::ChildAdded || type == QEvent::ChildRemoved) {
      QMetaObject::invokeMethod(this, &StartPage::Update, Qt::QueuedConnection);
    }
  } else if (auto* card = qobject_cast<StartCard*>(watched)) {
    if (type == QEvent::KeyPress) {
      return MoveFocus(*card, static_cast<QKeyEvent*>(event)->key());
    }
    if (type == QEvent::FocusIn) ensureWidgetVisible(card, 0, kMargin);
    if (type == QEvent::Paint && !std::exchange(asked_, true)) {
      QTimer::singleShot(0, this, &StartPage::AskThumbnails);
    }
  }
  return QScrollArea::eventFilter(watched, event);
}

void StartPage::resizeEvent(QResizeEvent* event) {
  QScrollArea::resizeEvent(event);
  Arrange();
}

void StartPage::changeEvent(QEvent* event) {
  QScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange) Arrange();
}

}  // namespace plenovia
