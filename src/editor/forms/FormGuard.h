// The border of a dialog's command: a failure inside becomes one error box and the dialog lives on.
#pragma once

#include "platform/Dialogs.h"

#include <exception>
#include <utility>

namespace landsmith {

/// True when `command` ran to its end.
template <class Command>
bool RunGuarded(Dialogs& dialogs, Command&& command) {
  try {
    std::forward<Command>(command)();
    return true;
  } catch (const std::exception& failure) {
    dialogs.Message(MessageKind::Error, failure.what());
    return false;
  }
}

}  // namespace landsmith
