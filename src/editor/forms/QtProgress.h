// A bar with Cancel for long work. The window behind it takes no input while the work runs.
#pragma once

#include "platform/Progress.h"

#include <QElapsedTimer>
#include <QProgressDialog>

namespace landsmith {

class QtProgress final : public Progress {
public:
  /// The bar appears when the work has lasted a moment; `parent` is then blocked until this object is gone.
  explicit QtProgress(QWidget* parent);

  bool Step(double fraction, std::string_view phrase) override;
  bool Wait() override;

private:
  QProgressDialog m_dialog;
  QElapsedTimer m_sinceStart;
};

}  // namespace landsmith
