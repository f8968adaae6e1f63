// The program-wide preferences. OK puts them into effect and writes the settings file.
#pragma once

#include "core/Settings.h"
#include "editor/Editor.h"
#include "editor/Session.h"

#include <QDialog>

#include <memory>

class QLineEdit;
class QSlider;

namespace landsmith {

namespace Ui {
class frmPreferences;
}

class frmPreferences final : public QDialog {
  Q_OBJECT

public:
  frmPreferences(Session& session, Editor& editor, QWidget* parent);
  ~frmPreferences() override;

  void accept() override;

private:
  void ShowSettings();
  void ConnectSlider(QSlider* slider, QLineEdit* box);
  void ConnectColors();
  void ExplainMeshBitmaps();
  /// False, after the message, when a field is refused.
  bool ReadSettings(AppSettings& settings);
  bool Refuse(QWidget* field, const std::string& message);
  /// Takes a changed centre that can be read; true when it is another one.
  bool ReadCenter(AppSettings& settings) const;

  Session& m_session;
  Editor& m_editor;
  std::unique_ptr<Ui::frmPreferences> m_ui;
  QString m_shownLat, m_shownLon;
};

}  // namespace landsmith
