// The message boxes of a program without a window: lines on standard error, questions answered as the command
// line says.
#pragma once

#include "platform/Dialogs.h"

#include <ostream>

namespace landsmith {

enum class Answers { AllNo, AllYes };

/// Prints "KIND: TEXT", further lines of the text indented by four blanks. File choosers give nothing.
class BatchDialogs final : public Dialogs {
public:
  explicit BatchDialogs(std::ostream& errors, Answers answers = Answers::AllNo)
      : m_errors(errors), m_answers(answers) {}

  void AnswerAll(Answers answers) { m_answers = answers; }
  /// A message of kind error or warning was shown.
  bool TroubleShown() const { return m_troubleShown; }

  void Message(MessageKind kind, std::string_view text) override;
  bool Ask(QuestionKind kind, std::string_view question) override;
  std::optional<std::filesystem::path> ChooseFileToOpen(const FileRequest& request) override;
  std::optional<std::filesystem::path> ChooseFileToSave(const FileRequest& request) override;
  std::optional<std::filesystem::path> ChooseFolder(const std::filesystem::path& start) override;
  std::optional<std::int32_t> ChooseColor(std::int32_t color) override;
  std::optional<std::string> InputText(std::string_view prompt, std::string_view initial) override;
  void ShowText(std::string_view title, std::string_view text) override;

private:
  void Print(std::string_view kind, std::string_view text);

  std::ostream& m_errors;
  Answers m_answers;
  bool m_troubleShown = false;
};

}  // namespace landsmith
