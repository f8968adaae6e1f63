// Everything that the program asks of or tells its user goes through this interface: message boxes and
// pickers in the window, lines on standard error in the batch program, a script in tests. The exact words
// stand beside the operation that they belong to; only the medium differs.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace landsmith {

/// `Error`: a refusal or failure. `Warning`: the work goes on all the same. `Info`: success, or plain news.
enum class MessageKind { Info, Warning, Error };

enum class QuestionKind { YesNo, OkCancel };

struct FileRequest {
  std::string Title;
  /// Captions and patterns in turn, "Landsmith (*.LSP)|*.LSP|All Files|*.*".
  std::string Filter;
  std::filesystem::path Folder;  ///< where the dialog starts; empty leaves it to the system
  std::string FileName;          ///< first content of the name box, for saving
};

/// All text is UTF-8; lines are parted by "\n".
class Dialogs {
public:
  virtual ~Dialogs() = default;

  virtual void Message(MessageKind kind, std::string_view text) = 0;

  /// True for Yes or OK. The default button is No or Cancel.
  virtual bool Ask(QuestionKind kind, std::string_view question) = 0;

  /// The pickers give nothing when the user cancels.
  virtual std::optional<std::filesystem::path> ChooseFileToOpen(const FileRequest& request) = 0;
  virtual std::optional<std::filesystem::path> ChooseFileToSave(const FileRequest& request) = 0;
  virtual std::optional<std::filesystem::path> ChooseFolder(const std::filesystem::path& start) = 0;
  /// `color` and the result: 0x00BBGGRR.
  virtual std::optional<std::int32_t> ChooseColor(std::int32_t color) = 0;
  virtual std::optional<std::string> InputText(std::string_view prompt, std::string_view initial) = 0;

  /// Shows a longer text, such as a tool's report, for reading alone.
  virtual void ShowText(std::string_view title, std::string_view text) = 0;

  virtual void Beep() {}
};

}  // namespace landsmith
