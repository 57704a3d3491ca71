#include "cli/output.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <string>

#include "cli/pgm.h"
#include "cli/stop_signals.h"
#include "codec/fine_png.h"
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

Outcome<void> Write(const std::string& out, const Result<EncodedPicture>& encoded) {
  if (!encoded) return Failed(out, encoded.error());
  if (StopSignalCame()) return Failed(out, {ErrorCode::kCancelled, "The run was stopped."});
  const auto written = WriteFile(out, encoded->pieces());
  if (!written) return Failed(out, written.error());
  return {};
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
  return Write(out, IsPgm(out) ? EncodePgm(picture)
                               : EncodePicture(FormatOfExtension(out), picture, threads, comment));
}

void AddFine(CLI::App& command, bool& fine) {
  command.add_flag("--fine", fine,
                   "Write grays of 16 bits, 257 for each of the 256;\n"
                   "OUT is a .png or .pgm file");
}

Outcome<void> CheckFineOutput(const std::string& out) {
  if (IsPgm(out) || FormatOfExtension(out) == GraphicFormat::kPng) return {};
  return WrongUsage("--fine is for .png and .pgm files, not for '" + out + "'");
}

Outcome<void> WriteFineOutput(const std::string& out, const FineImage& picture) {
  return Write(out, IsPgm(out) ? EncodeFinePgm(picture) : EncodeFinePng(picture));
}

}  // namespace plenovia
