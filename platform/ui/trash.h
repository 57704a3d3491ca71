// The desktop's trash.
#pragma once

#include <QString>

namespace plenovia {

// Moves the file there, and says in `place`, when given, what it is called now. False when there is
// no trash for it; then the file stays.
[[nodiscard]] bool MoveToTrash(const QString& path, QString* place = nullptr);

}  // namespace plenovia
