// Size, place and toolbar of the main window, remembered in a small file of its own beside the program.
#pragma once

#include <filesystem>

class QMainWindow;

namespace landsmith {

/// Without a file the window keeps its size as far as the screen has room for it. A file that no window wrote
/// changes nothing.
void RestoreWindow(QMainWindow& window, const std::filesystem::path& appPath);
/// A folder that cannot be written loses the memory and nothing else.
void RememberWindow(const QMainWindow& window, const std::filesystem::path& appPath);

}  // namespace landsmith
