#include "cli/outcome.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <utility>

namespace plenovia {

std::string Printable(std::string text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto c = static_cast<unsigned char>(text[i]);
    if (c < 32 || c == 127) text[i] = '?';
    // U+0080 to U+009F, which terminals obey too, in UTF-8.
    if (c >= 0x80 && c < 0xa0 && i > 0 && text[i - 1] == '\xc2') text.replace(i - 1, 2, "??");
  }
  return text;
}

tl::unexpected<Complaint> Failed(const std::string& subject, const Error& error) {
  return tl::unexpected<Complaint>({ExitStatus::kFailed, subject + ": " + error.message});
}

tl::unexpected<Complaint> WrongUsage(std::string message) {
  return tl::unexpected<Complaint>({ExitStatus::kWrongUsage, std::move(message)});
}

void Report(const Complaint& complaint) {
  std::fputs((Printable("sirds: " + complaint.message) + '\n').c_str(), stderr);
}

void Warn(const std::string& file, const std::string& what) {
  Report({ExitStatus::kDone, "warning: " + file + ": " + what + " What could be read is used."});
}

Outcome<void> Print(const std::string& text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (written && std::fflush(stdout) == 0) return {};
  return Failed("standard output", {ErrorCode::kIo, std::strerror(errno)});
}

}  // namespace plenovia
