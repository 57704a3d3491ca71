// The preview in the dialog that opens files.
#pragma once

#include <QFileDialog>

namespace plenovia {

// Adds a column at the right that shows the file chosen in the dialog. The dialog must not be the
// desktop's own.
void AddOpenPreview(QFileDialog& dialog);

}  // namespace plenovia
