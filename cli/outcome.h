// How a subcommand ends: its exit status and what is said about a failure.
#pragma once

#include <string>
#include <tl/expected.hpp>

#include "platform/result.h"

namespace plenovia {

enum class ExitStatus { kDone = 0, kFailed = 1, kWrongUsage = 2 };

struct Complaint {
  ExitStatus status = ExitStatus::kFailed;
  std::string message;  // without a final stop
};

template <class T>
using Outcome = tl::expected<T, Complaint>;

// "subject: what went wrong", where the subject is a file as the user named it.
tl::unexpected<Complaint> Failed(const std::string& subject, const Error& error);
tl::unexpected<Complaint> WrongUsage(std::string message);

// One line on standard error that begins with "sirds: ". Control characters become "?".
void Report(const Complaint& complaint);

// Puts the text on standard output. Fails when it cannot be written there.
[[nodiscard]] Outcome<void> Print(const std::string& text);

}  // namespace plenovia
