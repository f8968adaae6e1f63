// The program-wide preferences, kept in Landsmith.ini beside the program.
#pragma once

#include "core/Color.h"
#include "core/CoordText.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace landsmith {

struct AppSettings {
  // Main
  std::uint8_t DefLC = 11, DefWC = 10;
  std::int32_t DefPoC = 10, DefLinC = 10;
  double LonLandCenter = -10, LatLandCenter = 40;
  bool DecimalDegrees = false;
  bool MeasuringMeters = true;
  bool ClassGridVIEW = false;
  bool FillAsPoly = false;
  bool AreaPoints = true;
  double DefAlt = 0;
  float DefPWidth = 35;
  bool VTPReplace = true;
  bool HideOtherPolys = false;
  bool BackUpON = true;
  bool BorderON = true;
  bool AskDelete = true;
  std::string PolyViewPath;
  bool MakeClosedLineFromPoly = false;
  float AutoCheckDistance = 15;
  float Altitude2Change = 0;
  bool Mesh8 = false;
  bool ExtMeshBitmap = false;
  bool CheckHooks = false;
  bool SingleLWMBGL = true;
  std::string BGL1Folder, BGL2Folder;  ///< default AppPath + "\scenery"
  std::int32_t VTPShiftNS = 0, VTPShiftWE = 0;
  bool VTPUnShift = true;
  std::int32_t AutoLineJoin = 0;
  std::int32_t ShowLabels = 0;
  bool DisplayJoin = true, DirJoin = true, NameJoin = true;
  bool JoinCellLines = true;
  std::string Rwy12Path, MacroAPIPath, MacroASDPath, PolyTexPath;
  std::string FSPath;          ///< the simulator's folder where no registry tells it
  std::int32_t UndoDepth = 5;  ///< 1 to 100
  bool ZoomAtCursor = false;   ///< the wheel zooms about the cursor instead of the display centre
  // Coordinates
  bool GeoRefCrop = false;
  // Photo
  std::int32_t PhotoRange = 5000;
  std::string PhotoCall = "LayerCall( :lcall 4 )";
  float Zbias = 0;
  double FlattenBias = 0, MeshBias = 0;
  std::int32_t SpringStart = 77, SpringEnd = 169, FallStart = 263, FallEnd = 355;
  std::int32_t WinterStart = 356, WinterEnd = 76, HWinterStart = -1, HWinterEnd = -1;
  // BLN
  std::string BLNSeparator = ",";
  std::string BLNPolyType, BLNLineType;
  std::int32_t BLNPolyColor = 255, BLNLineColor = 255;
  bool BLNWidths = true;
  float BLNStartWidth = 35, BLNEndWidth = 35;
  bool BLNAutoLine = true;
  // Colors
  std::int32_t LnColorSel = 65280, PtColorSel = 65280, ExcColorSel = 65280;
  std::int32_t LnColorUns = 16711680, PtColorUns = 255, ExcColorUns = 0;
  bool PolyFill = true;
  std::int32_t PolyColorFill = 65535, PolyColorBorder = 0, ColorChanged = 16711680;
  std::int32_t PolyFlattenColor = Rgb(128, 128, 0), PolyWaterColor = 16711680;
  std::int32_t PolyLandColor = Rgb(128, 128, 128), PolyExcludeColor = Rgb(64, 64, 64);
  // Tutorials
  std::array<std::string, 5> Title{"How to Make an Island ...", "How to Get Scasm Help ...",
                                   "How to Import Shape Files ...", "How to Calibrate a Map ...",
                                   "How to Make Photo Scenery ..."};
  /// Each a file in html/, or an address beginning "http".
  std::array<std::string, 5> Link{"island tutorial.pdf"};
  // RecentDirs
  std::string OpenDir, ImportDir, AppendDir, SurferDir, PolishDir, LWMDir, VTPDir, SaveDir, BmpDir;

  CoordForm Form() const {
    return DecimalDegrees ? CoordForm::DecimalDegrees : CoordForm::DegreesMinutesSeconds;
  }
  bool operator==(const AppSettings&) const = default;
};

/// The text of a key; an empty one is written back as `fallback`, which is then the result. A first run so
/// fills the file with all defaults.
std::string GetSetting(const std::filesystem::path& file, std::string_view section, std::string_view key,
                       std::string_view fallback);

/// The whole table, RecentDirs included. A text that is no value of its key's type throws RuntimeError that
/// names file, section, key and text. `appPath` gives the default output folders.
AppSettings LoadSettings(const std::filesystem::path& file, const std::filesystem::path& appPath);

/// Every key but those of RecentDirs and Recent Files and, on purpose, SpringEnd: that one is only changed by
/// editing the file.
void SaveSettings(const std::filesystem::path& file, const AppSettings& settings);
/// The RecentDirs section alone.
void SaveRecentFolders(const std::filesystem::path& file, const AppSettings& settings);

/// Sets one key by its name, as the batch program's --set does; matching ignores case. Throws RuntimeError
/// for an unknown key or a text that is no value of it.
void SetByName(AppSettings& settings, std::string_view key, std::string_view value);

/// AppPath + "\" + name as stored text.
std::string AppFolderText(const std::filesystem::path& appPath, std::string_view name);

}  // namespace landsmith
