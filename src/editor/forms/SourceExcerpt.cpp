#include "forms/SourceExcerpt.h"

#include "core/Text.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <fstream>

namespace landsmith {

SourceExcerpt ReadSourceExcerpt(const std::filesystem::path& file, std::size_t limit) {
  std::ifstream stream(file, std::ios::binary | std::ios::ate);
  if (!stream) throw RuntimeError::At("reading", PathText(file), "", "the file cannot be opened");
  SourceExcerpt excerpt;
  excerpt.FileSize = static_cast<std::uintmax_t>(stream.tellg());
  excerpt.IsWhole = excerpt.FileSize <= limit;
  std::string bytes(excerpt.IsWhole ? static_cast<std::size_t>(excerpt.FileSize) : limit, '\0');
  stream.seekg(0);
  stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!stream) throw RuntimeError::At("reading", PathText(file), "", "the file ended early");
  if (!excerpt.IsWhole) {
    const std::size_t lineEnd = bytes.rfind('\n');
    if (lineEnd != std::string::npos) bytes.resize(lineEnd + 1);
  }
  excerpt.Text = FromWindows1252(bytes);
  return excerpt;
}

}  // namespace landsmith
