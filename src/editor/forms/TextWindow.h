// A longer text, such as a tool's report, for reading alone.
#pragma once

#include <QDialog>

namespace landsmith {

class TextWindow final : public QDialog {
  Q_OBJECT

public:
  TextWindow(const QString& title, const QString& text, QWidget* parent = nullptr);
};

}  // namespace landsmith
