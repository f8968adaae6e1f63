// The stand-in of the scenery compiler as a function, so that its program is a few lines and tests can call
// it.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace landsmith::simtools {

inline constexpr int ScasmUsageError = 2;

/// `arguments`: the source, "work/NAME.scm" with either separator, and the options -s and -l, which ask for
/// less talk and change nothing here. Folders count from `folder`, the tools folder.
/// Writes NAME.BGL beside the source and returns 0, `out` naming each point that BglLayout.h had to hold; or
/// writes SCAERROR.LOG into `folder`, a line for each error with file, line and reason, leaves no BGL of that
/// name and returns 1.
int RunScasm(const std::vector<std::string>& arguments, const std::filesystem::path& folder,
             std::ostream& out);

}  // namespace landsmith::simtools
