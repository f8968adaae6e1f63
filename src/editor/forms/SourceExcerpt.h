// The beginning of a text file for reading, however large the file is.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace landsmith {

struct SourceExcerpt {
  std::string Text;             ///< UTF-8, whole lines
  std::uintmax_t FileSize = 0;  ///< bytes
  bool IsWhole = true;
};

/// At most `limit` bytes of the file, cut behind a line end. Throws RuntimeError when it cannot be read.
SourceExcerpt ReadSourceExcerpt(const std::filesystem::path& file, std::size_t limit);

}  // namespace landsmith
