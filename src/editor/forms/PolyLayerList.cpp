#include "forms/PolyLayerList.h"

#include "editor/PolyTypeChoice.h"
#include "forms/QtText.h"

#include <QListWidget>
#include <QPushButton>
#include <QShortcut>

#include <algorithm>
#include <string_view>
#include <utility>

namespace landsmith {

namespace {

constexpr std::string_view LayersPrompt =
    "Enter layer numbers separated by spaces. You can enter\n"
    "1 up to 5 at a single stroke. If you press OK now, layers\n"
    "2 3 4 and 5 will be added to the list. Default layers are:\n"
    "4 = rivers, streams and utilities; 5 = railroads;\n"
    "6 = roads; 7 = bridges and airport base polygons;\n"
    "8 = coastlines.";
constexpr std::string_view LayersReply = "2 3 4 5";

std::set<int> AllLayers() {
  std::set<int> layers;
  for (int layer = 1; layer <= LastLayer; ++layer)
    layers.insert(layer);
  return layers;
}

}  // namespace

PolyLayerList::PolyLayerList(Dialogs& dialogs, const Controls& controls, QObject* parent)
    : QObject(parent), m_dialogs(dialogs), m_list(controls.list) {
  auto* key = new QShortcut(QKeySequence::Delete, m_list);
  key->setContext(Qt::WidgetShortcut);
  connect(key, &QShortcut::activated, this, [this] { Remove(m_list->currentItem()); });
  connect(m_list, &QListWidget::itemDoubleClicked, this, &PolyLayerList::Remove);
  connect(controls.addOne, &QPushButton::clicked, this, &PolyLayerList::Add);
  connect(controls.addAll, &QPushButton::clicked, this, [this] { Show(AllLayers()); });
  connect(controls.clear, &QPushButton::clicked, this, [this] { Show({}); });
}

void PolyLayerList::Show(std::set<int> layers) {
  m_layers = std::move(layers);
  const int row = m_list->currentRow();
  m_list->clear();
  for (const int layer : m_layers) {
    auto* item = new QListWidgetItem(ToQString(LayerTitle(layer)), m_list);
    item->setData(Qt::UserRole, layer);
  }
  m_list->setCurrentRow(std::min(row, m_list->count() - 1));
}

void PolyLayerList::Add() {
  const auto reply = m_dialogs.InputText(LayersPrompt, LayersReply);
  if (!reply) return;
  const auto added = ParseLayers(*reply);
  if (!added) return m_dialogs.Message(MessageKind::Error, "Please check your entries!");
  std::set<int> layers = m_layers;
  layers.insert(added->begin(), added->end());
  Show(std::move(layers));
}

void PolyLayerList::Remove(const QListWidgetItem* item) {
  if (item == nullptr) return;
  std::set<int> layers = m_layers;
  layers.erase(item->data(Qt::UserRole).toInt());
  Show(std::move(layers));
}

}  // namespace landsmith
