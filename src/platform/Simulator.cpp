#include "platform/Machine.h"
#include "platform/Paths.h"
#include "platform/ProgramFolders.h"

namespace landsmith {

namespace {

bool HoldsSimulator(const std::filesystem::path& folder) {
  return FindInFolder(folder, "scenery.cfg").has_value();
}

}  // namespace

std::optional<std::filesystem::path> FindSimulator(std::string_view configured,
                                                   const std::filesystem::path& shippedData,
                                                   bool& asStandIn) {
  asStandIn = false;
  const std::string installed = InstalledSimulator();
  for (const std::string_view folder : {std::string_view(installed), configured}) {
    if (folder.empty() || NamesForeignDrive(folder)) continue;
    auto found = FindExisting(folder);
    if (found && HoldsSimulator(*found)) return found;
  }
  auto shipped = FindInFolder(shippedData, "simulator");
  if (!shipped || !HoldsSimulator(*shipped)) return std::nullopt;
  asStandIn = true;
  return shipped;
}

}  // namespace landsmith
