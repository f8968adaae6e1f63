// File dialogs that begin where they were last used.
#pragma once

#include "editor/Session.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace landsmith {

/// Asks for a file in the folder that this kind of dialog, named by its slot of the recent folders, was last
/// used in, and remembers the folder of the one chosen. "All Files" joins `filter`.
std::optional<std::filesystem::path> ChooseToOpen(Session& session, std::string_view filter,
                                                  std::string_view title, std::string AppSettings::*slot);

}  // namespace landsmith
