// A label that can be pressed like a button, with mouse or keyboard, as long as it is said to be clickable.
#pragma once

#include <QLabel>

namespace landsmith {

class ClickLabel final : public QLabel {
  Q_OBJECT

public:
  explicit ClickLabel(QWidget* parent = nullptr) : QLabel(parent) {}
  void SetClickable(bool clickable);

signals:
  void clicked();

protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

private:
  bool m_clickable = false;
};

}  // namespace landsmith
