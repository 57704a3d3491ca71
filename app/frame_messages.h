// What the main frame does with the private messages.
#pragma once

namespace plenovia {

class PrivateMessage;
class TPlenoviaWnd;

// Handles the message and sets its result. Numbers that the frame does not know are ignored.
void HandlePrivateMessage(TPlenoviaWnd& frame, PrivateMessage& message);

}  // namespace plenovia
