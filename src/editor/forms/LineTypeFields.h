// The controls of the line dialog that say what a line is for: the option buttons, layer and texture.
#pragma once

#include "editor/Session.h"

#include <QObject>

#include <cstdint>
#include <optional>
#include <string>

class QButtonGroup;

namespace landsmith {

namespace Ui {
class frmLinesP;
}

class LineTypeFields final : public QObject {
  Q_OBJECT

public:
  LineTypeFields(Session& session, Ui::frmLinesP& ui, QWidget* dialog);

  /// Shows a stored type; nothing stands for lines of different types, with no option chosen.
  void Show(const std::optional<std::string>& type, std::int32_t color);

  struct Choice {
    std::string Type;
    std::optional<std::int32_t> Color;  ///< what the type gives the line; nothing keeps its own
  };
  /// What the user chose; nothing while the controls say what they said when they were shown, so that a
  /// stored type is never rewritten by merely looking at it.
  std::optional<Choice> Changed() const;

private:
  void ShowVtp(const std::string& type, std::int32_t color);
  void ChooseAssembled();
  void ChooseNamed();
  void EnableFields();
  /// The type as the controls stand; nothing with no option chosen.
  std::optional<Choice> Current() const;

  Session& m_session;
  Ui::frmLinesP& m_ui;
  QWidget* m_dialog;
  QButtonGroup* m_options;
  std::string m_stored;         ///< the type that was shown
  std::string m_assembledText;  ///< texture of the pre-assembled choice
  std::optional<Choice> m_shown;
  bool m_touched = false;  ///< an option was pressed, the chosen one too
};

}  // namespace landsmith
