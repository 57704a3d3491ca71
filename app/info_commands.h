// Help, versions and other boxes that only tell something; stopping and leaving.
#pragma once

namespace plenovia {

class TPlenoviaWnd;

void CmHelpIndex(TPlenoviaWnd& frame);
void CmHelpSirds(TPlenoviaWnd& frame);
void CmAbout(TPlenoviaWnd& frame);
void CmGraphicsLib(TPlenoviaWnd& frame);
void CmVersion(TPlenoviaWnd& frame);
void CmVideoInformation(TPlenoviaWnd& frame);
void CmStopProcess(TPlenoviaWnd& frame);
void CmExit(TPlenoviaWnd& frame);

}  // namespace plenovia
