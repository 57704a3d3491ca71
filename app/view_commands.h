// How pictures and windows are shown.
#pragma once

namespace plenovia {

class TPlenoviaWnd;

void CmZoomIn(TPlenoviaWnd& frame);
void CmZoomOut(TPlenoviaWnd& frame);
void CmGrayImage(TPlenoviaWnd& frame);
// Shows the palette of the active picture in the one colour table window.
void CmColorTable(TPlenoviaWnd& frame);

void CmCascade(TPlenoviaWnd& frame);
void CmTile(TPlenoviaWnd& frame);
// Lines the minimised windows up at the bottom.
void CmArrangeIcons(TPlenoviaWnd& frame);
void CmCloseAll(TPlenoviaWnd& frame);

}  // namespace plenovia
