#include "cli/output.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <string>

#include "cli/pgm.h"
#include "cli/stop_signals.h"
#include "codec/graph_io.h"
#include "platform/ascii.h"
#include "platform/file_io.h"

namespace plenovia {

namespace {

bool IsPgm(const std::string& file) {
  return AsciiLower(std::filesystem::path(file).extension().native()) == ".pgm";
}

bool CanWrite(const std::string& file, OutputKind kind) {
  return (kind == OutputKind::kGray && IsPgm(file)) ||
         FormatOfExtension(file) != GraphicFormat::kUnknown;
}

}  // namespace

void AddOutput(CLI::App& command, std::string& out, OutputKind kind) {
  const std::string extensions = (kind == OutputKind::kGray ? ".pgm, " : "") + WritableExtensions();
  const auto check = [kind, extensions](const std::string& file) {
    if (CanWrite(file, kind)) return std::string();
    return "'" + file + "' does not end in " + extensions;
  };
  command.add_option("-o", out, "The file to write, whose name ends in\n" + extensions)
      ->required()
      ->option_text("OUT")
      ->check(check);
}

Outcome<void> WriteOutput(const std::string& out, const IndexedImage& picture, int threads,
                          const std::string& comment) {
  const auto encoded = IsPgm(out)
                           ? EncodePgm(picture)
                           : EncodePicture(FormatOfExtension(out), picture, threads, comment);
  if (!encoded) return Failed(out, encoded.error());
  if (StopSignalCame()) return Failed(out, {ErrorCode::kCancelled, "The run was stopped."});
  const auto written = WriteFile(out, encoded->pieces());
  if (!written) return Failed(out, written.error());
  return {};
}

}  // namespace plenovia
