#ifdef _WIN32

#include "platform/Machine.h"
#include "platform/ProgramFolders.h"
#include "platform/RuntimeError.h"

#include <windows.h>

#include <string>

namespace landsmith {

std::string InstalledSimulator() {
  HKEY key = nullptr;
  // The simulator is a 32-bit program, so its key lies in the registry's 32-bit view.
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Microsoft Games\\Flight Simulator\\9.0", 0,
                    KEY_READ | KEY_WOW64_32KEY, &key) != ERROR_SUCCESS)
    return {};
  std::string text(2 * MAX_PATH, '\0');
  DWORD size = static_cast<DWORD>(text.size());
  DWORD type = 0;
  const LSTATUS status =
      RegQueryValueExA(key, "EXE Path", nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size);
  RegCloseKey(key);
  if (status != ERROR_SUCCESS || type != REG_SZ) return {};
  text.resize(size);
  text.resize(text.find('\0') == std::string::npos ? text.size() : text.find('\0'));
  return text;
}

std::filesystem::path CurrentProgram() {
  std::string name(32768, '\0');
  const DWORD length = GetModuleFileNameA(nullptr, name.data(), static_cast<DWORD>(name.size()));
  if (length == 0 || length >= name.size())
    throw RuntimeError::At("looking for the running program", "", "",
                           "system error " + std::to_string(GetLastError()));
  name.resize(length);
  return name;
}

}  // namespace landsmith

#endif
