#include "images/print_file.h"

#include <string>
#include <system_error>

namespace plenovia {

namespace fs = std::filesystem;

fs::path FreePrintFile(const fs::path& wanted) {
  fs::path file = wanted;
  std::error_code ignored;
  for (int number = 2; fs::symlink_status(file, ignored).type() != fs::file_type::not_found;
       ++number) {
    file = wanted;
    file.replace_filename(wanted.stem().string() + "-" + std::to_string(number));
    file += wanted.extension();
    if (number == 100000) break;
  }
  return file;
}

}  // namespace plenovia
