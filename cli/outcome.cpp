#include "cli/outcome.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <utility>

namespace plenovia {

tl::unexpected<Complaint> Failed(const std::string& subject, const Error& error) {
  return tl::unexpected<Complaint>({ExitStatus::kFailed, subject + ": " + error.message});
}

tl::unexpected<Complaint> WrongUsage(std::string message) {
  return tl::unexpected<Complaint>({ExitStatus::kWrongUsage, std::move(message)});
}

void Report(const Complaint& complaint) {
  std::string line = "sirds: " + complaint.message;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const auto c = static_cast<unsigned char>(line[i]);
    if (c < 32 || c == 127) line[i] = '?';
    // U+0080 to U+009F, which terminals obey too, in UTF-8.
    if (c >= 0x80 && c < 0xa0 && i > 0 && line[i - 1] == '\xc2') line.replace(i - 1, 2, "??");
  }
  line += '\n';
  std::fputs(line.c_str(), stderr);
}

Outcome<void> Print(const std::string& text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (written && std::fflush(stdout) == 0) return {};
  return Failed("standard output", {ErrorCode::kIo, std::strerror(errno)});
}

}  // namespace plenovia
