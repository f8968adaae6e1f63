#include "forms/PreferenceFields.h"

#include "core/Numbers.h"
#include "forms/ColorSwatch.h"
#include "forms/QtText.h"

#include <QCheckBox>
#include <QLineEdit>

#include <limits>
#include <optional>
#include <variant>

namespace landsmith {

namespace {

struct CheckField {
  const char* Control;
  bool AppSettings::*Setting;
};
constexpr CheckField Checks[] = {
    {"ckMeasuringMeters", &AppSettings::MeasuringMeters},
    {"ckAreaPoints", &AppSettings::AreaPoints},
    {"ckClassGridVIEW", &AppSettings::ClassGridVIEW},
    {"ckAskDelete", &AppSettings::AskDelete},
    {"ckBackUpON", &AppSettings::BackUpON},
    {"ckBorderON", &AppSettings::BorderON},
    {"ckZoomAtCursor", &AppSettings::ZoomAtCursor},
    {"ckPolyFill", &AppSettings::PolyFill},
    {"ckHideOtherPolys", &AppSettings::HideOtherPolys},
    {"ckFillAsPoly", &AppSettings::FillAsPoly},
    {"ckMakeClosedLineFromPoly", &AppSettings::MakeClosedLineFromPoly},
    {"ckDisplayJoin", &AppSettings::DisplayJoin},
    {"ckVTPReplace", &AppSettings::VTPReplace},
    {"ckSingleLWMBGL", &AppSettings::SingleLWMBGL},
    {"ckVTPUnShift", &AppSettings::VTPUnShift},
    {"ckJoinCellLines", &AppSettings::JoinCellLines},
    {"ckCheckHooks", &AppSettings::CheckHooks},
    {"ckBLNWidths", &AppSettings::BLNWidths},
    {"ckBLNAutoLine", &AppSettings::BLNAutoLine},
    {"ckGeoRefCrop", &AppSettings::GeoRefCrop},
    {"ckMesh8", &AppSettings::Mesh8},
    {"ckExtMeshBitmap", &AppSettings::ExtMeshBitmap},
};
/// Ticked when the setting is off: the captions say what is ignored.
constexpr CheckField InvertedChecks[] = {
    {"ckIgnoreDirection", &AppSettings::DirJoin},
    {"ckIgnoreLabels", &AppSettings::NameJoin},
};

struct FlagField {
  const char* Control;
  std::int32_t AppSettings::*Setting;  ///< 0 or 1
};
constexpr FlagField Flags[] = {
    {"ckAutoLineJoin", &AppSettings::AutoLineJoin},
    {"ckShowLabels", &AppSettings::ShowLabels},
};

struct ColorField {
  const char* Control;
  std::int32_t AppSettings::*Setting;
};
constexpr ColorField Colors[] = {
    {"lbLnColorSel", &AppSettings::LnColorSel},
    {"lbPtColorSel", &AppSettings::PtColorSel},
    {"lbExcColorSel", &AppSettings::ExcColorSel},
    {"lbLnColorUns", &AppSettings::LnColorUns},
    {"lbPtColorUns", &AppSettings::PtColorUns},
    {"lbExcColorUns", &AppSettings::ExcColorUns},
    {"lbPolyColorFill", &AppSettings::PolyColorFill},
    {"lbPolyColorBorder", &AppSettings::PolyColorBorder},
    {"lbPolyFlattenColor", &AppSettings::PolyFlattenColor},
    {"lbPolyWaterColor", &AppSettings::PolyWaterColor},
    {"lbPolyLandColor", &AppSettings::PolyLandColor},
    {"lbPolyExcludeColor", &AppSettings::PolyExcludeColor},
    {"lbColorChanged", &AppSettings::ColorChanged},
    {"lbBLNLineColor", &AppSettings::BLNLineColor},
    {"lbBLNPolyColor", &AppSettings::BLNPolyColor},
};

struct TextField {
  const char* Control;
  std::string AppSettings::*Setting;
};
constexpr TextField Texts[] = {
    {"txtBGL1Folder", &AppSettings::BGL1Folder},
    {"txtBGL2Folder", &AppSettings::BGL2Folder},
    {"txtPhotoCall", &AppSettings::PhotoCall},
    {"txtBLNLineType", &AppSettings::BLNLineType},
    {"txtBLNPolyType", &AppSettings::BLNPolyType},
    {"txtRwy12Path", &AppSettings::Rwy12Path},
    {"txtMacroAPIPath", &AppSettings::MacroAPIPath},
    {"txtMacroASDPath", &AppSettings::MacroASDPath},
    {"txtPolyTexPath", &AppSettings::PolyTexPath},
    {"txtPolyViewPath", &AppSettings::PolyViewPath},
    {"txtFSPath", &AppSettings::FSPath},
};

using NumberSetting = std::variant<std::uint8_t AppSettings::*, std::int32_t AppSettings::*,
                                   float AppSettings::*, double AppSettings::*>;
struct NumberField {
  const char* Control;
  const char* Caption;  ///< in the message when it is refused
  NumberSetting Setting;
  double Least = std::numeric_limits<double>::lowest();
  double Most = std::numeric_limits<double>::max();
};
constexpr NumberField Numbers[] = {
    {"txtDefLC", "land class", &AppSettings::DefLC, 0, 127},
    {"txtDefWC", "water class", &AppSettings::DefWC, 0, 127},
    {"txtDefLinC", "line texture", &AppSettings::DefLinC, 0},
    {"txtDefPoC", "polygon texture", &AppSettings::DefPoC, 0},
    {"txtUndoDepth", "steps kept", &AppSettings::UndoDepth, 1, 100},
    {"txtDefPWid", "line width", &AppSettings::DefPWidth},
    {"txtDefAlt", "polygon altitude", &AppSettings::DefAlt},
    {"txtAutoCheckDistance", "check distance", &AppSettings::AutoCheckDistance},
    {"txtBLNStartWidth", "start width", &AppSettings::BLNStartWidth, 0, 255},
    {"txtBLNEndWidth", "end width", &AppSettings::BLNEndWidth, 0, 255},
    {"txtPhotoRange", "range", &AppSettings::PhotoRange, 0},
    {"txtZbias", "Z bias", &AppSettings::Zbias},
    {"txtFlattenBias", "flatten bias", &AppSettings::FlattenBias},
    {"txtMeshBias", "mesh bias", &AppSettings::MeshBias},
    {"txtAltitude2Change", "altitude to mark", &AppSettings::Altitude2Change},
    {"txtSpringStart", "start of spring", &AppSettings::SpringStart, -1, 366},
    {"txtSpringEnd", "end of spring", &AppSettings::SpringEnd},
    {"txtFallStart", "start of fall", &AppSettings::FallStart, -1, 366},
    {"txtFallEnd", "end of fall", &AppSettings::FallEnd, -1, 366},
    {"txtWinterStart", "start of winter", &AppSettings::WinterStart, -1, 366},
    {"txtWinterEnd", "end of winter", &AppSettings::WinterEnd, -1, 366},
    {"txtHWinterStart", "start of hard winter", &AppSettings::HWinterStart, -1, 366},
    {"txtHWinterEnd", "end of hard winter", &AppSettings::HWinterEnd, -1, 366},
};

template <class Control>
Control* Find(const QWidget& dialog, const char* name) {
  return dialog.findChild<Control*>(QLatin1String(name));
}

QLineEdit* FindTutorial(const QWidget& dialog, const char* part, std::size_t place) {
  return dialog.findChild<QLineEdit*>(QStringLiteral("txt%1%2").arg(QLatin1String(part)).arg(place + 1));
}

std::string NumberAsText(const AppSettings& settings, const NumberSetting& setting) {
  return std::visit(
      [&](auto member) -> std::string {
        using Value = std::decay_t<decltype(settings.*member)>;
        if constexpr (std::is_floating_point_v<Value>)
          return NumberText(settings.*member);
        else
          return std::to_string(settings.*member);
      },
      setting);
}

bool InRange(const NumberField& field, double value) {
  return value >= field.Least && value <= field.Most;
}

/// False when the text is no value of the setting or lies outside its limits.
bool ReadNumber(AppSettings& settings, const NumberField& field, const std::string& text) {
  return std::visit(
      [&](auto member) {
        using Value = std::decay_t<decltype(settings.*member)>;
        std::optional<Value> value;
        if constexpr (std::is_same_v<Value, std::uint8_t>) value = ParseByte(text);
        if constexpr (std::is_same_v<Value, std::int32_t>) value = ParseInt32(text);
        if constexpr (std::is_same_v<Value, float>) value = ParseFloat(text);
        if constexpr (std::is_same_v<Value, double>) value = ParseNumber(text);
        if (!value || !InRange(field, static_cast<double>(*value))) return false;
        settings.*member = *value;
        return true;
      },
      field.Setting);
}

}  // namespace

void ShowPreferenceFields(QWidget& dialog, const AppSettings& settings) {
  for (const CheckField& field : Checks)
    Find<QCheckBox>(dialog, field.Control)->setChecked(settings.*field.Setting);
  for (const CheckField& field : InvertedChecks)
    Find<QCheckBox>(dialog, field.Control)->setChecked(!(settings.*field.Setting));
  for (const FlagField& field : Flags)
    Find<QCheckBox>(dialog, field.Control)->setChecked(settings.*field.Setting != 0);
  for (const ColorField& field : Colors)
    Find<ColorSwatch>(dialog, field.Control)->SetColor(settings.*field.Setting);
  for (const TextField& field : Texts)
    Find<QLineEdit>(dialog, field.Control)->setText(ToQString(settings.*field.Setting));
  for (const NumberField& field : Numbers)
    Find<QLineEdit>(dialog, field.Control)->setText(ToQString(NumberAsText(settings, field.Setting)));
  for (std::size_t i = 0; i < settings.Title.size(); ++i) {
    FindTutorial(dialog, "Title", i)->setText(ToQString(settings.Title[i]));
    FindTutorial(dialog, "Link", i)->setText(ToQString(settings.Link[i]));
  }
}

RefusedField ReadPreferenceFields(const QWidget& dialog, AppSettings& settings) {
  for (const NumberField& field : Numbers) {
    auto* box = Find<QLineEdit>(dialog, field.Control);
    if (ReadNumber(settings, field, box->text().toStdString())) continue;
    return {box, "\"" + box->text().toStdString() + "\" is no value for: " + field.Caption};
  }
  for (const CheckField& field : Checks)
    settings.*field.Setting = Find<QCheckBox>(dialog, field.Control)->isChecked();
  for (const CheckField& field : InvertedChecks)
    settings.*field.Setting = !Find<QCheckBox>(dialog, field.Control)->isChecked();
  for (const FlagField& field : Flags)
    settings.*field.Setting = Find<QCheckBox>(dialog, field.Control)->isChecked() ? 1 : 0;
  for (const ColorField& field : Colors)
    settings.*field.Setting = Find<ColorSwatch>(dialog, field.Control)->Color();
  for (const TextField& field : Texts)
    settings.*field.Setting = Find<QLineEdit>(dialog, field.Control)->text().toStdString();
  for (std::size_t i = 0; i < settings.Title.size(); ++i) {
    settings.Title[i] = FindTutorial(dialog, "Title", i)->text().toStdString();
    settings.Link[i] = FindTutorial(dialog, "Link", i)->text().toStdString();
  }
  return {};
}

}  // namespace landsmith
