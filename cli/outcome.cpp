#include "cli/outcome.h"

#include <algorithm>
#include <cerrno>
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
  std::replace_if(
      line.begin(), line.end(),
      [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127; }, '?');
  line += '\n';
  std::fputs(line.c_str(), stderr);
}

Outcome<void> Print(const std::string& text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (written && std::fflush(stdout) == 0) return {};
  return Failed("standard output", {ErrorCode::kIo, std::strerror(errno)});
}

}  // namespace plenovia
