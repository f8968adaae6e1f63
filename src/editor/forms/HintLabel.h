// What a click does at this moment. Takes the room that is left, and elides.
#pragma once

#include <QLabel>

#include <string_view>

namespace landsmith {

class HintLabel final : public QLabel {
public:
  explicit HintLabel(const QString& name);
  /// Also the tool tip, for when the text does not fit.
  void Show(std::string_view hint);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {0, 0}; }

protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace landsmith
