#include "simtools/ScmParser.h"

#include <algorithm>
#include <utility>

namespace landsmith::simtools {

namespace {

constexpr bool IsBlank(char c) {
  return static_cast<unsigned char>(c) <= ' ';
}

constexpr bool EndsWord(char c) {
  return IsBlank(c) || c == '(' || c == ')' || c == '"' || c == ';';
}

class Parser {
public:
  explicit Parser(std::string_view bytes) : m_rest(bytes) {}

  ScmSource Run() {
    while (SkipBlanksAndComments()) {
      if (m_rest.front() == '(')
        OpenBracket();
      else if (m_rest.front() == ')')
        CloseBracket();
      else if (m_rest.front() == '"')
        TakeQuoted();
      else
        TakeWord();
    }
    if (m_open) Fail(m_source.Statements.back().Line, NotClosed());
    std::stable_sort(m_source.Errors.begin(), m_source.Errors.end(),
                     [](const ScmError& a, const ScmError& b) { return a.Line < b.Line; });
    return std::move(m_source);
  }

private:
  /// False at the end of the source.
  bool SkipBlanksAndComments() {
    while (!m_rest.empty()) {
      if (m_rest.front() == ';')
        m_rest.remove_prefix(std::min(m_rest.find('\n'), m_rest.size()));
      else if (IsBlank(m_rest.front()))
        Skip(1);
      else
        return true;
    }
    return false;
  }

  void Skip(std::size_t count) {
    m_line +=
        static_cast<std::size_t>(std::count(m_rest.begin(), m_rest.begin() + static_cast<long>(count), '\n'));
    m_rest.remove_prefix(count);
  }

  void TakeWord() {
    const auto end = std::find_if(m_rest.begin(), m_rest.end(), EndsWord);
    const std::string_view word = m_rest.substr(0, static_cast<std::size_t>(end - m_rest.begin()));
    if (m_open)
      AddArgument(std::string(word));
    else
      m_source.Statements.push_back({std::string(word), {}, m_line, {}});
    m_mayOpen = !m_open && word.front() != ':';
    Skip(word.size());
  }

  void TakeQuoted() {
    const std::size_t end = m_rest.find_first_of("\"\r\n", 1);
    if (end == std::string_view::npos || m_rest[end] != '"') {
      Fail(m_line, "the quoted text is not closed on its line");
      Skip(std::min(end, m_rest.size()));
      return;
    }
    if (m_open)
      AddArgument(std::string(m_rest.substr(0, end + 1)));
    else
      Fail(m_line, "a quoted text stands outside of brackets");
    Skip(end + 1);
  }

  void OpenBracket() {
    if (m_open) {
      ReopenAtLastArgument();
    } else if (m_mayOpen && m_source.Statements.back().Line == m_line) {
      m_open = true;
    } else {
      Fail(m_line, "an opening bracket without a statement in front of it");
    }
    m_mayOpen = false;
    Skip(1);
  }

  /// A statement that began inside another's bracket: the closing one is missing, and the last argument is
  /// the name of the new one.
  void ReopenAtLastArgument() {
    Statement& open = m_source.Statements.back();
    Fail(open.Line, NotClosed());
    if (open.Arguments.empty() || open.ArgumentLines.back() != m_line) return;
    Statement next{std::move(open.Arguments.back()), {}, m_line, {}};
    open.Arguments.pop_back();
    open.ArgumentLines.pop_back();
    m_source.Statements.push_back(std::move(next));
  }

  void CloseBracket() {
    if (!m_open) Fail(m_line, "a closing bracket without an opening one");
    m_open = false;
    m_mayOpen = false;
    Skip(1);
  }

  void AddArgument(std::string text) {
    m_source.Statements.back().Arguments.push_back(std::move(text));
    m_source.Statements.back().ArgumentLines.push_back(m_line);
  }

  std::string NotClosed() const {
    return "the bracket of " + m_source.Statements.back().Name + " is not closed";
  }

  void Fail(std::size_t line, std::string reason) { m_source.Errors.push_back({line, std::move(reason)}); }

  std::string_view m_rest;
  std::size_t m_line = 1;
  bool m_open = false;     ///< inside the bracket of the last statement
  bool m_mayOpen = false;  ///< the last thing read was a statement's name
  ScmSource m_source;
};

}  // namespace

ScmSource ParseScm(std::string_view bytes) {
  return Parser(bytes).Run();
}

}  // namespace landsmith::simtools
