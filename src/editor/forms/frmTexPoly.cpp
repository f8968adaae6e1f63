#include "forms/frmTexPoly.h"

#include "core/Numbers.h"
#include "forms/QtText.h"
#include "forms/TexBitmap.h"
#include "forms/TexturePreview.h"
#include "ui_frmTexPoly.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>

#include <array>

namespace landsmith {

namespace {

constexpr int FirstRepeatMs = 400, RepeatMs = 60;

struct Arrow {
  QToolButton* Button;
  std::int32_t East, North;
};
std::array<Arrow, 4> Arrows(const Ui::frmTexPoly& ui) {
  return {{{ui.cmdLL, -1, 0}, {ui.cmdRR, 1, 0}, {ui.cmdUU, 0, 1}, {ui.cmdDD, 0, -1}}};
}

/// A box that holds the number already, in whatever spelling, keeps it.
void ShowNumber(QLineEdit& box, std::int32_t number) {
  if (ParseInt32(box.text().toStdString()) == number) return;
  const QSignalBlocker quiet(box);
  box.setText(QString::number(number));
}

}  // namespace

frmTexPoly::frmTexPoly(Session& session, const PolyRec& poly, const std::string& bitmap,
                       std::string_view pairs, QWidget* parent)
    : QDialog(parent),
      m_session(session),
      m_ui(std::make_unique<Ui::frmTexPoly>()),
      m_points(poly, pairs),
      m_timer(new QTimer(this)) {
  m_ui->setupUi(this);
  setWindowTitle(tr("Landsmith - Set Tying Points for Texture %1").arg(ToQString(bitmap)));
  m_timer->setObjectName(QStringLiteral("Timer1"));
  m_ui->picTex->Show(m_points, LoadBitmap(bitmap));
  ConnectControls();
  ShowCurrent();
  m_ui->picTex->setFocus();
}

// A box that is left when the form goes speaks up once more: while all of it is still there.
frmTexPoly::~frmTexPoly() {
  hide();
}

QPixmap frmTexPoly::LoadBitmap(const std::string& name) {
  if (name.empty()) return {};
  const auto file = FindTexBitmap(m_session, name);
  if (!file) {
    m_session.dialogs.Message(MessageKind::Error, CopyBitmapMessage("This texture"));
    return {};
  }
  TexturePreview preview(m_session);
  QPixmap picture = LoadTexBitmap(preview, *file);
  if (picture.isNull()) m_session.dialogs.Message(MessageKind::Error, WrongBitmapMessage());
  return picture;
}

void frmTexPoly::ConnectControls() {
  connect(m_ui->picTex, &TiePicture::Edited, this, &frmTexPoly::ShowCurrent);
  for (QLineEdit* box : {m_ui->txtPX, m_ui->txtPY}) {
    connect(box, &QLineEdit::textChanged, this, &frmTexPoly::TakeTyped);
    connect(box, &QLineEdit::editingFinished, this, &frmTexPoly::ShowCurrent);
  }
  for (const Arrow& arrow : Arrows(*m_ui))
    connect(arrow.Button, &QToolButton::pressed, this, [this] {
      NudgeHeld();
      m_timer->start(FirstRepeatMs);
    });
  connect(m_timer, &QTimer::timeout, this, [this] {
    m_timer->setInterval(RepeatMs);
    NudgeHeld();
  });
  connect(m_ui->cmdReset, &QPushButton::clicked, this, [this] {
    m_points.Reset();
    ShowCurrent();
  });
  connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmTexPoly::accept);
  connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmTexPoly::reject);
}

void frmTexPoly::ShowCurrent() {
  m_ui->frPoint->setTitle(tr("Point # %1").arg(m_points.CurrentTiePoint() + 1));
  const RasterPoint at = m_points.Position();
  ShowNumber(*m_ui->txtPX, at.X);
  ShowNumber(*m_ui->txtPY, at.Y);
  m_ui->picTex->update();
}

// A box under way, empty or with a lone sign, moves nothing; it is put right when it is left.
void frmTexPoly::TakeTyped() {
  const auto x = ParseInt32(m_ui->txtPX->text().toStdString());
  const auto y = ParseInt32(m_ui->txtPY->text().toStdString());
  const RasterPoint before = m_points.Position();
  const RasterPoint typed{x.value_or(before.X), y.value_or(before.Y)};
  if (typed != before) m_points.MoveTo(typed);
  if (x && y) ShowCurrent();
  m_ui->picTex->update();
}

void frmTexPoly::keyPressEvent(QKeyEvent* event) {
  const bool chooses = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
  if (chooses && !m_ui->picTex->hasFocus())
    QCoreApplication::sendEvent(m_ui->picTex, event);
  else
    QDialog::keyPressEvent(event);
}

void frmTexPoly::NudgeHeld() {
  for (const Arrow& arrow : Arrows(*m_ui)) {
    if (!arrow.Button->isDown()) continue;
    m_points.Nudge(arrow.East, arrow.North);
    return ShowCurrent();
  }
  m_timer->stop();
}

}  // namespace landsmith
