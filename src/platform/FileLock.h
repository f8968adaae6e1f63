// A file that one program holds at a time. The system frees it when the program ends, however it ends.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace landsmith {

class FileLock {
public:
  /// Takes `file`, which is made when it is missing and stays when the lock goes. Nothing when someone holds
  /// it, this program included, or when it cannot be made.
  static std::optional<FileLock> Take(const std::filesystem::path& file);

  FileLock(FileLock&& other) noexcept;
  FileLock& operator=(FileLock&& other) noexcept;
  ~FileLock();

private:
  explicit FileLock(std::intptr_t handle) : m_handle(handle) {}

  static constexpr std::intptr_t None = -1;
  std::intptr_t m_handle = None;  ///< of the open file, in the system's own terms
};

}  // namespace landsmith
