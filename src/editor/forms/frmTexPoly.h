// Ties the vertices of a textured polygon to points of its bitmap.
#pragma once

#include "editor/Session.h"
#include "editor/TiePoints.h"

#include <QDialog>
#include <QTimer>

#include <memory>
#include <string>
#include <string_view>

class QLineEdit;

namespace landsmith {

namespace Ui {
class frmTexPoly;
}

/// Works on a copy: the caller takes Pairs() when exec() was accepted.
class frmTexPoly final : public QDialog {
  Q_OBJECT

public:
  /// `poly` has one vertex at least; `bitmap` is a file's name, looked for as in FindTexBitmap. A bitmap that
  /// is missing or cannot be read brings its message, and the points are shown on an empty raster. `pairs`:
  /// see TiePoints.
  frmTexPoly(Session& session, const PolyRec& poly, const std::string& bitmap, std::string_view pairs,
             QWidget* parent);
  ~frmTexPoly() override;

  std::string Pairs() const { return m_points.Pairs(); }

protected:
  /// Page Up and Page Down choose a point wherever the focus is.
  void keyPressEvent(QKeyEvent* event) override;

private:
  QPixmap LoadBitmap(const std::string& name);
  void ConnectControls();
  void ShowCurrent();
  void TakeTyped();
  void NudgeHeld();

  Session& m_session;
  std::unique_ptr<Ui::frmTexPoly> m_ui;
  TiePoints m_points;
  QTimer* m_timer;  ///< moves the point again while an arrow is held
};

}  // namespace landsmith
