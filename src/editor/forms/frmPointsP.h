// One position in all the grid systems of the simulator: that of a vertex, of the display centre, or any one
// to be converted.
#pragma once

#include "editor/PositionViews.h"
#include "forms/PointForm.h"

#include <memory>

namespace landsmith {

namespace Ui {
class frmPointsP;
}

class frmPointsP final : public PointForm {
  Q_OBJECT

public:
  frmPointsP(Session& session, Editor& editor, QWidget* parent);
  ~frmPointsP() override;

  /// Instead of a vertex: OK moves the display centre to the position.
  void ShowGotoPosition();
  /// Instead of a vertex: the boxes convert, OK changes nothing.
  void ShowCoordinates();

  void accept() override;

protected:
  void ShowPosition(LatLon at) override;

private:
  void ShowDisplayCenter(const QString& title, bool goesThere);
  PositionTexts Texts() const;
  /// Shows what was read in all ways, or tells why not. True when it was accepted.
  bool Take(const ReadPosition& read);

  std::unique_ptr<Ui::frmPointsP> m_ui;
  LatLon m_at;
  bool m_goesThere = false;
};

}  // namespace landsmith
