// What the two forms of one vertex have in common: they stand beside the canvas, follow the walk of the arrow
// keys, show what the canvas makes of their vertex, and close when it is gone.
#pragma once

#include "editor/Editor.h"
#include "editor/PointEdit.h"

#include <QDialog>

#include <optional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace landsmith {

class PointForm : public QDialog {
  Q_OBJECT

public:
  PointForm(Session& session, Editor& editor, QWidget* parent);

  /// The vertex of a target that exists; walking leads to others.
  void ShowPoint(const PopupTarget& target);
  /// The walk has come to this vertex. A target without a kind closes the form.
  void Follow(const PopupTarget& target);
  /// Looks what has become of the vertex: the form shows new values, or closes when it is gone.
  void Check();

protected:
  /// The controls that both forms have.
  struct Controls {
    QLabel* Title;
    QLabel* Point;
    QLabel* Third;     ///< names the box behind it
    QLineEdit* Width;  ///< width or altitude
    QPushButton* Previous;
    QPushButton* Next;
  };
  void Use(const Controls& controls);
  /// Shows the position of the vertex.
  virtual void ShowPosition(LatLon at) = 0;

  bool HasPoint() const { return m_point.has_value(); }
  const PointValues& Shown() const { return m_point->Shown(); }
  PopupTarget Target() const { return TargetOf(m_session.project, m_point->Vertex()); }
  /// The width or altitude as typed; nothing, after the message, when it is refused.
  std::optional<float> ReadThird();
  /// Stores the values as one change and closes; a vertex that is gone is told.
  void StoreAndClose(const PointValues& values);
  /// A message about a box, which gets the focus.
  void Refuse(QLineEdit* box, std::string_view message);

  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

  Session& m_session;
  Editor& m_editor;

private:
  void ShowValues();
  void Step(WalkStep step);
  void LimitWidth();

  Controls m_controls{};
  std::optional<WatchedPoint> m_point;
  QString m_shownThird;
};

}  // namespace landsmith
