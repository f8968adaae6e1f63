// Properties of lines: of one, of all selected ones, or the template of imported ones.
#pragma once

#include "editor/Display.h"
#include "editor/EditorHost.h"
#include "editor/Session.h"
#include "forms/LineTypeFields.h"
#include "vector/LineOperations.h"

#include <QDialog>

#include <cstddef>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace landsmith {

namespace Ui {
class frmLinesP;
}

/// Show it with one of the Show functions, then exec(). Type and name are stored by OK; widths, order and
/// direction change at once.
class frmLinesP final : public QDialog {
  Q_OBJECT

public:
  frmLinesP(Session& session, Display& display, QWidget* parent);
  ~frmLinesP() override;

  /// Mode "One"; `line` is 0-based.
  void ShowOne(std::size_t line);
  /// Mode "Many": all selected lines. With exactly two selected items the polygon button joins them.
  void ShowMany();
  /// Modes "BLN" and "RGN": a template that OK stores in `defaults`, which must outlive the dialog.
  void ShowDefaults(LineDefaults& defaults, const QString& mode);

  /// After it has closed: the vertex from which the user wants to walk along the line.
  const std::optional<PopupTarget>& Walk() const { return m_walk; }

  void accept() override;

private:
  enum class Mode { One, Many, Defaults };

  void ConnectControls();
  void SetMode(Mode mode);
  void ShowLineWidths();
  void ShowWidths(float mean, float first, float last);
  void ShowOrder();
  /// The lines that the dialog is about; none for a template.
  std::vector<std::size_t> Lines() const;

  void ChangeWidth();
  void ChangeProgressiveWidth();
  void ChangeOrder();
  void Reverse();
  void MakePolyOrJoin();
  void Check();
  bool StoreDefaults();
  void ApplyToLines();
  /// First and last width of the two boxes, after the message when they are refused.
  std::optional<std::pair<float, float>> ReadEndWidths();

  Session& m_session;
  Display& m_display;
  std::unique_ptr<Ui::frmLinesP> m_ui;
  std::unique_ptr<LineTypeFields> m_type;
  Mode m_mode = Mode::One;
  std::size_t m_line = 0;
  LineDefaults* m_defaults = nullptr;
  std::optional<PopupTarget> m_walk;
};

}  // namespace landsmith
