// The button beside a folder box.
#pragma once

#include "platform/Dialogs.h"

class QLineEdit;
class QPushButton;

namespace landsmith {

/// A press asks for a folder, beginning with the one in `box`, which takes the answer.
void ConnectFolderButton(Dialogs& dialogs, QPushButton* button, QLineEdit* box);

}  // namespace landsmith
