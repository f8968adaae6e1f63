// One vertex of a line or polygon: latitude, longitude, width or altitude.
#pragma once

#include "forms/PointForm.h"

#include <memory>

namespace landsmith {

namespace Ui {
class frmPoints0P;
}

class frmPoints0P final : public PointForm {
  Q_OBJECT

public:
  frmPoints0P(Session& session, Editor& editor, QWidget* parent);
  ~frmPoints0P() override;

  void accept() override;

protected:
  void ShowPosition(LatLon at) override;

private:
  void ShowExtended();

  std::unique_ptr<Ui::frmPoints0P> m_ui;
};

}  // namespace landsmith
