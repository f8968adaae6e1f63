// Properties of polygons: of one, of all selected ones, or the template of imported ones.
#pragma once

#include "editor/Display.h"
#include "editor/EditorHost.h"
#include "editor/Session.h"
#include "forms/PolyTypeFields.h"

#include <QDialog>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace landsmith {

namespace Ui {
class frmPolysP;
}

/// Show it with one of the Show functions, then exec(). Type and name are stored by OK; altitudes, order and
/// the check change at once.
class frmPolysP final : public QDialog {
  Q_OBJECT

public:
  frmPolysP(Session& session, Display& display, QWidget* parent);
  ~frmPolysP() override;

  /// Mode "One"; `poly` is 0-based.
  void ShowOne(std::size_t poly);
  /// Mode "Many": all selected polygons. With exactly two selected items the line button joins them.
  void ShowMany();
  /// Modes "BLN" and "RGN": a template that OK stores in `defaults`, which must outlive the dialog.
  void ShowDefaults(PolyDefaults& defaults, const QString& mode);

  /// After it has closed: the vertex from which the user wants to walk along the polygon.
  const std::optional<PopupTarget>& Walk() const { return m_walk; }

  void accept() override;

private:
  enum class Mode { One, Many, Defaults };

  void ConnectControls();
  void SetMode(Mode mode);
  void ShowAltitudes();
  void ShowOrder();
  /// The polygons that the dialog is about; none for a template.
  std::vector<std::size_t> Polys() const;

  void ChangeAltitude();
  void ChangeSlope();
  void ChangeOrder();
  void TieBitmap();
  void MakeLineOrJoin();
  void Check();
  void StoreDefaults();
  void ApplyToPolys();

  Session& m_session;
  Display& m_display;
  std::unique_ptr<Ui::frmPolysP> m_ui;
  std::unique_ptr<PolyTypeFields> m_type;
  Mode m_mode = Mode::One;
  std::size_t m_poly = 0;
  PolyDefaults* m_defaults = nullptr;
  std::optional<PopupTarget> m_walk;
};

}  // namespace landsmith
