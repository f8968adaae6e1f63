#include "forms/ClassItemList.h"

#include "core/Color.h"
#include "forms/ColorSwatch.h"
#include "forms/QtText.h"
#include "raster/ClassTable.h"

#include <QListWidget>
#include <QPushButton>

#include <algorithm>
#include <string>

namespace landsmith {

namespace {

constexpr std::string_view AddPrompt =
    "You should enter 3 numbers separated by spaces "
    "and an optional text. The 3 numbers refer to 3 classes "
    "which are assigned to a specific color of the Class "
    "Map . The 1st class is used 60% of the time, the 2nd "
    "class 25% and the 3rd class 15%.";
constexpr std::string_view EditPrompt =
    "You should enter 3 numbers separated by spaces "
    "and an optional text. The 3 numbers refer to 3 Land "
    "Classes which are assigned to a specific color of the Land "
    "Use Map . The 1st Class is used 60% of the time, the 2nd "
    "Class 25% and the 3rd Class 15%.";
constexpr std::string_view ModelText = "101 102 103 City Textures";

void SetColor(ClassItemRec& item, std::int32_t color) {
  const ColorParts parts = SplitColor(color);
  item.R = parts.R;
  item.G = parts.G;
  item.B = parts.B;
  item.Key = (item.R * 256 + item.G) * 256 + item.B;
}

}  // namespace

ClassItemList::ClassItemList(Session& session, const Controls& controls, QObject* parent)
    : QObject(parent), m_session(session), m_controls(controls), m_items(session.project.LCI) {
  connect(controls.add, &QPushButton::clicked, this, &ClassItemList::Add);
  connect(controls.edit, &QPushButton::clicked, this, &ClassItemList::Edit);
  connect(controls.list, &QListWidget::itemDoubleClicked, this, &ClassItemList::Edit);
  connect(controls.remove, &QPushButton::clicked, this, &ClassItemList::Delete);
  connect(controls.color, &QPushButton::clicked, this, &ClassItemList::ChooseColor);
  connect(controls.list, &QListWidget::currentRowChanged, this, &ClassItemList::ShowCurrent);
  ShowAll(0);
}

bool ClassItemList::SetText(ClassItemRec& item, const std::string& text) {
  ClassNumbers numbers;
  if (!ParseClassItemText(text, m_session.lands, numbers)) {
    m_session.dialogs.Message(MessageKind::Error, "Please check your entry!");
    return false;
  }
  item.Text = text;
  item.Class1 = static_cast<std::uint8_t>(numbers.Codes[0]);
  item.Class2 = static_cast<std::uint8_t>(numbers.Codes[1]);
  item.Class3 = static_cast<std::uint8_t>(numbers.Codes[2]);
  return true;
}

void ClassItemList::Add() {
  const auto text = m_session.dialogs.InputText(AddPrompt, ModelText);
  ClassItemRec item;
  SetColor(item, Rgb(255, 255, 0));
  if (!text || !SetText(item, *text)) return;
  m_items.push_back(item);
  ShowAll(static_cast<int>(m_items.size()) - 1);
}

void ClassItemList::Edit() {
  const int row = m_controls.list->currentRow();
  if (row < 0) return;
  ClassItemRec& item = m_items.Edit(static_cast<std::size_t>(row));
  const auto text = m_session.dialogs.InputText(EditPrompt, item.Text);
  if (text && SetText(item, *text)) ShowAll(row);
}

void ClassItemList::Delete() {
  const int row = m_controls.list->currentRow();
  if (row < 0) return;
  m_items.Erase(static_cast<std::size_t>(row));
  ShowAll(std::min(row, static_cast<int>(m_items.size()) - 1));
}

void ClassItemList::ChooseColor() {
  const int row = m_controls.list->currentRow();
  if (row < 0) return;
  const auto color = m_session.dialogs.ChooseColor(m_controls.color->Color());
  if (!color) return;
  SetColor(m_items.Edit(static_cast<std::size_t>(row)), *color);
  ShowAll(row);
}

void ClassItemList::ShowAll(int current) {
  {
    const QSignalBlocker quiet(m_controls.list);
    m_controls.list->clear();
    for (const ClassItemRec& item : m_items) {
      auto* entry = new QListWidgetItem(ToQString(item.Text), m_controls.list);
      QPixmap mark(16, 16);
      mark.fill(QColor(item.R, item.G, item.B));
      QIcon icon(mark);
      icon.addPixmap(mark, QIcon::Selected);  // the true colour in the marked row too
      entry->setIcon(icon);
    }
    m_controls.list->setCurrentRow(current);
  }
  ShowCurrent();
}

void ClassItemList::ShowCurrent() {
  const int row = m_controls.list->currentRow();
  for (QWidget* control : {static_cast<QWidget*>(m_controls.color), static_cast<QWidget*>(m_controls.edit),
                           static_cast<QWidget*>(m_controls.remove)})
    control->setEnabled(row >= 0);
  if (row < 0) return;
  const ClassItemRec& item = m_items[static_cast<std::size_t>(row)];
  m_controls.color->SetColor(Rgb(item.R, item.G, item.B));
}

}  // namespace landsmith
