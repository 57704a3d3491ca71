// The samples that come with the program.
#pragma once

#include <QString>
#include <QStringList>

namespace plenovia {

// The folder "samples" beside that of the pattern files: in the source tree for a program in a
// build folder, in the share folder of the installation else. Empty when there is none.
QString SampleFolder();
// The paths of the depth pictures and maps in it, by name.
QStringList SampleFiles();

}  // namespace plenovia
