// Text and paths between the program's UTF-8 and Qt.
#pragma once

#include "platform/Paths.h"

#include <QString>

#include <filesystem>
#include <string_view>

namespace landsmith {

inline QString ToQString(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline QString PathToQString(const std::filesystem::path& path) {
  return ToQString(PathText(path));
}

inline std::filesystem::path ToPath(const QString& text) {
  return std::filesystem::path(text.toStdU16String());
}

/// For menus and the like, where "&" would mark a keyboard letter: the text as it stands.
inline QString LiteralText(std::string_view utf8) {
  return ToQString(utf8).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

}  // namespace landsmith
