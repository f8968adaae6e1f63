#include "forms/LineTypeFields.h"

#include "core/Color.h"
#include "core/Text.h"
#include "forms/QtText.h"
#include "forms/frmNamesT.h"
#include "forms/frmTerrain.h"
#include "ui_frmLinesP.h"
#include "vector/LineType.h"
#include "vector/TextureCatalog.h"

#include <QButtonGroup>

namespace landsmith {

namespace {

std::int32_t ColorOf(const TextureItem& item) {
  return Rgb(item.R, item.G, item.B);
}

}  // namespace

LineTypeFields::LineTypeFields(Session& session, Ui::frmLinesP& ui, QWidget* dialog)
    : QObject(dialog), m_session(session), m_ui(ui), m_dialog(dialog) {
  // Option buttons of one box take those of a box inside it for their own, unless they have a group.
  m_options = new QButtonGroup(this);
  auto* textures = new QButtonGroup(this);
  textures->addButton(ui.optAptTex);
  textures->addButton(ui.optNameTex);
  for (QRadioButton* option : {ui.optNone, ui.optObjects, ui.optPoints, ui.optVTP, ui.optOther}) {
    m_options->addButton(option);
    connect(option, &QRadioButton::toggled, this, &LineTypeFields::EnableFields);
    connect(option, &QRadioButton::clicked, this, [this] { m_touched = true; });
  }
  connect(ui.optAptTex, &QRadioButton::toggled, this, &LineTypeFields::EnableFields);
  connect(ui.cmdAptTex, &QPushButton::clicked, this, &LineTypeFields::ChooseAssembled);
  connect(ui.cmdNameTex, &QPushButton::clicked, this, &LineTypeFields::ChooseNamed);
  connect(ui.lbColor, &QPushButton::clicked, this, [this] {
    if (const auto color = m_session.dialogs.ChooseColor(m_ui.lbColor->Color()))
      m_ui.lbColor->SetColor(*color);
  });
}

void LineTypeFields::Show(const std::optional<std::string>& type, std::int32_t color) {
  m_stored = type.value_or("");
  const std::string_view head = TypeHead(m_stored);
  m_ui.optOther->setVisible(head == "Other");
  m_ui.lbColor->SetColor(color);
  ShowVtp(m_stored, color);
  if (!type) {
    m_options->setExclusive(false);
    if (QAbstractButton* option = m_options->checkedButton()) option->setChecked(false);
    m_options->setExclusive(true);
  } else if (m_stored.empty()) {
    m_ui.optNone->setChecked(true);
  } else if (head == "VTP") {
    m_ui.optVTP->setChecked(true);
  } else if (head == "Other") {
    m_ui.optOther->setChecked(true);
  } else if (head == "Points") {
    m_ui.optPoints->setChecked(true);
  } else {
    m_ui.optObjects->setChecked(true);
  }
  EnableFields();
  m_shown = Current();
  m_touched = false;
}

// Lines of other types see the catalogue's current texture, ready for a change to VTP.
void LineTypeFields::ShowVtp(const std::string& type, std::int32_t color) {
  const TextureCatalog& catalog = m_session.lineTextures;
  const LineType decoded = DecodeLineType(type);
  const auto* vtp = std::get_if<VtpLine>(&decoded);
  const std::string texture = vtp ? std::string(Trim(vtp->Texture)) : std::string();
  m_ui.txtLayer->setText(ToQString(vtp ? vtp->Layer : ""));
  const bool named = vtp && !IsNumericTexture(texture);
  m_ui.optNameTex->setChecked(named);
  m_ui.optAptTex->setChecked(!named);
  m_ui.txtNameTex->setText(named ? ToQString(texture) : QString());
  m_ui.txtNameTex->setCursorPosition(0);
  if (vtp && !named) {
    const std::size_t found = FindTexture(catalog, texture);
    if (found < catalog.size()) m_session.currentLineTexture = found;
    m_assembledText = texture;
    m_ui.txtAptTex->setText(found < catalog.size() ? ToQString(catalog[found].Title) : ToQString(texture));
    m_ui.lbTex->SetColor(color);
    return;
  }
  if (m_session.currentLineTexture >= catalog.size()) return;
  const TextureItem& item = catalog[m_session.currentLineTexture];
  m_assembledText = TextureText(item);
  m_ui.txtAptTex->setText(ToQString(item.Title));
  m_ui.lbTex->SetColor(ColorOf(item));
}

void LineTypeFields::ChooseAssembled() {
  frmTerrain terrain(m_session, TextureKind::Line, m_dialog);
  if (terrain.exec() != QDialog::Accepted) return;
  const TextureItem& item = m_session.lineTextures[m_session.currentLineTexture];
  m_assembledText = TextureText(item);
  m_ui.txtAptTex->setText(ToQString(item.Title));
  m_ui.lbTex->SetColor(ColorOf(item));
  m_ui.optAptTex->setChecked(true);
}

void LineTypeFields::ChooseNamed() {
  frmNamesT names(m_session, TextureKind::Line, m_ui.lbColor->Color(), m_dialog);
  if (names.exec() != QDialog::Accepted) return;
  m_ui.txtNameTex->setText(ToQString(names.TextureName()));
  m_ui.txtNameTex->setCursorPosition(0);
  m_ui.lbColor->SetColor(names.Color());
  m_ui.optNameTex->setChecked(true);
}

void LineTypeFields::EnableFields() {
  const bool assembled = m_ui.optAptTex->isChecked();
  m_ui.frVTP->setEnabled(m_ui.optVTP->isChecked());
  m_ui.txtAptTex->setEnabled(assembled);
  m_ui.cmdAptTex->setEnabled(assembled);
  m_ui.txtNameTex->setEnabled(!assembled);
  m_ui.cmdNameTex->setEnabled(!assembled);
  m_ui.lbColor->setEnabled(!assembled);
}

std::optional<LineTypeFields::Choice> LineTypeFields::Current() const {
  if (m_ui.optNone->isChecked()) return Choice{EncodeLineType(PlainLine{}), {}};
  if (m_ui.optObjects->isChecked()) return Choice{EncodeLineType(ObjectsLine{}), {}};
  if (m_ui.optPoints->isChecked()) return Choice{EncodeLineType(PointsLine{}), {}};
  if (m_ui.optOther->isChecked()) return Choice{m_stored, {}};
  if (!m_ui.optVTP->isChecked()) return {};
  VtpLine vtp;
  vtp.Layer = m_ui.txtLayer->text().toStdString();
  if (m_ui.optAptTex->isChecked()) {
    vtp.Texture = m_assembledText;
    return Choice{EncodeLineType(vtp), m_ui.lbTex->Color()};
  }
  vtp.Texture = m_ui.txtNameTex->text().trimmed().toStdString();
  return Choice{EncodeLineType(vtp), m_ui.lbColor->Color()};
}

std::optional<LineTypeFields::Choice> LineTypeFields::Changed() const {
  const std::optional<Choice> current = Current();
  const bool asShown = current.has_value() == m_shown.has_value() &&
                       (!current || (current->Type == m_shown->Type && current->Color == m_shown->Color));
  return asShown && !m_touched ? std::nullopt : current;
}

}  // namespace landsmith
