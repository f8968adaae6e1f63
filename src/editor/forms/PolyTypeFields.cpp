#include "forms/PolyTypeFields.h"

#include "core/Color.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "forms/PolyLayerList.h"
#include "forms/QtText.h"
#include "forms/TexBitmap.h"
#include "forms/frmNamesT.h"
#include "forms/frmTerrain.h"
#include "ui_frmPolysP.h"

#include <QButtonGroup>
#include <QRegularExpressionValidator>

#include <algorithm>
#include <array>
#include <system_error>

namespace landsmith {

namespace {

constexpr std::string_view NoBitmap = "na.bmp";
constexpr int PictureSide = 128;

std::int32_t ColorOf(const TextureItem& item) {
  return Rgb(item.R, item.G, item.B);
}

/// The land classes as entries to choose from; each is used by its number.
TextureCatalog ClassTextures(const ClassTable& classes) {
  TextureCatalog items;
  for (int i = 1; i <= classes.Count; ++i) {
    const ClassTableItem& item = classes.Items[static_cast<std::size_t>(i)];
    items.push_back({item.Code, item.Texture, item.Text, "", item.R, item.G, item.B});
  }
  return items;
}

bool LiesInOneOf(const std::filesystem::path& file, const std::vector<std::filesystem::path>& folders) {
  return std::any_of(folders.begin(), folders.end(), [&](const std::filesystem::path& folder) {
    std::error_code missing;
    return std::filesystem::equivalent(file.parent_path(), folder, missing);
  });
}

QColor ToQColor(std::int32_t color) {
  const ColorParts parts = SplitColor(color);
  return {parts.R, parts.G, parts.B};
}

/// The box takes the colour as its ground; a disabled one keeps the look of disabled boxes.
void ColorBox(QLineEdit& box, std::int32_t color) {
  QPalette palette = box.palette();
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Base, ToQColor(color));
    palette.setColor(group, QPalette::Text, ToQColor(ContrastColor(color)));
  }
  box.setPalette(palette);
}

void ShowText(QLineEdit& box, const std::string& text) {
  box.setText(ToQString(text));
  box.setCursorPosition(0);
}

}  // namespace

PolyTypeFields::PolyTypeFields(Session& session, Ui::frmPolysP& ui, QWidget* dialog)
    : QObject(dialog), m_session(session), m_ui(ui), m_dialog(dialog), m_preview(session) {
  m_layers =
      new PolyLayerList(session.dialogs, {ui.lstLayers, ui.cmdAddOne, ui.cmdAddAll, ui.cmdClear}, this);
  for (QLineEdit* box : {ui.txtLayer, ui.txtTexPri, ui.txtTexTileX, ui.txtTexTileY, ui.txtV1})
    box->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), this));
  ConnectOptions();
  ConnectTextures();
  ConnectColor(*ui.lbAltColor, ui.txtAltitude);
  ConnectColor(*ui.lbColor, ui.txtNameTex);
  ConnectColor(*ui.lbTexColor, ui.txtTexName);
}

// Option buttons of one box take those of a page inside it for their own, unless they have a group.
void PolyTypeFields::ConnectOptions() {
  m_options = new QButtonGroup(this);
  auto* kinds = new QButtonGroup(this);
  auto* textures = new QButtonGroup(this);
  const std::array<std::pair<QRadioButton*, QWidget*>, 5> pages{{{m_ui.optNone, m_ui.pgNone},
                                                                 {m_ui.optLWM, m_ui.pgLWM},
                                                                 {m_ui.optVTP, m_ui.pgVTP},
                                                                 {m_ui.optOther, m_ui.pgOther},
                                                                 {m_ui.optTex, m_ui.pgTex}}};
  for (const auto& [option, page] : pages) {
    m_options->addButton(option);
    connect(option, &QRadioButton::toggled, this, [this, page = page](bool on) {
      if (on) m_ui.stkType->setCurrentWidget(page);
    });
    connect(option, &QRadioButton::clicked, this, [this] { m_touched = true; });
  }
  for (QRadioButton* kind : {m_ui.optLand, m_ui.optWater, m_ui.optFlatten}) {
    kinds->addButton(kind);
    connect(kind, &QRadioButton::clicked, this, &PolyTypeFields::TakeKindColor);
  }
  for (QRadioButton* texture : {m_ui.optClassTex, m_ui.optAptTex, m_ui.optNameTex}) {
    textures->addButton(texture);
    connect(texture, &QRadioButton::toggled, this, &PolyTypeFields::EnableFields);
  }
}

void PolyTypeFields::ConnectTextures() {
  connect(m_ui.cmdClassTex, &QPushButton::clicked, this, &PolyTypeFields::ChooseClass);
  connect(m_ui.cmdAptTex, &QPushButton::clicked, this, &PolyTypeFields::ChooseAssembled);
  connect(m_ui.cmdNameTex, &QPushButton::clicked, this, &PolyTypeFields::ChooseNamed);
  connect(m_ui.cmdTex, &QPushButton::clicked, this, &PolyTypeFields::ChooseBitmap);
  connect(m_ui.txtTexName, &QLineEdit::editingFinished, this, &PolyTypeFields::ShowBitmap);
}

void PolyTypeFields::ConnectColor(ColorSwatch& swatch, QLineEdit* box) {
  connect(&swatch, &QPushButton::clicked, this, [this, &swatch, box] {
    const auto color = m_session.dialogs.ChooseColor(swatch.Color());
    if (!color) return;
    swatch.SetColor(*color);
    ColorBox(*box, *color);
  });
}

void PolyTypeFields::Show(const std::optional<std::string>& type, std::int32_t color,
                          const std::string& altitude) {
  PolyTypeChoice choice = ChoiceOfType(type.value_or(""));
  if (!type) choice.Option.reset();
  const bool isLwm = choice.Option == PolyOption::Lwm;
  ShowOption(choice);
  m_ui.optLand->setChecked(choice.Kind == LwmKind::Land);
  m_ui.optWater->setChecked(choice.Kind == LwmKind::Water);
  m_ui.optFlatten->setChecked(choice.Kind == LwmKind::Flatten);
  ShowText(*m_ui.txtAltitude, isLwm ? choice.Altitude : altitude);
  TakeKindColor();
  if (isLwm) {
    m_ui.lbAltColor->SetColor(color);
    ColorBox(*m_ui.txtAltitude, color);
  }
  ShowTextures(choice, color);
  m_layers->Show(choice.Layers);
  ShowTex(choice, color);
  EnableFields();
  m_shown = Current();
  m_touched = false;
}

void PolyTypeFields::ShowOption(const PolyTypeChoice& choice) {
  m_options->setExclusive(false);
  for (QAbstractButton* option : m_options->buttons())
    option->setChecked(false);
  m_ui.stkType->setCurrentWidget(m_ui.pgNone);
  m_ui.optNone->setChecked(choice.Option == PolyOption::None);
  m_ui.optLWM->setChecked(choice.Option == PolyOption::Lwm);
  m_ui.optOther->setChecked(choice.Option == PolyOption::Other);
  m_ui.optVTP->setChecked(choice.Option == PolyOption::Vtp);
  m_ui.optTex->setChecked(choice.Option == PolyOption::Tex);
  m_options->setExclusive(true);
}

// The textures that are not the stored one's are ready for a change: the first class, the catalogue's
// current entry.
void PolyTypeFields::ShowTextures(const PolyTypeChoice& choice, std::int32_t color) {
  const bool isVtp = choice.Option == PolyOption::Vtp;
  m_ui.txtLayer->setText(ToQString(isVtp ? choice.Layer : ""));
  m_ui.optClassTex->setChecked(choice.Texture == PolyTexture::Class);
  m_ui.optAptTex->setChecked(choice.Texture == PolyTexture::Assembled);
  m_ui.optNameTex->setChecked(choice.Texture == PolyTexture::Named);

  const bool isClass = isVtp && choice.Texture == PolyTexture::Class;
  const ClassTable& classes = m_session.lands;
  ShowClass(isClass || classes.Count == 0 ? choice.ClassTexture : std::to_string(classes.Items[1].Code),
            color);
  const TextureCatalog& catalog = m_session.polyTextures;
  const bool isAssembled = isVtp && choice.Texture == PolyTexture::Assembled;
  if (isAssembled || m_session.currentPolyTexture >= catalog.size())
    ShowAssembled(choice.AssembledTexture, color);
  else
    ShowAssembled(TextureText(catalog[m_session.currentPolyTexture]), color);
  ShowText(*m_ui.txtNameTex, choice.NamedTexture);
  m_ui.lbColor->SetColor(color);
  ColorBox(*m_ui.txtNameTex, color);
}

// A class that the table lacks leaves the polygon its colour.
void PolyTypeFields::ShowClass(const std::string& number, std::int32_t color) {
  m_classText = number;
  const TextureCatalog classes = ClassTextures(m_session.lands);
  const std::size_t found = FindTexture(classes, number);
  const bool known = found < classes.size();
  ShowText(*m_ui.txtClassTex, known ? classes[found].Title : number);
  m_ui.lbClass->SetColor(known ? ColorOf(classes[found]) : color);
  ColorBox(*m_ui.txtClassTex, m_ui.lbClass->Color());
}

void PolyTypeFields::ShowAssembled(const std::string& texture, std::int32_t color) {
  m_assembledText = texture;
  const TextureCatalog& catalog = m_session.polyTextures;
  const auto found = std::find_if(catalog.begin(), catalog.end(),
                                  [&](const TextureItem& item) { return TextureText(item) == texture; });
  const bool known = found != catalog.end();
  if (known) m_session.currentPolyTexture = static_cast<std::size_t>(found - catalog.begin());
  ShowText(*m_ui.txtAptTex, known ? found->Title : texture);
  m_ui.lbTex->SetColor(known ? ColorOf(*found) : color);
  ColorBox(*m_ui.txtAptTex, m_ui.lbTex->Color());
}

void PolyTypeFields::ShowTex(const PolyTypeChoice& choice, std::int32_t color) {
  const TexPolyType& tex = choice.Tex;
  ShowText(*m_ui.txtTexName, tex.Name);
  ShowText(*m_ui.txtTexPri, tex.Priority);
  ShowText(*m_ui.txtTexTileX, tex.TileX);
  ShowText(*m_ui.txtTexTileY, tex.TileY);
  ShowText(*m_ui.txtV1, tex.V1);
  m_ui.ckNight->setChecked(ParseInt16(tex.Night).value_or(0) != 0);
  m_pairs = tex.Pairs;
  m_tiedPairs.reset();
  m_ui.lbTexColor->SetColor(color);
  ColorBox(*m_ui.txtTexName, color);
  ShowBitmap();
}

void PolyTypeFields::ShowBitmap() {
  const auto file = FindTexBitmap(m_session, BitmapName());
  QPixmap picture = file ? LoadTexBitmap(m_preview, *file) : QPixmap();
  if (picture.isNull()) picture = m_preview.LoadFromCatalog(std::string(NoBitmap));
  m_ui.imgTex->setPixmap(picture.isNull() ? picture
                                          : picture.scaled(PictureSide, PictureSide, Qt::KeepAspectRatio,
                                                           Qt::SmoothTransformation));
}

void PolyTypeFields::ShowAltitude(float altitude) {
  const std::string text = NumberText(altitude);
  ShowText(*m_ui.txtAltitude, text);
  m_shown.Type.Altitude = text;
}

// Each kind of mask has its colour in the preferences.
void PolyTypeFields::TakeKindColor() {
  const AppSettings& settings = m_session.settings;
  std::int32_t color = settings.PolyLandColor;
  if (m_ui.optWater->isChecked()) color = settings.PolyWaterColor;
  if (m_ui.optFlatten->isChecked()) color = settings.PolyFlattenColor;
  m_ui.lbAltColor->SetColor(color);
  ColorBox(*m_ui.txtAltitude, color);
}

void PolyTypeFields::EnableFields() {
  const auto enable = [](const QRadioButton* option, std::initializer_list<QWidget*> fields) {
    for (QWidget* field : fields)
      field->setEnabled(option->isChecked());
  };
  enable(m_ui.optClassTex, {m_ui.txtClassTex, m_ui.cmdClassTex});
  enable(m_ui.optAptTex, {m_ui.txtAptTex, m_ui.cmdAptTex});
  enable(m_ui.optNameTex, {m_ui.txtNameTex, m_ui.lbColor, m_ui.cmdNameTex});
}

void PolyTypeFields::ChooseClass() {
  const TextureCatalog classes = ClassTextures(m_session.lands);
  frmTerrain form(m_session, tr("Landsmith - Land Classes"), classes, FindTexture(classes, m_classText),
                  m_dialog);
  if (form.exec() == QDialog::Accepted) ShowClass(TextureText(form.Chosen()), m_ui.lbClass->Color());
}

void PolyTypeFields::ChooseAssembled() {
  frmTerrain form(m_session, TextureKind::Poly, m_dialog);
  if (form.exec() == QDialog::Accepted) ShowAssembled(TextureText(form.Chosen()), m_ui.lbTex->Color());
}

void PolyTypeFields::ChooseNamed() {
  frmNamesT names(m_session, TextureKind::Poly, m_ui.lbColor->Color(), m_dialog);
  if (names.exec() != QDialog::Accepted) return;
  ShowText(*m_ui.txtNameTex, names.TextureName());
  m_ui.lbColor->SetColor(names.Color());
  ColorBox(*m_ui.txtNameTex, names.Color());
}

void PolyTypeFields::ChooseBitmap() {
  const std::vector<std::filesystem::path> folders = TexFolders(m_session);
  const auto file = m_session.dialogs.ChooseFileToOpen(
      {"Landsmith: Texture of a Polygon", "Bitmap File (*.BMP)|*.BMP|All Files|*.*", folders.back(), ""});
  if (!file) return;
  const std::string name = PathText(file->filename());
  if (!LiesInOneOf(*file, folders))
    return m_session.dialogs.Message(MessageKind::Error, CopyBitmapMessage(name));
  ShowText(*m_ui.txtTexName, name);
  ShowBitmap();
  if (LoadTexBitmap(m_preview, *file).isNull())
    m_session.dialogs.Message(MessageKind::Error, WrongBitmapMessage());
}

std::string PolyTypeFields::BitmapName() const {
  return m_ui.txtTexName->text().trimmed().toStdString();
}

std::optional<PolyOption> PolyTypeFields::CurrentOption() const {
  if (m_ui.optNone->isChecked()) return PolyOption::None;
  if (m_ui.optLWM->isChecked()) return PolyOption::Lwm;
  if (m_ui.optOther->isChecked()) return PolyOption::Other;
  if (m_ui.optVTP->isChecked()) return PolyOption::Vtp;
  if (m_ui.optTex->isChecked()) return PolyOption::Tex;
  return {};
}

std::int32_t PolyTypeFields::CurrentColor() const {
  if (m_ui.optLWM->isChecked()) return m_ui.lbAltColor->Color();
  if (m_ui.optOther->isChecked()) return m_session.settings.PolyExcludeColor;
  if (m_ui.optTex->isChecked()) return m_ui.lbTexColor->Color();
  if (!m_ui.optVTP->isChecked()) return m_session.settings.PolyColorFill;
  if (m_ui.optClassTex->isChecked()) return m_ui.lbClass->Color();
  return m_ui.optAptTex->isChecked() ? m_ui.lbTex->Color() : m_ui.lbColor->Color();
}

PolyTypeFields::Choice PolyTypeFields::Current() const {
  const auto text = [](const QLineEdit* box) { return box->text().toStdString(); };
  PolyTypeChoice choice;
  choice.Option = CurrentOption();
  if (m_ui.optWater->isChecked()) choice.Kind = LwmKind::Water;
  if (m_ui.optFlatten->isChecked()) choice.Kind = LwmKind::Flatten;
  choice.Altitude = text(m_ui.txtAltitude);
  choice.Layer = text(m_ui.txtLayer);
  if (m_ui.optClassTex->isChecked()) choice.Texture = PolyTexture::Class;
  if (m_ui.optNameTex->isChecked()) choice.Texture = PolyTexture::Named;
  choice.ClassTexture = m_classText;
  choice.AssembledTexture = m_assembledText;
  choice.NamedTexture = text(m_ui.txtNameTex);
  choice.Layers = m_layers->Layers();
  choice.Tex.Name = BitmapName();
  choice.Tex.Priority = text(m_ui.txtTexPri);
  choice.Tex.TileX = text(m_ui.txtTexTileX);
  choice.Tex.TileY = text(m_ui.txtTexTileY);
  choice.Tex.V1 = text(m_ui.txtV1);
  choice.Tex.Night = m_ui.ckNight->isChecked() ? "1" : "0";
  choice.Tex.Pairs = m_pairs;
  choice.TiedPairs = m_tiedPairs;
  return {choice, CurrentColor()};
}

std::optional<PolyTypeFields::Choice> PolyTypeFields::Changed() const {
  Choice current = Current();
  if (!current.Type.Option || (current == m_shown && !m_touched)) return {};
  return current;
}

bool PolyTypeFields::RefusesAltitude() const {
  const std::string typed = m_ui.txtAltitude->text().toStdString();
  if (!m_ui.optLWM->isChecked() || typed == m_shown.Type.Altitude || ParseFloat(typed)) return false;
  m_ui.txtAltitude->setFocus();
  return true;
}

}  // namespace landsmith
