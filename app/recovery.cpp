#include "app/recovery.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>
#include <chrono>
#include <utility>

#include "app/command_context.h"
#include "app/desk.h"
#include "depthmap/depth_map_file.h"
#include "platform/file_io.h"
#include "platform/ui/message_box.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr std::chrono::seconds kInterval{2};
constexpr QSize kSizeBeforeFile(400, 400);

QString MapFile(const QString& name) {
  return name + QStringLiteral(".rds");
}
// Holds the path of the map's own file, or its title when it has none.
QString OriginFile(const QString& name) {
  return name + QStringLiteral(".txt");
}

QString OriginOf(const QString& mapFile) {
  QFile file(OriginFile(mapFile.chopped(4)));
  if (!file.open(QIODevice::ReadOnly)) return {};
  constexpr qint64 kLongestPath = 4096;
  return QString::fromUtf8(file.read(kLongestPath));
}

std::unique_ptr<QLockFile> LockOf(const QString& folder) {
  auto lock = std::make_unique<QLockFile>(folder + QStringLiteral("/lock"));
  lock->setStaleLockTime(0);  // held as long as its program lives
  return lock;
}

}  // namespace

Recovery::Recovery(CommandContext& context, const QString& folder)
    : context_(context), all_(folder) {
  own_ = QStringLiteral("%1/%2-%3")
             .arg(folder)
             .arg(QDateTime::currentMSecsSinceEpoch())
             .arg(QCoreApplication::applicationPid());
  writer_.setMaxThreadCount(1);  // so that the files are written in order
  timer_.setInterval(kInterval);
  connect(&timer_, &QTimer::timeout, this, &Recovery::Look);
  timer_.start();
}

Recovery::~Recovery() {
  timer_.stop();
  writer_.waitForDone();
  if (!lock_) return;
  lock_->unlock();
  QDir(own_).removeRecursively();
}

QString Recovery::Folder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
         QStringLiteral("/plenovia/recovery");
}

void Recovery::KeepNow() {
  Look();
  writer_.waitForDone();
}

void Recovery::Look() {
  if (failed_.exchange(false)) {
    for (Kept& kept : kept_) kept.written = 0;
  }
  for (QMdiSubWindow* window : context_.desk.Area().subWindowList()) {
    auto* map = qobject_cast<TMapWindow*>(window);
    if (map == nullptr) continue;
    const bool isKnown =
        std::ranges::any_of(kept_, [&](const Kept& kept) { return kept.map == map; });
    if (!isKnown) Watch(*map, map->IsUntouched() ? map->Objects().Contents() : 0);
  }
  for (Kept& kept : kept_) Keep(kept);
  std::erase_if(kept_, [](const Kept& kept) { return !kept.map; });
}

void Recovery::Watch(TMapWindow& map, std::uint64_t known) {
  kept_.push_back({&map, QStringLiteral("%1/%2").arg(own_).arg(++count_), known});
  connect(&map, &QObject::destroyed, this, &Recovery::Look, Qt::QueuedConnection);
  connect(&map, &TMapWindow::StateChanged, this, [this, window = &map] {
    const auto kept =
        std::ranges::find(kept_, window, [](const Kept& of) { return of.map.data(); });
    if (kept != kept_.end() && window->IsSaved()) Keep(*kept);
  });
}

void Recovery::Keep(Kept& kept) {
  const auto isNew = [&] {
    return kept.map->File().isEmpty() && kept.map->Objects().Contents() == kept.known;
  };
  const bool needed = kept.map && kept.map->NeedsSaving() && !isNew();
  if (!needed) {
    if (std::exchange(kept.written, 0) != 0) Remove(kept.name);
    return;
  }
  const std::uint64_t contents = kept.map->Objects().Contents();
  if (contents == kept.written) return;
  auto bytes = EncodeDepthMap(kept.map->Objects());
  if (!bytes) return;
  if (!lock_) {
    QDir().mkpath(own_);
    lock_ = LockOf(own_);
    lock_->tryLock(0);
  }
  kept.written = contents;
  const QString file = kept.map->File();
  const QByteArray origin = (file.isEmpty() ? kept.map->GetTitle() : file).toUtf8();
  writer_.start([this, name = kept.name, origin, map = std::move(*bytes)] {
    const auto* text = reinterpret_cast<const std::uint8_t*>(origin.constData());
    const std::span originBytes(text, static_cast<std::size_t>(origin.size()));
    const bool written = WriteFile(ToPath(OriginFile(name)), originBytes) &&
                         WriteFile(ToPath(MapFile(name)), std::span<const std::uint8_t>(map));
    if (!written) failed_ = true;
  });
}

void Recovery::Remove(const QString& name) {
  writer_.start([name] {
    QFile::remove(MapFile(name));
    QFile::remove(OriginFile(name));
  });
}

std::vector<Recovery::Lost> Recovery::FindLost() const {
  std::vector<Lost> found;
  for (const QString& name : QDir(all_).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
    Lost lost{nullptr, all_ + u'/' + name, {}};
    if (lost.folder == own_) continue;
    lost.lock = LockOf(lost.folder);
    if (!lost.lock->tryLock(0)) continue;  // its program lives
    for (const QFileInfo& file :
         QDir(lost.folder).entryInfoList({QStringLiteral("*.rds")}, QDir::Files, QDir::Name)) {
      lost.maps << file.absoluteFilePath();
    }
    found.push_back(std::move(lost));
  }
  return found;
}

bool Recovery::Open(const QString& file) {
  const QString origin = OriginOf(file);
  const bool hasFile = origin.contains(u'/');
  const auto bytes = ReadFile(ToPath(file));
  auto* map = new TMapWindow(&context_.desk.Area(), hasFile ? origin : Commands::tr("untitled"),
                             kSizeBeforeFile.width(), kSizeBeforeFile.height(), &context_.frame);
  if (!bytes || !map->ReadRecovered(std::span(*bytes))) {
    delete map;
    return false;
  }
  if (hasFile) map->SetFile(origin);
  context_.desk.Adopt(*map);
  Watch(*map, 0);
  return true;
}

void Recovery::Offer() {
  std::vector<Lost> all = FindLost();
  QStringList names;
  for (const Lost& lost : all) {
    for (const QString& file : lost.maps) names << BaseNameTitle(OriginOf(file));
  }
  Answer answer = Answer::kNo;
  if (!names.isEmpty()) {
    constexpr qsizetype kMostNames = 10;
    QString shown = names.mid(0, kMostNames).join(QStringLiteral("\r "));
    if (names.size() > kMostNames) shown += QStringLiteral("\r ...");
    answer = AskYesNoCancel(
        &context_.frame,
        Commands::tr(
            "Plenovia ended before these depth maps were saved:\r %1\r"
            "Open them as they were? No gives them up, Cancel keeps them for the next time.")
            .arg(shown),
        Commands::tr("Recovery"));
  }
  if (answer == Answer::kCancel) return;
  for (const Lost& lost : all) {
    bool allOpen = true;
    if (answer == Answer::kYes) {
      for (const QString& file : lost.maps) allOpen = Open(file) && allOpen;
      KeepNow();
    }
    if (!allOpen || failed_) continue;  // nothing goes that is nowhere else
    lost.lock->unlock();
    QDir(lost.folder).removeRecursively();
  }
}

}  // namespace plenovia
