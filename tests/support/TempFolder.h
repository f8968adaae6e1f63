// A folder of its own for one test, gone afterwards.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <string>

namespace landsmith::test {

class TempFolder {
public:
  TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "landsmith_XXXXXX").string();
    m_path = mkdtemp(pattern.data());
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& Path() const { return m_path; }
  std::filesystem::path operator/(const std::filesystem::path& name) const { return m_path / name; }

private:
  std::filesystem::path m_path;
};

}  // namespace landsmith::test
