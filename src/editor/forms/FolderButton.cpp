#include "forms/FolderButton.h"

#include "forms/QtText.h"
#include "platform/Paths.h"

#include <QLineEdit>
#include <QPushButton>

namespace landsmith {

void ConnectFolderButton(Dialogs& dialogs, QPushButton* button, QLineEdit* box) {
  QObject::connect(button, &QPushButton::clicked, box, [&dialogs, box] {
    if (const auto folder = dialogs.ChooseFolder(MapPath(box->text().toStdString())))
      box->setText(PathToQString(*folder));
  });
}

}  // namespace landsmith
