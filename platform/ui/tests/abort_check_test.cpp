#include "platform/ui/abort_check.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "platform/ui/private_message.h"

namespace plenovia {
namespace {

// Runs something when it gets the message WM_UPDATEFRAME.
class Frame : public QWidget {
 public:
  std::function<void()> work;

 protected:
  void customEvent(QEvent* event) override {
    if (event->type() != PrivateMessage::EventType()) return;
    auto* message = static_cast<PrivateMessage*>(event);
    if (message->number() == WM_UPDATEFRAME && work) work();
    message->SetResult(message->value() + 1);
  }
};

TEST(AbortCheck, HandlesWhatWaitsAndGoesOn) {
  Frame frame;
  int handled = 0;
  frame.work = [&] { ++handled; };
  EXPECT_EQ(PumpAndCheckAbort(&frame), Abort::kNone);
  PostPrivateMessage(&frame, WM_UPDATEFRAME);
  EXPECT_EQ(handled, 0);
  EXPECT_EQ(PumpAndCheckAbort(&frame), Abort::kNone);
  EXPECT_EQ(handled, 1);
  EXPECT_EQ(SendPrivateMessage(&frame, PrivateMessage(WM_ADDPATTERN, 20)), 21);
}

TEST(AbortCheck, StopMessageStopsOnce) {
  Frame frame;
  int handled = 0;
  frame.work = [&] { ++handled; };
  PostPrivateMessage(&frame, WM_UPDATEFRAME);
  PostPrivateMessage(&frame, WM_STOPPROCESS);
  EXPECT_EQ(PumpAndCheckAbort(&frame), Abort::kStopped);
  EXPECT_EQ(handled, 1);
  EXPECT_EQ(PumpAndCheckAbort(&frame), Abort::kNone);
}

TEST(AbortCheck, StopMessageStopsTheInnermostOperationOnly) {
  Frame frame;
  Abort inner = Abort::kNone;
  frame.work = [&] {
    PostPrivateMessage(&frame, WM_STOPPROCESS);
    inner = PumpAndCheckAbort(&frame);
  };
  PostPrivateMessage(&frame, WM_UPDATEFRAME);
  EXPECT_EQ(PumpAndCheckAbort(&frame), Abort::kNone);
  EXPECT_EQ(inner, Abort::kStopped);
}

TEST(AbortCheck, AFrameThatClosesStopsEveryOperation) {
  Frame frame;
  Abort inner = Abort::kNone;
  frame.work = [&] {
    PostPrivateMessage(&frame, WM_STOPPROCESS, kStopAllProcesses);
    inner = PumpAndCheckAbort(&frame);
  };
  PostPrivateMessage(&frame, WM_UPDATEFRAME);
  EXPECT_EQ(PumpAndCheckAbort(&frame), Abort::kLeaving);
  EXPECT_EQ(inner, Abort::kLeaving);
  EXPECT_EQ(PumpAndCheckAbort(nullptr), Abort::kLeaving);
}

}  // namespace
}  // namespace plenovia
