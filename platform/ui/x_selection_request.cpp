#include "platform/ui/x_selection_request.h"

#include <xcb/xcb.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QList>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

#include "platform/limits.h"

namespace plenovia {

namespace {

struct Free {
  void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using ReplyOf = std::unique_ptr<Reply, Free>;

xcb_connection_t* Connection() {
  const auto* x = qApp->nativeInterface<QNativeInterface::QX11Application>();
  return x != nullptr ? x->connection() : nullptr;
}

// The atoms of these names. All are asked for before the first answer is awaited.
std::vector<xcb_atom_t> Atoms(xcb_connection_t* connection, const QList<QByteArray>& names) {
  std::vector<xcb_intern_atom_cookie_t> cookies;
  for (const QByteArray& name : names) {
    cookies.push_back(
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.constData()));
  }
  std::vector<xcb_atom_t> atoms;
  for (const auto cookie : cookies) {
    const ReplyOf<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    atoms.push_back(reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE});
  }
  return atoms;
}

}  // namespace

struct XSelectionRequest::Property {
  xcb_atom_t type;
  QByteArray bytes;
};

bool XSelectionRequest::IsXDisplay() {
  return Connection() != nullptr;
}

XSelectionRequest::XSelectionRequest(const QByteArray& format, std::chrono::milliseconds patience,
                                     Take take)
    : connection_(Connection()), take_(std::move(take)) {
  const auto atoms = Atoms(connection_, {"CLIPBOARD", format, "PLENOVIA_CLIPBOARD", "INCR"});
  property_ = atoms[2];
  incremental_ = atoms[3];
  window_ = xcb_generate_id(connection_);
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(connection_, 0, window_, root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                    XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  xcb_convert_selection(connection_, window_, atoms[0], atoms[1], property_, XCB_CURRENT_TIME);
  xcb_flush(connection_);
  qApp->installNativeEventFilter(this);
  connect(&patience_, &QTimer::timeout, this, [this] { Finish({}); });
  patience_.setSingleShot(true);
  patience_.setInterval(patience);
  if (patience.count() > 0) patience_.start();
}

XSelectionRequest::~XSelectionRequest() {
  qApp->removeNativeEventFilter(this);
  xcb_destroy_window(connection_, window_);
  xcb_flush(connection_);
}

QList<QByteArray> XSelectionRequest::FormatNames(const QByteArray& targets) {
  constexpr std::size_t kMost = 500;
  std::vector<xcb_atom_t> atoms(
      std::min(kMost, static_cast<std::size_t>(targets.size()) / sizeof(xcb_atom_t)));
  std::memcpy(atoms.data(), targets.constData(), atoms.size() * sizeof(xcb_atom_t));
  xcb_connection_t* connection = Connection();
  std::vector<xcb_get_atom_name_cookie_t> cookies;
  for (const xcb_atom_t atom : atoms) cookies.push_back(xcb_get_atom_name(connection, atom));
  QList<QByteArray> names;
  for (const auto cookie : cookies) {
    // What is no atom has no name, and gives an error that is of no interest.
    xcb_generic_error_t* error = nullptr;
    const ReplyOf<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(connection, cookie, &error));
    const ReplyOf<xcb_generic_error_t> ignored(error);
    if (reply) {
      names << QByteArray(xcb_get_atom_name_name(reply.get()),
                          xcb_get_atom_name_name_length(reply.get()));
    }
  }
  return names;
}

bool XSelectionRequest::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  constexpr unsigned kSentByClient = 0x80;
  switch (static_cast<xcb_generic_event_t*>(message)->response_type & ~kSentByClient) {
    case XCB_SELECTION_NOTIFY: {
      const auto& answer = *static_cast<xcb_selection_notify_event_t*>(message);
      if (answer.requestor != window_) return false;
      if (!comesInParts_) Answered(answer.property);
      return true;
    }
    case XCB_PROPERTY_NOTIFY: {
      const auto& change = *static_cast<xcb_property_notify_event_t*>(message);
      if (change.window != window_) return false;
      if (comesInParts_ && change.state == XCB_PROPERTY_NEW_VALUE) NextPart();
      return true;
    }
    default:
      return false;
  }
}

void XSelectionRequest::Answered(std::uint32_t property) {
  if (property == XCB_ATOM_NONE) return Finish({});
  auto answer = TakeProperty();
  if (!answer) return Finish({});
  if (answer->type != incremental_) return Finish(std::move(answer->bytes));
  // That it was taken tells the owner to write the first part.
  comesInParts_ = true;
  if (patience_.isActive()) patience_.start();
}

void XSelectionRequest::NextPart() {
  const auto part = TakeProperty();
  if (!part || static_cast<std::size_t>(parts_.size() + part->bytes.size()) > kMaxFileBytes) {
    return Finish({});
  }
  if (part->bytes.isEmpty()) return Finish(std::move(parts_));
  parts_ += part->bytes;
  if (patience_.isActive()) patience_.start();
}

std::optional<XSelectionRequest::Property> XSelectionRequest::TakeProperty() {
  constexpr std::uint32_t kMostWords = kMaxFileBytes / 4;
  const auto cookie = xcb_get_property(connection_, 1, window_, property_,
                                       XCB_GET_PROPERTY_TYPE_ANY, 0, kMostWords);
  const ReplyOf<xcb_get_property_reply_t> reply(
      xcb_get_property_reply(connection_, cookie, nullptr));
  if (!reply || reply->bytes_after > 0) return std::nullopt;
  return Property{reply->type,
                  QByteArray(static_cast<const char*>(xcb_get_property_value(reply.get())),
                             xcb_get_property_value_length(reply.get()))};
}

void XSelectionRequest::Finish(std::optional<QByteArray> contents) {
  patience_.stop();
  qApp->removeNativeEventFilter(this);
  // The receiver may delete the request.
  QMetaObject::invokeMethod(
      this, [take = std::move(take_), contents = std::move(contents)] { take(contents); },
      Qt::QueuedConnection);
}

}  // namespace plenovia
