// A button that shows a colour. What a press does is the dialog's affair.
#pragma once

#include <QPushButton>

#include <cstdint>

namespace landsmith {

class ColorSwatch : public QPushButton {
  Q_OBJECT

public:
  explicit ColorSwatch(QWidget* parent = nullptr);

  /// 0x00BBGGRR.
  std::int32_t Color() const { return m_color; }
  void SetColor(std::int32_t color);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  std::int32_t m_color = 0;
};

}  // namespace landsmith
