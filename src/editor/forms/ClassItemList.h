// The class items page of the project dialog: a working copy of the legend, edited entry by entry.
#pragma once

#include "core/Records.h"
#include "editor/Session.h"

#include <QObject>

#include <vector>

class QListWidget;
class QPushButton;

namespace landsmith {

class ColorSwatch;

class ClassItemList final : public QObject {
  Q_OBJECT

public:
  struct Controls {
    QListWidget* list;
    ColorSwatch* color;
    QPushButton *add, *edit, *remove;
  };
  ClassItemList(Session& session, const Controls& controls, QObject* parent);

  const RecordList<ClassItemRec>& Items() const { return m_items; }

private:
  void Add();
  void Edit();
  void Delete();
  void ChooseColor();
  void ShowCurrent();
  void ShowAll(int current);
  /// Text and classes of an entry; false, after the message, when the text is refused.
  bool SetText(ClassItemRec& item, const std::string& text);

  Session& m_session;
  Controls m_controls;
  RecordList<ClassItemRec> m_items;
};

}  // namespace landsmith
