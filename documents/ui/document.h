// What the rest of the program knows of a document window: its file, its picture, its depth, its
// commands.
#pragma once

#include <QByteArray>
#include <QCloseEvent>
#include <QList>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QRect>
#include <QString>
#include <memory>
#include <optional>

#include "platform/indexed_image.h"
#include "platform/level_grid.h"
#include "platform/result.h"

namespace plenovia {

class TSirdPatt;
struct Notice;
struct Recipe;

enum WindowKind { kPictureWindow = 1, kDepthMapWindow = 2, kColourTableWindow = 3 };

// What the status bar shows of a document.
struct DocumentStatus {
  std::optional<QString> message;  // nothing: the message that is there stays
  QString size;
};

// What a stereogram can be made from: a picture or a grid of levels, the other one is null. Both
// stay valid when the window closes.
struct DocumentDepth {
  std::shared_ptr<const IndexedImage> picture;
  double zoom = 1.0;  // of the picture
  std::shared_ptr<const LevelGrid> levels;
};

// A child of the main frame's document area. It deletes itself when it is closed.
class Document : public QMdiSubWindow {
  Q_OBJECT

 public:
  // A hidden window in the document area `client`. `frame` receives its private messages.
  Document(QMdiArea* client, const QString& title, QWidget* frame);
  ~Document() override;

  virtual int GetWindowKind() const { return kind_; }
  virtual void SetWindowKind(int kind) { kind_ = kind; }
  // The caption: a file's name in lower case, or a title.
  QString GetTitle() const { return windowTitle(); }

  // Commands of the menu and the bars go to the active window first. A window is asked for
  // CommandEnabled() and RunCommand() only with commands that it handles.
  virtual bool HandlesCommand(int /*command*/) const { return false; }
  virtual bool CommandEnabled(int command) const { return HandlesCommand(command); }
  virtual void RunCommand(int /*command*/) {}
  // What the command would be about just now, which its text in the menu then names; empty when
  // there is nothing to name.
  virtual QString CommandSubject(int /*command*/) const { return {}; }

  // In what formats of the clipboard it takes something into itself, the best first. Paste() is
  // false when the bytes hold nothing for it.
  virtual QList<QByteArray> PasteFormats() const { return {}; }
  virtual bool Paste(const QByteArray& /*bytes*/) { return false; }

  // The file that it was read from or saved into; empty when there is none.
  const QString& File() const { return file_; }
  // The caption becomes the title, with a number behind it where another window has it.
  void SetDistinctTitle(const QString& title);
  // The caption becomes the file's name in lower case, as SetDistinctTitle() does it.
  void SetFile(const QString& path);
  // What it may be saved as: its own file, or what was proposed, or its title.
  QString ProposedFile() const;
  void ProposeFile(const QString& path) { proposed_ = path; }
  // Whether there is anything to save.
  virtual bool CanSave() const { return false; }
  // Whether it equals its file. What cannot be saved always does.
  virtual bool IsSaved() const { return true; }
  // Whether there is work that closing would lose.
  virtual bool NeedsSaving() const { return false; }
  // Writes the document into a file, takes the file's name and counts as saved. A failure leaves
  // the file that was there. Both do nothing for a window that has nothing to save.
  [[nodiscard]] virtual Result<void> Save(const QString& /*path*/) { return {}; }
  // What the status bar shows while Save() writes.
  virtual QString SavingText(const QString& /*path*/) const { return {}; }

  virtual DocumentStatus Status() const { return {QString(), QString()}; }
  // The picture that it shows, or null.
  virtual std::shared_ptr<const IndexedImage> Picture() const { return nullptr; }
  virtual DocumentDepth Depth() const { return {}; }
  virtual bool IsStereogram() const { return false; }
  // What made the stereogram, or null.
  virtual const Recipe* MadeBy() const { return nullptr; }
  // Whether Save() writes that into the file; at first it does.
  virtual void KeepRecipe(bool /*keep*/) {}
  // Shows the busy cursor over the window, or its own again.
  virtual void ShowBusy(bool /*busy*/) {}
  // Shows a notice above the document, in place of an earlier one.
  virtual void ShowNotice(const Notice& /*notice*/) {}
  // The frame's library, which it hands out on WM_NEEDPATTERNS. Borrowed.
  virtual void SetPatternLibrary(const TSirdPatt* /*patterns*/) {}

  // Asked when the window is to close; false keeps it open. A window with work to save asks the
  // user, and has the frame save it on Yes; what could not be saved stays open. `this` may be gone
  // when it returns false.
  virtual bool CanClose();
  // Closes without asking.
  void CloseUnasked();

  // Gives the window this place in the visible part of the document area, in Qt's units; made
  // smaller and moved as far as it needs to lie there as a whole.
  void PlaceAt(QRect place);

  QWidget* Frame() const { return frame_; }

 Q_SIGNALS:
  // What decides about commands may have changed: the saved flag, the zoom, the selection.
  void StateChanged();
  // The rows of its depth from `first` up to `end`, not included, may be others now.
  void DepthChanged(int first, int end);
  // This window is the active one and has this tool.
  void ToolChanged(int tool);

 protected:
  // Became, or is no longer, the active document window.
  virtual void EvMDIActivate(bool /*active*/) {}
  void closeEvent(QCloseEvent* event) override;

 private:
  QPointer<QWidget> frame_;
  int kind_ = 0;
  QString file_;
  QString proposed_;
  bool asksToClose_ = true;
  bool active_ = false;
  QMetaObject::Connection activation_;
};

// "400 x 300 x 256" and "Image: 120 K" for a picture of this size.
DocumentStatus PictureStatus(int width, int height, int bitsPerPixel, std::int64_t bytes);

}  // namespace plenovia
