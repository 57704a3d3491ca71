#include "app/tests/x_clipboard_owner.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <utility>

namespace plenovia {

namespace {

constexpr qsizetype kPartBytes = 1000;

template <class Reply>
std::unique_ptr<Reply, void (*)(void*)> Owned(Reply* reply) {
  return {reply, &std::free};
}

}  // namespace

XClipboardOwner::XClipboardOwner(Manner manner, QByteArray png)
    : manner_(manner), png_(std::move(png)), connection_(xcb_connect(nullptr, nullptr)) {
  targetsAtom_ = Atom("TARGETS");
  pngAtom_ = Atom("image/png");
  const xcb_window_t window = xcb_generate_id(connection_);
  const auto* screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
  xcb_create_window(connection_, 0, window, screen->root, 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
  const xcb_atom_t clipboard = Atom("CLIPBOARD");
  xcb_set_selection_owner(connection_, window, clipboard, XCB_CURRENT_TIME);
  const auto owner = Owned(xcb_get_selection_owner_reply(
      connection_, xcb_get_selection_owner(connection_, clipboard), nullptr));
  EXPECT_EQ(owner->owner, window);
  thread_ = std::thread([this] { Serve(); });
}

XClipboardOwner::~XClipboardOwner() {
  ends_ = true;
  thread_.join();
  xcb_disconnect(connection_);
}

xcb_atom_t XClipboardOwner::Atom(const QByteArray& name) const {
  const auto cookie =
      xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.constData());
  return Owned(xcb_intern_atom_reply(connection_, cookie, nullptr))->atom;
}

void XClipboardOwner::Serve() {
  while (!ends_) {
    const auto event = Owned(xcb_poll_for_event(connection_));
    if (!event) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    } else if (manner_ == Manner::kSilent) {
      continue;
    } else if ((event->response_type & 0x7f) == XCB_SELECTION_REQUEST) {
      Answer(reinterpret_cast<const xcb_selection_request_event_t&>(*event));
    } else if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY) {
      const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
      if (change.atom == inParts_.property && change.state == XCB_PROPERTY_DELETE) SendPart();
    }
  }
}

void XClipboardOwner::Answer(const xcb_selection_request_event_t& request) {
  const auto write = [&](xcb_atom_t type, std::uint8_t bits, auto length, const void* data) {
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        type, bits, static_cast<std::uint32_t>(length), data);
  };
  xcb_selection_notify_event_t answer{};
  answer.response_type = XCB_SELECTION_NOTIFY;
  answer.requestor = request.requestor;
  answer.selection = request.selection;
  answer.target = request.target;
  answer.property = request.property;
  if (request.target == targetsAtom_) {
    const std::array targets{targetsAtom_, pngAtom_};
    write(XCB_ATOM_ATOM, 32, targets.size(), targets.data());
  } else if (request.target != pngAtom_) {
    answer.property = XCB_ATOM_NONE;
  } else if (manner_ == Manner::kFormatsOnly) {
    return;
  } else if (manner_ == Manner::kWhole) {
    write(pngAtom_, 8, png_.size(), png_.constData());
  } else {
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection_, request.requestor, XCB_CW_EVENT_MASK, &events);
    inParts_ = request;
    sent_ = 0;
    const auto least = static_cast<std::uint32_t>(png_.size());
    write(Atom("INCR"), 32, 1, &least);
  }
  xcb_send_event(connection_, 0, request.requestor, 0, reinterpret_cast<const char*>(&answer));
  xcb_flush(connection_);
}

// An empty part after the last one says that it was the last.
void XClipboardOwner::SendPart() {
  const QByteArray part = png_.mid(sent_, kPartBytes);
  sent_ += part.size();
  xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, inParts_.requestor, inParts_.property,
                      pngAtom_, 8, static_cast<std::uint32_t>(part.size()), part.constData());
  xcb_flush(connection_);
  if (part.isEmpty()) inParts_ = {};
}

}  // namespace plenovia
