#ifndef _WIN32

#include "platform/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <utility>

namespace landsmith {

std::optional<FileLock> FileLock::Take(const std::filesystem::path& file) {
  // A tool that is started meanwhile must not inherit the lock: it may outlive us.
  const int handle = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (handle < 0) return {};
  if (::flock(handle, LOCK_EX | LOCK_NB) == 0) return FileLock(handle);
  ::close(handle);
  return {};
}

FileLock::FileLock(FileLock&& other) noexcept : m_handle(std::exchange(other.m_handle, None)) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
  std::swap(m_handle, other.m_handle);
  return *this;
}

FileLock::~FileLock() {
  if (m_handle != None) ::close(static_cast<int>(m_handle));
}

}  // namespace landsmith

#endif
