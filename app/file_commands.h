// New documents, and opening files.
#pragma once

#include <QString>

namespace plenovia {

struct CommandContext;

// A new depth map of the size that the settings name.
void CmFileNew(CommandContext& context);
void CmFileOpen(CommandContext& context);

// Open the file in a window of its own, or show a message why not. Of a damaged file what can be
// read is shown, and the status line says so. A depth map is opened as one under any name.
void OpenPicture(CommandContext& context, const QString& path);
void OpenDepthMap(CommandContext& context, const QString& path);
// As a depth map when it is one or the path contains ".rds" anywhere, else as a picture.
void OpenByName(CommandContext& context, const QString& path);

}  // namespace plenovia
