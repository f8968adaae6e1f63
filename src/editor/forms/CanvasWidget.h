// The canvas: three images, the base, the overlay and what the tool draws, one on the other, and the
// translation of the window system's events into the editor's plain ones. It knows nothing of what is drawn
// or of what an event means.
#pragma once

#include "editor/Display.h"
#include "editor/Editor.h"
#include "forms/QtSurface.h"

#include <QImage>
#include <QWidget>

#include <memory>
#include <optional>
#include <set>

namespace landsmith {

class CanvasWidget final : public QWidget, public CanvasSurfaces {
  Q_OBJECT

public:
  explicit CanvasWidget(QWidget* parent = nullptr);

  /// Events go to `editor` from now on; null stops them.
  void Connect(Editor* editor);

  Surface& Base() override { return *m_baseSurface; }
  Surface& Overlay() override { return *m_overlaySurface; }
  Surface& Top() override { return *m_topSurface; }
  void ClearBase(std::int32_t color) override;
  void ClearOverlay() override;
  void ClearTop() override;
  bool LoadPicture(const std::filesystem::path& file) override { return m_pictures->Load(file); }
  void KeepPictures(std::span<const std::filesystem::path> shown) override { m_pictures->Keep(shown); }
  void Present() override { update(); }

protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  /// A real double click arrives as press, release, double click, release: the third is a press like the
  /// first.
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

private:
  void MakeImages();
  PointerInput ToPointer(QPoint at, MouseButton button, Qt::KeyboardModifiers modifiers) const;

  Editor* m_editor = nullptr;
  std::set<int> m_down;  ///< keys whose press came here
  std::shared_ptr<PictureCache> m_pictures = std::make_shared<PictureCache>();
  QImage m_base, m_overlay, m_top;
  std::unique_ptr<QtSurface> m_baseSurface, m_overlaySurface, m_topSurface;
};

/// The editor's input for a key of the window system, or nothing for a key that it does not know.
std::optional<KeyInput> ToKeyInput(const QKeyEvent& event);

}  // namespace landsmith
