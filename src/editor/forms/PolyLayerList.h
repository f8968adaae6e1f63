// The list of the layers that an exclusion polygon leaves out, with its buttons.
#pragma once

#include "platform/Dialogs.h"

#include <QObject>

#include <set>

class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace landsmith {

class PolyLayerList final : public QObject {
  Q_OBJECT

public:
  struct Controls {
    QListWidget* list;
    QPushButton *addOne, *addAll, *clear;
  };
  PolyLayerList(Dialogs& dialogs, const Controls& controls, QObject* parent);

  const std::set<int>& Layers() const { return m_layers; }
  void Show(std::set<int> layers);

private:
  void Add();
  void Remove(const QListWidgetItem* item);

  Dialogs& m_dialogs;
  QListWidget* m_list;
  std::set<int> m_layers;
};

}  // namespace landsmith
