#ifndef _WIN32

#include "platform/Machine.h"
#include "platform/ProgramFolders.h"
#include "platform/RuntimeError.h"

namespace landsmith {

std::string InstalledSimulator() {
  return {};  // there is no registry here; the settings file names the folder
}

std::filesystem::path CurrentProgram() {
  std::error_code failure;
  std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", failure);
  if (failure) throw RuntimeError::At("looking for the running program", "", "", failure.message());
  return program;
}

}  // namespace landsmith

#endif
