#include "batch/BatchDialogs.h"

#include "core/Text.h"

namespace landsmith {

void BatchDialogs::Print(std::string_view kind, std::string_view text) {
  m_errors << kind << ':';
  std::string_view indent = " ";
  for (const std::string_view line : SplitLines(text)) {
    m_errors << indent << line << '\n';
    indent = "    ";
  }
  if (text.empty()) m_errors << '\n';
  m_errors.flush();
}

void BatchDialogs::Message(MessageKind kind, std::string_view text) {
  switch (kind) {
    case MessageKind::Info:
      return Print("info", text);
    case MessageKind::Warning:
      m_troubleShown = true;
      return Print("warning", text);
    case MessageKind::Error:
      m_troubleShown = true;
      return Print("error", text);
  }
}

bool BatchDialogs::Ask(QuestionKind, std::string_view question) {
  Print("question", question);
  return m_answers == Answers::AllYes;
}

std::optional<std::filesystem::path> BatchDialogs::ChooseFileToOpen(const FileRequest&) {
  return {};
}

std::optional<std::filesystem::path> BatchDialogs::ChooseFileToSave(const FileRequest&) {
  return {};
}

std::optional<std::filesystem::path> BatchDialogs::ChooseFolder(const std::filesystem::path&) {
  return {};
}

std::optional<std::int32_t> BatchDialogs::ChooseColor(std::int32_t) {
  return {};
}

std::optional<std::string> BatchDialogs::InputText(std::string_view, std::string_view) {
  return {};
}

void BatchDialogs::ShowText(std::string_view, std::string_view text) {
  m_errors << text;
  if (!text.ends_with('\n')) m_errors << '\n';
  m_errors.flush();
}

}  // namespace landsmith
