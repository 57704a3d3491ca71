#include "platform/ui/text.h"

#include <QFile>
#include <algorithm>

namespace plenovia {

QString ToQString(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString PathToQString(const std::filesystem::path& path) {
  return QFile::decodeName(path.native().c_str());
}

std::filesystem::path ToPath(const QString& path) {
  return {QFile::encodeName(path).toStdString()};
}

QString ToSentence(std::string_view message) {
  QString sentence = ToQString(message);
  if (sentence.isEmpty()) return sentence;
  sentence[0] = sentence[0].toUpper();
  return sentence.endsWith(u'.') ? sentence : sentence + u'.';
}

QString BaseNameTitle(const QString& path) {
  const qsizetype cut = std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
  return (cut > 0 ? path.mid(cut + 1) : path).toLower();
}

}  // namespace plenovia
