#include "app/command_context.h"

#include "app/desk.h"

namespace plenovia {

void RepaintAll(const CommandContext& context) {
  context.frame.repaint();
  context.desk.RepaintNow();
}

}  // namespace plenovia
