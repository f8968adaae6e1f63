#ifdef _WIN32

#include "platform/FileLock.h"

#include <windows.h>

#include <utility>

namespace landsmith {

std::optional<FileLock> FileLock::Take(const std::filesystem::path& file) {
  // Opened without sharing: nobody else can open it until it is closed.
  HANDLE handle = CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return {};
  return FileLock(reinterpret_cast<std::intptr_t>(handle));
}

FileLock::FileLock(FileLock&& other) noexcept : m_handle(std::exchange(other.m_handle, None)) {}

FileLock& FileLock::operator=(FileLock&& other) noexcept {
  std::swap(m_handle, other.m_handle);
  return *this;
}

FileLock::~FileLock() {
  if (m_handle != None) CloseHandle(reinterpret_cast<HANDLE>(m_handle));
}

}  // namespace landsmith

#endif
