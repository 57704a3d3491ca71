// Another program that owns the clipboard of an X display.
#pragma once

#include <xcb/xcb.h>

#include <QByteArray>
#include <atomic>
#include <thread>

namespace plenovia {

// An X client of its own, with a connection and a thread of its own. Owns the clipboard once it is
// constructed, for as long as it lives.
class XClipboardOwner {
 public:
  enum class Manner {
    kSilent,       // answers nothing at all
    kFormatsOnly,  // says what it has, and does not send it
    kWhole,
    kInParts,
  };

  // Has a picture to offer, as a PNG file.
  XClipboardOwner(Manner manner, QByteArray png = {});
  XClipboardOwner(const XClipboardOwner&) = delete;
  XClipboardOwner& operator=(const XClipboardOwner&) = delete;
  ~XClipboardOwner();

 private:
  xcb_atom_t Atom(const QByteArray& name) const;
  void Serve();
  void Answer(const xcb_selection_request_event_t& request);
  void SendPart();

  Manner manner_;
  QByteArray png_;
  xcb_connection_t* connection_;
  xcb_atom_t targetsAtom_;
  xcb_atom_t pngAtom_;
  xcb_selection_request_event_t inParts_{};  // that is being answered
  qsizetype sent_ = 0;
  std::atomic<bool> ends_ = false;
  std::thread thread_;
};

}  // namespace plenovia
