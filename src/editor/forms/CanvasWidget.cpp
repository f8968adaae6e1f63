#include "forms/CanvasWidget.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include <array>
#include <cmath>

namespace landsmith {

namespace {

struct KeyRow {
  int qtKey;
  int code;
  bool keypad;
};

constexpr std::array KeyTable{
    KeyRow{Qt::Key_Delete, 46, false}, KeyRow{Qt::Key_Escape, 27, false}, KeyRow{Qt::Key_Insert, 45, false},
    KeyRow{Qt::Key_Space, 32, false},  KeyRow{Qt::Key_Left, 37, false},   KeyRow{Qt::Key_Up, 38, false},
    KeyRow{Qt::Key_Right, 39, false},  KeyRow{Qt::Key_Down, 40, false},   KeyRow{Qt::Key_Control, 17, false},
    KeyRow{Qt::Key_Minus, 109, true},  KeyRow{Qt::Key_Plus, 107, true},
};

std::optional<int> KeyCode(const QKeyEvent& event) {
  if (event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z) return event.key();
  const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
  for (const KeyRow& row : KeyTable)
    if (row.qtKey == event.key() && (keypad || !row.keypad)) return row.code;
  return {};
}

bool IsArrow(int code) {
  return code >= 37 && code <= 40;
}

MouseButton ToButton(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return MouseButton::Left;
    case Qt::RightButton:
      return MouseButton::Right;
    case Qt::MiddleButton:
      return MouseButton::Middle;
    default:
      return MouseButton::None;
  }
}

/// The button held during a move; with several the one that drags.
MouseButton HeldButton(Qt::MouseButtons buttons) {
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton})
    if (buttons.testFlag(button)) return ToButton(button);
  return MouseButton::None;
}

}  // namespace

std::optional<KeyInput> ToKeyInput(const QKeyEvent& event) {
  const std::optional<int> code = KeyCode(event);
  if (!code) return {};
  const Qt::KeyboardModifiers held = event.modifiers();
  return KeyInput{*code, held.testFlag(Qt::ShiftModifier), held.testFlag(Qt::ControlModifier),
                  held.testFlag(Qt::AltModifier)};
}

CanvasWidget::CanvasWidget(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(160, 120);
  MakeImages();
}

void CanvasWidget::Connect(Editor* editor) {
  m_editor = editor;
  if (m_editor) m_editor->Resize(width(), height());
}

void CanvasWidget::MakeImages() {
  const double ratio = devicePixelRatioF();
  const QSize pixels(std::max(1, static_cast<int>(std::lround(width() * ratio))),
                     std::max(1, static_cast<int>(std::lround(height() * ratio))));
  m_baseSurface.reset();
  m_overlaySurface.reset();
  m_topSurface.reset();
  m_base = QImage(pixels, QImage::Format_RGB32);
  m_overlay = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
  m_top = m_overlay;
  m_base.setDevicePixelRatio(ratio);
  m_overlay.setDevicePixelRatio(ratio);
  m_top.setDevicePixelRatio(ratio);
  m_baseSurface = std::make_unique<QtSurface>(m_base, m_pictures);
  m_overlaySurface = std::make_unique<QtSurface>(m_overlay, m_pictures);
  m_topSurface = std::make_unique<QtSurface>(m_top, m_pictures);
  ClearBase(CanvasColors{}.Workspace);
  ClearOverlay();
  ClearTop();
}

void CanvasWidget::ClearBase(std::int32_t color) {
  m_baseSurface->Clear(ToQColor(color));
}

void CanvasWidget::ClearOverlay() {
  m_overlaySurface->Clear(Qt::transparent);
}

void CanvasWidget::ClearTop() {
  m_topSurface->Clear(Qt::transparent);
}

void CanvasWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawImage(0, 0, m_base);
  painter.drawImage(0, 0, m_overlay);
  painter.drawImage(0, 0, m_top);
  if (m_base.devicePixelRatio() == devicePixelRatioF()) return;
  // The window was moved to a screen of another resolution.
  QTimer::singleShot(0, this, [this] { resizeEvent(nullptr); });
}

void CanvasWidget::resizeEvent(QResizeEvent*) {
  MakeImages();
  if (m_editor) m_editor->Resize(width(), height());
}

PointerInput CanvasWidget::ToPointer(QPoint at, MouseButton button, Qt::KeyboardModifiers modifiers) const {
  PointerInput in;
  in.raw = {at.x(), at.y()};
  in.at = {static_cast<float>(at.x()) - static_cast<float>(width()) / 2.0F,
           static_cast<float>(at.y()) - static_cast<float>(height()) / 2.0F};
  in.button = button;
  in.shift = modifiers.testFlag(Qt::ShiftModifier);
  in.ctrl = modifiers.testFlag(Qt::ControlModifier);
  return in;
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) {
  const MouseButton button = ToButton(event->button());
  if (!m_editor || button == MouseButton::None) return;
  m_editor->Press(ToPointer(event->position().toPoint(), button, event->modifiers()));
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event) {
  if (!m_editor) return;
  m_editor->Move(ToPointer(event->position().toPoint(), HeldButton(event->buttons()), event->modifiers()));
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
  const MouseButton button = ToButton(event->button());
  if (!m_editor || button == MouseButton::None) return;
  m_editor->Release(ToPointer(event->position().toPoint(), button, event->modifiers()));
}

void CanvasWidget::wheelEvent(QWheelEvent* event) {
  event->accept();
  if (!m_editor) return;
  m_editor->Wheel(event->angleDelta().y(),
                  ToPointer(event->position().toPoint(), HeldButton(event->buttons()), event->modifiers()));
}

void CanvasWidget::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  if (m_editor) m_editor->PointerLeft();
}

void CanvasWidget::keyPressEvent(QKeyEvent* event) {
  const std::optional<KeyInput> key = ToKeyInput(*event);
  if (!m_editor || !key) {
    // Whatever the key is for, it ends what lasts until the next key.
    if (m_editor) m_editor->KeyDown({});
    QWidget::keyPressEvent(event);
    return;
  }
  // A held key repeats; only the arrows mean something each time.
  if (event->isAutoRepeat() && !IsArrow(key->code)) return;
  m_down.insert(key->code);
  m_editor->KeyDown(*key);
}

void CanvasWidget::keyReleaseEvent(QKeyEvent* event) {
  const std::optional<KeyInput> key = ToKeyInput(*event);
  if (!m_editor || !key) {
    QWidget::keyReleaseEvent(event);
    return;
  }
  if (event->isAutoRepeat()) return;
  // A letter that chose a command in a menu or dialog is let go here, and means nothing.
  if (m_down.erase(key->code) > 0) m_editor->KeyUp(*key);
}

void CanvasWidget::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  // The release of a held key will go to whoever has the focus now.
  m_down.clear();
  if (m_editor) m_editor->FocusLost();
}

}  // namespace landsmith
