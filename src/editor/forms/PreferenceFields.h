// Which control of the preferences dialog shows which setting.
#pragma once

#include "core/Settings.h"

#include <QWidget>

#include <string>

namespace landsmith {

/// Fills the controls of `dialog` that hold one setting each.
void ShowPreferenceFields(QWidget& dialog, const AppSettings& settings);

/// What a control holds that is no value of its setting; empty when all could be read.
struct RefusedField {
  QWidget* Field = nullptr;
  std::string Message;
};
/// Reads them back. At the first text that is refused nothing more is read.
RefusedField ReadPreferenceFields(const QWidget& dialog, AppSettings& settings);

}  // namespace landsmith
