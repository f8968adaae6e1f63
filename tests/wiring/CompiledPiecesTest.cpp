// Drawn, compiled with the real stand-in and read back: the file holds the pieces that the source names.
#include "compile/CompileContext.h"
#include "compile/LwmPolys.h"
#include "compile/VtpPolys.h"
#include "platform/Paths.h"
#include "support/BglReaders.h"
#include "support/CutPolys.h"
#include "support/PolyGenerators.h"
#include "support/ScriptedDialogs.h"
#include "support/TempFolder.h"
#include "vector/PolyOperations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <compare>
#include <filesystem>
#include <ostream>
#include <tuple>

namespace landsmith::test {
namespace {

/// What both ways of reading know of a piece.
struct SamePiece {
  std::int64_t SquareX = 0, SquareY = 0, Kind = 0;
  double Highest = 0, Lowest = 0;
  LatticeRing Points;
  std::vector<std::int64_t> Heights;
  auto operator<=>(const SamePiece&) const = default;
};

void PrintTo(const SamePiece& piece, std::ostream* out) {
  *out << piece.SquareX << " " << piece.SquareY << " kind " << piece.Kind << ", " << piece.Highest << " to "
       << piece.Lowest << ", " << piece.Points.size() << " points";
}

std::vector<SamePiece> Sorted(std::vector<SamePiece> pieces) {
  std::sort(pieces.begin(), pieces.end());
  return pieces;
}

/// As the file holds it.
double InPartsOf128(double altitude) {
  return std::round(altitude * 128) / 128;
}

std::vector<SamePiece> FromText(const std::vector<ReadPiece>& pieces) {
  std::vector<SamePiece> same;
  for (const ReadPiece& piece : pieces) {
    const double lowest = piece.Heights.empty() ? piece.Alt1 : piece.Alt2;
    same.push_back({piece.SquareX, piece.SquareY, piece.Kind, InPartsOf128(piece.Alt1), InPartsOf128(lowest),
                    piece.Points, piece.Heights});
  }
  return Sorted(same);
}

std::vector<SamePiece> FromFile(const LwmFileRead& file) {
  std::vector<SamePiece> same;
  for (const LwmCellRead& cell : file.Cells)
    for (const LwmPieceRead& piece : cell.Pieces) {
      SamePiece& one = same.emplace_back();
      one.SquareX = cell.CellX * 32 + piece.AreaX;
      one.SquareY = cell.CellY * 32 + piece.AreaY;
      one.Kind = static_cast<std::int64_t>(piece.Kind);
      one.Highest = piece.AltMax;
      one.Lowest = piece.AltMin;
      for (const LwmPointRead& at : piece.Points) {
        one.Points.push_back({at.X, at.Y});
        if (file.AltPerPoint) one.Heights.push_back(at.Z);
      }
    }
  return Sorted(same);
}

std::vector<SamePiece> FromFile(const VtpFileRead& file) {
  std::vector<SamePiece> same;
  for (const VtpFeatureRead& feature : file.Features) {
    SamePiece& one = same.emplace_back();
    one.SquareX = feature.CellCol;
    one.SquareY = feature.CellRow;
    one.Kind = feature.Group;
    for (const VtpPointRead& at : feature.Points)
      one.Points.push_back({at.X - CellPointMin, at.Y - CellPointMin});
  }
  return Sorted(same);
}

/// Lakes, land and flattens, level and sloped, and fields of vector terrain, over one another.
ProjectState RandomProject(std::uint64_t seed) {
  ProjectState project;
  project.Name = "Pieces";
  for (std::uint64_t k = 0; k < 10; ++k) {
    static constexpr const char* types[] = {"LWM//Water//12//12//1//1//", "LWM//Land//-3.5//-3.5//1//1//",
                                            "LWM//Flatten//100//100//1//1//", "LWM//Water//0//0//1//1//",
                                            "VTP//8//2001//"};
    const bool isField = k % 5 == 4;
    PolyRec poly = SelectedPoly(
        MakeRandomPoly(seed * 100 + k, isField ? PointsPerCell : PointsPerArea).Points, types[k % 5]);
    if (k % 5 == 3) {
      SetPolyPlane(poly, 0, poly.Points.size() / 2, 220, 40);
      UpdateLWMType(poly);
    }
    project.Polys.push_back(poly);
  }
  return project;
}

class CompiledPieces : public testing::TestWithParam<std::uint64_t> {
protected:
  CompiledPieces() { std::filesystem::create_directories(m_folders.Tools() / "work"); }

  std::string Compiled(const char* name) {
    return ReadWholeFile(m_folders.Tools() / "work" / (std::string("Pieces_") + name + ".BGL"));
  }

  TempFolder m_folder;
  ProgramFolders m_folders{m_folder / "app", m_folder / "fs", false};
  AppSettings m_settings;
  ScriptedDialogs m_dialogs;
  NoProgress m_progress;
  CompileReport m_report;
  CompileOptions m_options;
  SystemToolRunner m_tools{m_folders.Tools(), LANDSMITH_BINARY_DIR "/bin", m_dialogs};
};

TEST_P(CompiledPieces, AreThoseOfTheSource) {
  const ProjectState project = RandomProject(GetParam());
  const LwmSources masks = LwmPolySources(project, LwmPolyChoice::FlatAndSloped);
  const auto terrain = VtpPolySource(project, m_settings);
  ASSERT_TRUE(masks.Flat && masks.Sloped && terrain);

  const CompileContext context{project,   m_settings, m_folders, m_tools,
                               m_dialogs, m_progress, m_options, m_report};
  CompileLWMPolys(context, LwmPolyChoice::FlatAndSloped);
  CompileVTPPolys(context);
  ASSERT_TRUE(m_dialogs.messages.empty()) << m_dialogs.messages.front().text;
  ASSERT_TRUE(m_dialogs.questions.empty()) << m_dialogs.questions.front();

  EXPECT_EQ(FromFile(ReadLwmFile(Compiled("LWM2"))), FromText(ReadMaskPieces(*masks.Flat)));
  EXPECT_EQ(FromFile(ReadLwmFile(Compiled("LWM3"))), FromText(ReadMaskPieces(*masks.Sloped)));
  EXPECT_EQ(FromFile(ReadVtpFile(Compiled("VTPP"))), FromText(ReadTerrainPieces(*terrain)));
}

INSTANTIATE_TEST_SUITE_P(OfRandomProjects, CompiledPieces, testing::Range<std::uint64_t>(1, 7));

}  // namespace
}  // namespace landsmith::test
