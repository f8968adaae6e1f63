// What the next area fills will be, beside the canvas while the tool is at hand; or the type and height of
// one fill.
#pragma once

#include "editor/Display.h"
#include "editor/Session.h"

#include <QDialog>

#include <cstddef>
#include <memory>
#include <optional>

class QCheckBox;

namespace landsmith {

namespace Ui {
class frmFillsP;
}

class frmFillsP final : public QDialog {
  Q_OBJECT

public:
  frmFillsP(Session& session, Display& display, QWidget* parent);
  ~frmFillsP() override;

  /// Each change counts at once, for the next click on the canvas. Called again after a change of the grid,
  /// it shows the new size.
  void ShowPalette();
  /// Something has happened on the canvas: an altitude that is no number gives way to the one that counted.
  void Check();
  /// A fill that exists (0-based); Apply stores type and height as one change.
  void ShowFill(std::size_t fill);

  void accept() override;

private:
  void ConnectType(QCheckBox* box, FillType type, std::int32_t color);
  void ShowValues(FillType type, float height);
  void ShowHeight(float height);
  void TakeValues();
  /// As typed; the height shown at first comes back exactly, not as its text rounds it. Nothing when it is no
  /// number.
  std::optional<float> Height() const;
  void Store(float height);

  Session& m_session;
  Display& m_display;
  std::unique_ptr<Ui::frmFillsP> m_ui;
  std::optional<std::size_t> m_fill;  ///< none: the palette
  FillType m_type = FillType::Water;
  float m_shownHeight = 0;
};

}  // namespace landsmith
