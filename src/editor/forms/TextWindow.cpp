#include "forms/TextWindow.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace landsmith {

TextWindow::TextWindow(const QString& title, const QString& text, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("TextWindow"));
  setWindowTitle(title);

  auto* view = new QPlainTextEdit(text, this);
  view->setObjectName(QStringLiteral("txtText"));
  view->setReadOnly(true);
  view->setLineWrapMode(QPlainTextEdit::NoWrap);
  view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  buttons->button(QDialogButtonBox::Close)->setDefault(true);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(view);
  layout->addWidget(buttons);

  const QFontMetrics metrics(view->font());
  resize(metrics.horizontalAdvance(QLatin1Char('x')) * 84, metrics.height() * 26);
}

}  // namespace landsmith
