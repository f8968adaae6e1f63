// The controls of the polygon dialog that say what a polygon is for: the option buttons and the page of each.
#pragma once

#include "editor/PolyTypeChoice.h"
#include "editor/Session.h"
#include "forms/TexturePreview.h"

#include <QObject>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

class QAbstractButton;
class QButtonGroup;
class QLineEdit;

namespace landsmith {

class ColorSwatch;
class PolyLayerList;

namespace Ui {
class frmPolysP;
}

class PolyTypeFields final : public QObject {
  Q_OBJECT

public:
  PolyTypeFields(Session& session, Ui::frmPolysP& ui, QWidget* dialog);

  /// Shows a stored type; nothing stands for polygons of different types, with no option chosen. `altitude`
  /// is what the altitude box starts with where the type holds none.
  void Show(const std::optional<std::string>& type, std::int32_t color, const std::string& altitude);
  /// The vertices have this altitude by now, and the stored type too.
  void ShowAltitude(float altitude);

  struct Choice {
    PolyTypeChoice Type;
    std::int32_t Color = 0;
    bool operator==(const Choice&) const = default;
  };
  /// The bitmap of a textured polygon, and its texture pairs as they are by now.
  std::string BitmapName() const;
  const std::string& Pairs() const { return m_tiedPairs ? *m_tiedPairs : m_pairs; }
  void TiePairs(const std::string& pairs) { m_tiedPairs = pairs; }
  /// What the user chose; nothing while the controls say what they said when they were shown, so that a
  /// stored type is never rewritten by merely looking at it.
  std::optional<Choice> Changed() const;
  /// Whether an altitude was typed that is no number; the box then has the focus.
  bool RefusesAltitude() const;

private:
  void ConnectOptions();
  void ConnectTextures();
  void ConnectColor(ColorSwatch& swatch, QLineEdit* box);
  void ShowOption(const PolyTypeChoice& choice);
  void ShowTextures(const PolyTypeChoice& choice, std::int32_t color);
  void ShowClass(const std::string& number, std::int32_t color);
  void ShowAssembled(const std::string& texture, std::int32_t color);
  void ShowTex(const PolyTypeChoice& choice, std::int32_t color);
  void ShowBitmap();
  void EnableFields();
  void TakeKindColor();

  void ChooseClass();
  void ChooseAssembled();
  void ChooseNamed();
  void ChooseBitmap();

  std::optional<PolyOption> CurrentOption() const;
  /// The fields as they stand; the option may be missing.
  Choice Current() const;
  std::int32_t CurrentColor() const;

  Session& m_session;
  Ui::frmPolysP& m_ui;
  QWidget* m_dialog;
  TexturePreview m_preview;
  QButtonGroup* m_options;
  std::string m_classText, m_assembledText;  ///< textures of the class and of the pre-assembled choice
  PolyLayerList* m_layers;
  std::string m_pairs;                     ///< texture coordinates of the stored type
  std::optional<std::string> m_tiedPairs;  ///< those that the author has set here
  Choice m_shown;
  bool m_touched = false;  ///< an option was pressed, the chosen one too
};

}  // namespace landsmith
