#include "forms/HintLabel.h"

#include "forms/QtText.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>

namespace landsmith {

HintLabel::HintLabel(const QString& name) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void HintLabel::Show(std::string_view hint) {
  const QString shown = ToQString(hint);
  if (shown == text()) return;
  setText(shown);
  setToolTip(shown);
}

QSize HintLabel::sizeHint() const {
  return {0, QFontMetrics(font()).height() + 2};
}

void HintLabel::paintEvent(QPaintEvent*) {
  constexpr int margin = 4;
  QPainter painter(this);
  const QRect room = rect().adjusted(margin, 0, -margin, 0);
  const QString shown = QFontMetrics(font()).elidedText(text(), Qt::ElideRight, room.width());
  style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                        QPalette::WindowText);
}

}  // namespace landsmith
