// Text as files hold it (Windows-1252) and as the program holds it (UTF-8), and small text work.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace landsmith {

/// The five bytes that Windows-1252 leaves undefined become the control characters of the same number and
/// come back as they were.
std::string FromWindows1252(std::string_view bytes);
/// A character without a place in the code page becomes "?". Ill-formed UTF-8 too, a byte at a time.
std::string ToWindows1252(std::string_view utf8);

std::string_view Trim(std::string_view text);  ///< blanks, tabs, CR and LF at both ends
std::string ToLower(std::string_view text);    ///< the 26 letters alone
std::string ToUpper(std::string_view text);    ///< also the letters of Windows-1252 beyond them, in UTF-8
bool EqualsIgnoringCase(std::string_view a, std::string_view b);
std::string ReplaceAll(std::string text, std::string_view from, std::string_view to);
/// Lines without their ends, CR LF, LF or CR; no line behind a final line end.
std::vector<std::string_view> SplitLines(std::string_view text);

}  // namespace landsmith
