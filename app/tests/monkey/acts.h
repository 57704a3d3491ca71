// The table of what the monkey does.
#pragma once

namespace plenovia {

class Monkey;

// One act that chance picks.
void DoAnything(Monkey& monkey);

}  // namespace plenovia
