// The document windows: which there are, which is the active one, how they come and go.
#pragma once

#include <QList>
#include <QMdiArea>
#include <QObject>
#include <QPointer>

#include "documents/ui/document.h"
#include "images/ui/color_wnd.h"

namespace plenovia {

class Desk : public QObject {
  Q_OBJECT

 public:
  // The area becomes the child of `frame`.
  explicit Desk(QWidget* frame);

  QMdiArea& Area() const { return *area_; }
  // The active document window, or null.
  Document* Active() const;
  // Shows a new document window, makes it the active one and follows its state.
  void Adopt(Document& window);

  // Whether all document windows may close. A single one with work to save asks its own question as
  // the active one; of several a list asks which ones to save. False when the user cancels, or when
  // one could not be saved.
  bool AllMayClose();
  // Closes them without asking.
  void CloseDocuments();
  void RepaintNow();
  // Windows that the desk has become too small for lie on it as a whole again.
  void FitDocuments();

  // The one colour table window, or null.
  TColorWnd* ColourTable() const { return colourTable_; }
  void SetColourTable(TColorWnd* window) { colourTable_ = window; }

 Q_SIGNALS:
  // The active window changed, or what decides about commands in one of them.
  void StateChanged();
  // The active window's tool.
  void ToolChanged(int tool);

 private:
  using Documents = QList<QPointer<Document>>;
  // Those with work to save that are not among `settled`.
  Documents Unsaved(const Documents& settled) const;
  bool AskAboutAll(const Documents& unsaved);

  QMdiArea* area_;
  QPointer<TColorWnd> colourTable_;
  int cascaded_ = 0;
};

}  // namespace plenovia
