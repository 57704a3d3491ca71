// What the main frame does with the private messages.
#pragma once

namespace plenovia {

class PrivateMessage;
struct CommandContext;

// Handles the message and sets its result. Numbers that the frame does not know are ignored.
void HandlePrivateMessage(CommandContext& context, PrivateMessage& message);

}  // namespace plenovia
