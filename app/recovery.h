// Unsaved depth maps, kept in files so that a program that ends suddenly loses none.
#pragma once

#include <QLockFile>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QThreadPool>
#include <QTimer>
#include <atomic>
#include <cstdint>
#include <memory>
#include <vector>

#include "depthmap/ui/map_window.h"

namespace plenovia {

struct CommandContext;

// While it lives, every map with unsaved changes is in a file that is at most three seconds older
// than the map. The files lie in a folder of their own for each program that runs, below the user's
// data folder; they go when their map is saved or closed, and with this object. They are written on
// a thread of their own.
class Recovery : public QObject {
  Q_OBJECT

 public:
  // `context` outlives it. `folder` holds the folders of all programs.
  Recovery(CommandContext& context, const QString& folder);
  ~Recovery() override;

  // "plenovia/recovery" in the user's data folder ($XDG_DATA_HOME).
  static QString Folder();

  // Asks the user about the maps of programs that ended without this object's end, if there are
  // any: they are opened, given up, or kept until they are offered again.
  void Offer();
  // Does now what is done every few seconds, and waits until it is written.
  void KeepNow();

 private:
  struct Kept {
    QPointer<TMapWindow> map;
    QString name;               // of its files, without an extension
    std::uint64_t known = 0;    // contents of a map in which nothing was done
    std::uint64_t written = 0;  // contents of the file; 0 when there is none
  };
  struct Lost {
    std::unique_ptr<QLockFile> lock;
    QString folder;
    QStringList maps;  // files
  };

  void Look();
  void Watch(TMapWindow& map, std::uint64_t known);
  void Keep(Kept& kept);
  void Remove(const QString& name);
  std::vector<Lost> FindLost() const;
  bool Open(const QString& file);

  CommandContext& context_;
  QString all_;
  QString own_;
  std::unique_ptr<QLockFile> lock_;
  std::vector<Kept> kept_;
  int count_ = 0;
  QThreadPool writer_;
  std::atomic<bool> failed_ = false;
  QTimer timer_;
};

}  // namespace plenovia
