#include "platform/free_memory.h"

#include <fstream>
#include <limits>
#include <string>

namespace plenovia {

std::int64_t FreeMemoryBytes() {
  std::ifstream facts("/proc/meminfo");
  for (std::string name; facts >> name;) {
    std::int64_t kibibytes = 0;
    if (name == "MemAvailable:" && facts >> kibibytes) return kibibytes * 1024;
    facts.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
  }
  return 0;
}

}  // namespace plenovia
