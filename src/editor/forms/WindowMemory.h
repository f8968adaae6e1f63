// Size, place and toolbar of the main window, remembered in a small file of its own beside the program.
#pragma once

#include <filesystem>

class QMainWindow;

namespace landsmith {

/// Nothing happens when there is no file yet or it holds what no window wrote.
void RestoreWindow(QMainWindow& window, const std::filesystem::path& appPath);
/// A folder that cannot be written loses the memory and nothing else.
void RememberWindow(const QMainWindow& window, const std::filesystem::path& appPath);

}  // namespace landsmith
