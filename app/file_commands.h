// Opening and saving files.
#pragma once

#include <QString>

namespace plenovia {

class TPlenoviaWnd;

// A new depth map of the size that the settings name.
void CmFileNew(TPlenoviaWnd& frame);
void CmFileOpen(TPlenoviaWnd& frame);
// Saves the active picture or depth map. A write that fails leaves the file that was there, and
// the status bar says why.
void CmFileSave(TPlenoviaWnd& frame);

// Open the file in a window of its own, or show a message why not.
void OpenPicture(TPlenoviaWnd& frame, const QString& path);
void OpenDepthMap(TPlenoviaWnd& frame, const QString& path);
// As a depth map when the path contains ".rds" anywhere, else as a picture.
void OpenByName(TPlenoviaWnd& frame, const QString& path);

}  // namespace plenovia
