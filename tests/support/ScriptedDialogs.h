// Dialogs that answer from a script and keep what was said.
#pragma once

#include "platform/Dialogs.h"

#include <deque>
#include <string>
#include <utility>
#include <vector>

namespace landsmith::test {

class ScriptedDialogs final : public Dialogs {
public:
  struct Said {
    MessageKind kind;
    std::string text;
  };
  std::vector<Said> messages;
  std::vector<std::string> questions;
  std::deque<bool> answers;  ///< in turn; No when none is left
  std::deque<std::optional<std::filesystem::path>> files;
  std::deque<std::optional<std::filesystem::path>> folders;
  std::deque<std::optional<std::int32_t>> colors;
  std::deque<std::optional<std::string>> inputs;
  std::vector<FileRequest> fileRequests;
  std::vector<std::pair<std::string, std::string>> shown;
  int beeps = 0;

  void Message(MessageKind kind, std::string_view text) override {
    messages.push_back({kind, std::string(text)});
  }
  bool Ask(QuestionKind, std::string_view question) override {
    questions.emplace_back(question);
    return Next(answers, false);
  }
  std::optional<std::filesystem::path> ChooseFileToOpen(const FileRequest& request) override {
    fileRequests.push_back(request);
    return Next(files, {});
  }
  std::optional<std::filesystem::path> ChooseFileToSave(const FileRequest& request) override {
    fileRequests.push_back(request);
    return Next(files, {});
  }
  std::optional<std::filesystem::path> ChooseFolder(const std::filesystem::path&) override {
    return Next(folders, {});
  }
  std::optional<std::int32_t> ChooseColor(std::int32_t) override { return Next(colors, {}); }
  std::optional<std::string> InputText(std::string_view prompt, std::string_view) override {
    questions.emplace_back(prompt);
    return Next(inputs, {});
  }
  void ShowText(std::string_view title, std::string_view text) override { shown.emplace_back(title, text); }
  void Beep() override { ++beeps; }

private:
  template <class T>
  static T Next(std::deque<T>& queue, T none) {
    if (queue.empty()) return none;
    T front = std::move(queue.front());
    queue.pop_front();
    return front;
  }
};

}  // namespace landsmith::test
