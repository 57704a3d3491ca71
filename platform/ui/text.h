// Texts and paths between Qt and the cores.
#pragma once

#include <QString>
#include <filesystem>
#include <string_view>

namespace plenovia {

QString ToQString(std::string_view utf8);
QString PathToQString(const std::filesystem::path& path);
std::filesystem::path ToPath(const QString& path);

// The message of an Error as a sentence: it begins with a capital letter and ends with a full stop.
QString ToSentence(std::string_view message);

// What is behind the last slash or backslash of a path, in lower case; the whole path when its only
// one is its first character. Titles of document windows are made this way.
QString BaseNameTitle(const QString& path);

}  // namespace plenovia
