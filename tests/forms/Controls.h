// The controls of a window by their names.
#pragma once

#include <QAbstractButton>
#include <QLineEdit>
#include <QWidget>

#include <stdexcept>
#include <string>

namespace landsmith::test {

template <class Control>
Control& Find(QWidget& form, const char* name) {
  auto* control = form.findChild<Control*>(QLatin1String(name));
  if (control == nullptr) throw std::runtime_error(std::string("no control ") + name);
  return *control;
}

/// A disabled button does nothing, as under the mouse.
inline void Press(QWidget& form, const char* button) {
  Find<QAbstractButton>(form, button).click();
}
inline void Type(QWidget& form, const char* box, const std::string& text) {
  Find<QLineEdit>(form, box).setText(QString::fromStdString(text));
}
inline std::string TextOf(QWidget& form, const char* box) {
  return Find<QLineEdit>(form, box).text().toStdString();
}
inline bool IsChecked(QWidget& form, const char* button) {
  return Find<QAbstractButton>(form, button).isChecked();
}

}  // namespace landsmith::test
