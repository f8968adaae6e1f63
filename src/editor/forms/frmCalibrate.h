// Calibrates the bitmap of a view from two of its points. Stands beside the canvas, and hides while a point
// is picked there.
#pragma once

#include "editor/Calibration.h"
#include "editor/Editor.h"

#include <QDialog>

#include <array>
#include <cstddef>
#include <filesystem>
#include <memory>

class QLineEdit;

namespace landsmith {

namespace Ui {
class frmCalibrate;
}

class frmCalibrate final : public QDialog {
  Q_OBJECT

public:
  /// For the bitmap that the present view shows of a map (0-based).
  frmCalibrate(Session& session, Editor& editor, std::size_t map, QWidget* parent);
  ~frmCalibrate() override;

  /// Shows the form, in place of one that `parent` has open already; it deletes itself when it is closed.
  static void Open(Session& session, Editor& editor, std::size_t map, QWidget* parent);

  void done(int result) override;

private:
  enum class PickKind { Place, Pixel };
  struct PointFields {
    QLineEdit *Lat, *Lon, *X, *Y;
    float PickedX = 0, PickedY = 0;  ///< finer than the boxes show
    QString ShownX, ShownY;
  };

  void Pick(std::size_t point, PickKind kind);
  void TakePick(std::size_t point, PickKind kind, const PointerInput& in);
  void TakePixel(PointFields& fields, LatLon at);
  CalibrationPoint ReadPoint(const PointFields& fields) const;
  CalibrationAxis Axis() const;
  void Calibrate();
  /// False, after the message and the end of the form, when the map or its view is another one by now.
  bool CheckMap();

  Session& m_session;
  Editor& m_editor;
  std::unique_ptr<Ui::frmCalibrate> m_ui;
  std::array<PointFields, 2> m_points;
  std::size_t m_map;
  std::filesystem::path m_bitmap;  ///< what is being calibrated
  bool m_picking = false;
  QPoint m_place;  ///< of the form while it is hidden
};

}  // namespace landsmith
