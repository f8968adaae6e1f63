// Properties of a map: its name, the bitmaps of the nine views, where each of its three sets lies.
#pragma once

#include "editor/Editor.h"
#include "editor/MapData.h"

#include <QDialog>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

class QLabel;
class QLineEdit;

namespace landsmith {

namespace Ui {
class frmMapsP;
}

/// OK stores what was changed as one step of undo, Cancel forgets it. A bound that is left as shown keeps its
/// value, which may be finer than its text.
class frmMapsP final : public QDialog {
  Q_OBJECT

public:
  frmMapsP(Session& session, Editor& editor, QWidget* parent);
  ~frmMapsP() override;

  /// The map (0-based) must be there.
  void ShowMap(std::size_t map);

  void accept() override;

private:
  /// The boxes of a set: main, land, mesh.
  struct SetFields {
    std::array<QLineEdit*, 4> Sides{};  ///< north, south, west, east
    QLabel* Cols = nullptr;
    QLabel* Rows = nullptr;
    std::array<QString, 4> Shown;
    MapLevel Level;
  };

  void ShowSet(std::size_t set);
  void ShowScale();
  void ShowPicture(const QLineEdit* box);
  void RefreshButtons();
  void Choose(std::size_t view);
  void TakeTyped(std::size_t view);
  void TakeSize(std::size_t set, const BitmapSize& size);
  std::optional<MapLevel> ReadSet(std::size_t set);
  /// All three, or nothing after the message.
  std::optional<std::array<MapLevel, 3>> ReadSets();
  bool Store();
  void Calibrate(std::string_view view);
  void WriteData();

  Session& m_session;
  Editor& m_editor;
  std::unique_ptr<Ui::frmMapsP> m_ui;
  std::array<QLineEdit*, 9> m_files{};  ///< in the order of MapViews
  std::array<SetFields, 3> m_sets;
  std::size_t m_map = 0;
  std::string m_view;  ///< to be shown after OK; empty leaves the view alone
};

}  // namespace landsmith
