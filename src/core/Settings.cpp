#include "core/Settings.h"

#include "core/IniFile.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <optional>
#include <type_traits>

namespace landsmith {

namespace {

constexpr std::string_view RecentDirs = "RecentDirs";

template <class Settings, class Visit>
void VisitMain(Settings& s, Visit& visit) {
  const auto main = [&visit](std::string_view key, auto& value) { visit("Main", key, value); };
  main("DefLC", s.DefLC);
  main("DefWC", s.DefWC);
  main("DefPoC", s.DefPoC);
  main("DefLinC", s.DefLinC);
  main("LonLandCenter", s.LonLandCenter);
  main("LatLandCenter", s.LatLandCenter);
  main("DecimalDegrees", s.DecimalDegrees);
  main("MeasuringMeters", s.MeasuringMeters);
  main("ClassGridVIEW", s.ClassGridVIEW);
  main("FillAsPoly", s.FillAsPoly);
  main("AreaPoints", s.AreaPoints);
  main("DefAlt", s.DefAlt);
  main("DefPWidth", s.DefPWidth);
  main("VTPReplace", s.VTPReplace);
  main("HideOtherPolys", s.HideOtherPolys);
  main("BackUpON", s.BackUpON);
  main("BorderON", s.BorderON);
  main("AskDelete", s.AskDelete);
  main("PolyViewPath", s.PolyViewPath);
  main("MakeClosedLineFromPoly", s.MakeClosedLineFromPoly);
  main("AutoCheckDistance", s.AutoCheckDistance);
  main("Altitude2Change", s.Altitude2Change);
  main("Mesh8", s.Mesh8);
  main("ExtMeshBitmap", s.ExtMeshBitmap);
  main("CheckHooks", s.CheckHooks);
  main("SingleLWMBGL", s.SingleLWMBGL);
  main("BGL1Folder", s.BGL1Folder);
  main("BGL2Folder", s.BGL2Folder);
  main("VTPShiftNS", s.VTPShiftNS);
  main("VTPShiftWE", s.VTPShiftWE);
  main("VTPUnShift", s.VTPUnShift);
  main("AutoLineJoin", s.AutoLineJoin);
  main("ShowLabels", s.ShowLabels);
  main("DisplayJoin", s.DisplayJoin);
  main("DirJoin", s.DirJoin);
  main("NameJoin", s.NameJoin);
  main("JoinCellLines", s.JoinCellLines);
  main("Rwy12Path", s.Rwy12Path);
  main("MacroAPIPath", s.MacroAPIPath);
  main("MacroASDPath", s.MacroASDPath);
  main("PolyTexPath", s.PolyTexPath);
  main("FSPath", s.FSPath);
  main("UndoDepth", s.UndoDepth);
  main("ZoomAtCursor", s.ZoomAtCursor);
}

template <class Settings, class Visit>
void VisitPhotoAndBln(Settings& s, Visit& visit) {
  visit("Coordinates", "GeoRefCrop", s.GeoRefCrop);
  const auto photo = [&visit](std::string_view key, auto& value) { visit("Photo", key, value); };
  photo("PhotoRange", s.PhotoRange);
  photo("PhotoCall", s.PhotoCall);
  photo("Zbias", s.Zbias);
  photo("FlattenBias", s.FlattenBias);
  photo("MeshBias", s.MeshBias);
  photo("SpringStart", s.SpringStart);
  photo("SpringEnd", s.SpringEnd);
  photo("FallStart", s.FallStart);
  photo("FallEnd", s.FallEnd);
  photo("WinterStart", s.WinterStart);
  photo("WinterEnd", s.WinterEnd);
  photo("HWinterStart", s.HWinterStart);
  photo("HWinterEnd", s.HWinterEnd);
  const auto bln = [&visit](std::string_view key, auto& value) { visit("BLN", key, value); };
  bln("BLNSeparator", s.BLNSeparator);
  bln("BLNPolyType", s.BLNPolyType);
  bln("BLNLineType", s.BLNLineType);
  bln("BLNPolyColor", s.BLNPolyColor);
  bln("BLNLineColor", s.BLNLineColor);
  bln("BLNWidths", s.BLNWidths);
  bln("BLNStartWidth", s.BLNStartWidth);
  bln("BLNEndWidth", s.BLNEndWidth);
  bln("BLNAutoLine", s.BLNAutoLine);
}

template <class Settings, class Visit>
void VisitColorsAndTexts(Settings& s, Visit& visit) {
  const auto color = [&visit](std::string_view key, auto& value) { visit("Colors", key, value); };
  color("LnColorSel", s.LnColorSel);
  color("PtColorSel", s.PtColorSel);
  color("ExcColorSel", s.ExcColorSel);
  color("LnColorUns", s.LnColorUns);
  color("PtColorUns", s.PtColorUns);
  color("ExcColorUns", s.ExcColorUns);
  color("PolyFill", s.PolyFill);
  color("PolyColorFill", s.PolyColorFill);
  color("PolyColorBorder", s.PolyColorBorder);
  color("ColorChanged", s.ColorChanged);
  color("PolyFlattenColor", s.PolyFlattenColor);
  color("PolyWaterColor", s.PolyWaterColor);
  color("PolyLandColor", s.PolyLandColor);
  color("PolyExcludeColor", s.PolyExcludeColor);
  for (std::size_t i = 0; i < s.Title.size(); ++i)
    visit("Tutorials", "Title" + std::to_string(i + 1), s.Title[i]);
  for (std::size_t i = 0; i < s.Link.size(); ++i)
    visit("Tutorials", "Link" + std::to_string(i + 1), s.Link[i]);
  const auto folder = [&visit](std::string_view key, auto& value) { visit(RecentDirs, key, value); };
  folder("OpenDir", s.OpenDir);
  folder("ImportDir", s.ImportDir);
  folder("AppendDir", s.AppendDir);
  folder("SurferDir", s.SurferDir);
  folder("PolishDir", s.PolishDir);
  folder("LWMDir", s.LWMDir);
  folder("VTPDir", s.VTPDir);
  folder("SaveDir", s.SaveDir);
  folder("BmpDir", s.BmpDir);
}

/// The one table of all settings: `visit(section, key, member)` for each, in the order of the file.
template <class Settings, class Visit>
void VisitSettings(Settings& settings, Visit visit) {
  VisitMain(settings, visit);
  VisitPhotoAndBln(settings, visit);
  VisitColorsAndTexts(settings, visit);
}

std::string TextOf(bool value) {
  return value ? "True" : "False";
}
std::string TextOf(const std::string& value) {
  return value;
}
template <class Number>
std::string TextOf(Number value) {  // whole numbers are exact as doubles
  return NumberText(static_cast<std::conditional_t<std::is_same_v<Number, float>, float, double>>(value));
}

template <class Value>
bool Assign(Value& target, const std::optional<Value>& value) {
  if (value) target = *value;
  return value.has_value();
}

// Each gives false for a text that is no value of the type, and then changes nothing.
bool Parse(std::string_view text, std::string& value) {
  value = text;
  return true;
}
bool Parse(std::string_view text, std::uint8_t& value) {
  return Assign(value, ParseByte(text));
}
bool Parse(std::string_view text, std::int32_t& value) {
  return Assign(value, ParseInt32(text));
}
bool Parse(std::string_view text, float& value) {
  return Assign(value, ParseFloat(text));
}
bool Parse(std::string_view text, double& value) {
  return Assign(value, ParseNumber(text));
}
bool Parse(std::string_view text, bool& value) {
  const std::string_view word = Trim(text);
  if (EqualsIgnoringCase(word, "True")) return Assign(value, std::optional(true));
  if (EqualsIgnoringCase(word, "False")) return Assign(value, std::optional(false));
  const std::optional<double> number = ParseNumber(word);
  if (number) value = *number != 0;
  return number.has_value();
}

template <class Value>
void ParseOrThrow(std::string_view text, Value& value, const std::string& file, const std::string& place) {
  if (Parse(text, value)) return;
  throw RuntimeError::At("reading the settings", file, place,
                         "\"" + std::string(text) + "\" is no value for it");
}

/// What holds between the texts as written and the settings in effect.
void PutInEffect(AppSettings& settings) {
  if (EqualsIgnoringCase(settings.BLNSeparator, "tab")) settings.BLNSeparator = "\t";
  settings.UndoDepth = std::clamp(settings.UndoDepth, 1, 100);
}

/// A settings file that is read once, changed in memory, and written once.
class IniText {
public:
  explicit IniText(const std::filesystem::path& file)
      : m_file(file), m_text(ReadIniText(file)), m_read(m_text) {}

  std::string Find(std::string_view section, std::string_view key) const {
    return FromWindows1252(FindIniKey(m_text, section, key));
  }
  void Set(std::string_view section, std::string_view key, std::string_view value) {
    m_text = WithIniKey(std::move(m_text), section, key, ToWindows1252(value));
  }
  void Write() const {
    if (m_text != m_read) WriteWholeFile(m_file, m_text);
  }

private:
  const std::filesystem::path& m_file;
  std::string m_text;
  std::string m_read;
};

std::string FindOrSet(IniText& ini, std::string_view section, std::string_view key,
                      std::string_view fallback) {
  std::string text = ini.Find(section, key);
  if (!text.empty()) return text;
  ini.Set(section, key, fallback);
  return std::string(fallback);
}

}  // namespace

std::string GetSetting(const std::filesystem::path& file, std::string_view section, std::string_view key,
                       std::string_view fallback) {
  IniText ini(file);
  std::string text = FindOrSet(ini, section, key, fallback);
  ini.Write();
  return text;
}

AppSettings LoadSettings(const std::filesystem::path& file, const std::filesystem::path& appPath) {
  AppSettings settings;
  settings.BGL1Folder = AppFolderText(appPath, "scenery");
  settings.BGL2Folder = settings.BGL1Folder;
  IniText ini(file);
  const std::string name = PathText(file);
  VisitSettings(settings, [&](std::string_view section, std::string_view key, auto& value) {
    const std::string text = FindOrSet(ini, section, key, TextOf(value));
    ParseOrThrow(text, value, name, "section " + std::string(section) + ", key " + std::string(key));
  });
  ini.Write();
  PutInEffect(settings);
  return settings;
}

void SaveSettings(const std::filesystem::path& file, const AppSettings& settings) {
  IniText ini(file);
  VisitSettings(settings, [&ini](std::string_view section, std::string_view key, const auto& value) {
    if (section != RecentDirs && key != "SpringEnd") ini.Set(section, key, TextOf(value));
  });
  ini.Write();
}

void SaveRecentFolders(const std::filesystem::path& file, const AppSettings& settings) {
  IniText ini(file);
  VisitSettings(settings, [&ini](std::string_view section, std::string_view key, const auto& value) {
    if (section == RecentDirs) ini.Set(section, key, TextOf(value));
  });
  ini.Write();
}

void SetByName(AppSettings& settings, std::string_view key, std::string_view value) {
  const std::string_view wanted = Trim(key);
  bool known = false;
  VisitSettings(settings, [&](std::string_view, std::string_view candidate, auto& member) {
    if (!EqualsIgnoringCase(candidate, wanted)) return;
    known = true;
    ParseOrThrow(value, member, "", "key " + std::string(candidate));
  });
  if (!known) throw RuntimeError("There is no setting \"" + std::string(wanted) + "\".");
  PutInEffect(settings);
}

std::string AppFolderText(const std::filesystem::path& appPath, std::string_view name) {
  return PathText(appPath) + "\\" + std::string(name);
}

}  // namespace landsmith
