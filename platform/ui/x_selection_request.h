// A question to the program that owns the clipboard of an X display.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

struct xcb_connection_t;

namespace plenovia {

// Asks for the contents in one format and hears the answer among the events, so that a program that
// is slow or never answers holds nothing up. Qt's own clipboard waits for each answer, up to five
// seconds. To be used on displays that are X only.
class XSelectionRequest final : public QObject, private QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  // The contents; none when they are refused, too large, or do not come in time.
  using Take = std::function<void(std::optional<QByteArray>)>;

  static bool IsXDisplay();
  // `format` is an X target: "TARGETS", or a MIME type. `take` is called once, from the event loop,
  // unless the request is deleted before. It is called without contents when the owner lets this
  // time go by in silence; 0: waits as long as it takes.
  XSelectionRequest(const QByteArray& format, std::chrono::milliseconds patience, Take take);
  ~XSelectionRequest() override;

  // The names of the formats in an answer to "TARGETS".
  static QList<QByteArray> FormatNames(const QByteArray& targets);

 private:
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
  void Answered(std::uint32_t property);
  void NextPart();
  // What the owner has written, which it may then write anew; null on errors.
  struct Property;
  std::optional<Property> TakeProperty();
  void Finish(std::optional<QByteArray> contents);

  xcb_connection_t* connection_;
  std::uint32_t window_ = 0;
  std::uint32_t property_ = 0;
  std::uint32_t incremental_ = 0;  // the type of an answer that comes in parts
  bool comesInParts_ = false;
  QByteArray parts_;
  QTimer patience_;
  Take take_;
};

}  // namespace plenovia
