#include "testing/temp_folder.h"

#include <stdlib.h>

#include <cstdlib>
#include <iterator>
#include <system_error>

namespace plenovia {

TempFolder::TempFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "plenovia-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) std::abort();
  path_ = name;
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

int TempFolder::Count() const {
  return static_cast<int>(std::distance(std::filesystem::directory_iterator(path_),
                                        std::filesystem::directory_iterator()));
}

}  // namespace plenovia
