// When commands of the frame are available.
#pragma once

namespace plenovia {

class TPlenoviaWnd;

bool IsIdle(const TPlenoviaWnd& frame);
bool IsBusy(const TPlenoviaWnd& frame);
bool CanSave(const TPlenoviaWnd& frame);
bool CanWorkOnPicture(const TPlenoviaWnd& frame);
// A picture or a colour table is active.
bool CanCopy(const TPlenoviaWnd& frame);
bool CanPaste(const TPlenoviaWnd& frame);
bool CanZoomIn(const TPlenoviaWnd& frame);
bool CanZoomOut(const TPlenoviaWnd& frame);
bool CanMakeSirds(const TPlenoviaWnd& frame);
bool HasWindows(const TPlenoviaWnd& frame);

}  // namespace plenovia
