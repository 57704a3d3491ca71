// Pictures to and from other programs and the printer.
#pragma once

namespace plenovia {

class TPlenoviaWnd;

void CmCopy(TPlenoviaWnd& frame);
void CmPaste(TPlenoviaWnd& frame);
void CmPrint(TPlenoviaWnd& frame);
void CmPrinterSetup(TPlenoviaWnd& frame);

}  // namespace plenovia
