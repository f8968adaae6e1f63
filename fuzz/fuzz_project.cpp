// A project file of any bytes is read or refused; what was read is written so that it reads back the same.
#include "core/ProjectFile.h"
#include "platform/RuntimeError.h"

#include <cstdint>
#include <cstdlib>

using namespace landsmith;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  ProjectState project;
  try {
    project = ReadProject(bytes, "fuzz.LSP");
  } catch (const RuntimeError&) {
    return 0;
  }
  // Compared as bytes: a damaged number may be none, which equals nothing.
  const std::string written = WriteProject(project, "");
  if (WriteProject(ReadProject(written, "again.LSP"), "") != written) std::abort();
  return 0;
}
