#include "editor/PopupAt.h"

#include "core/Text.h"
#include "editor/Picking.h"
#include "editor/PointEdit.h"

#include <array>
#include <functional>

namespace landsmith {

namespace {

template <class Record>
bool Exists(const RecordList<Record>& records, const PopupTarget& target) {
  return target.Item < records.size();
}

template <class Path>
bool PointExists(const RecordList<Path>& paths, const PopupTarget& target) {
  return target.Item < paths.size() && target.Point < paths[target.Item].Points.size();
}

ClassCell CellOf(const PopupTarget& target) {
  constexpr std::size_t side = ClassGridSide;
  return {static_cast<std::int32_t>(target.Item % side), static_cast<std::int32_t>(target.Item / side)};
}

bool CellExists(const ClassGrid& grid, const PopupTarget& target) {
  if (target.Item >= ClassGrid::SampleCount) return false;
  const ClassCell cell = CellOf(target);
  return grid.At(cell.Column, cell.Row) != 0;
}

void ClearCell(ClassGrid& grid, std::int32_t& count, const PopupTarget& target) {
  const ClassCell cell = CellOf(target);
  grid.Set(cell.Column, cell.Row, 0);
  --count;
}

struct KindRow {
  std::string_view Kind;
  const char* Question;
  bool HasForm;
  bool (*Exists)(const ProjectState&, const PopupTarget&);
  void (*Delete)(ProjectState&, const PopupTarget&);
};

template <auto List>
constexpr KindRow RecordRow(std::string_view kind, const char* question, bool hasForm) {
  return {
      kind, question, hasForm,
      [](const ProjectState& project, const PopupTarget& target) { return Exists(project.*List, target); },
      [](ProjectState& project, const PopupTarget& target) { (project.*List).Erase(target.Item); }};
}

template <auto List>
constexpr KindRow PointRow(std::string_view kind, const char* question) {
  return {kind, question, true,
          [](const ProjectState& project, const PopupTarget& target) {
            return PointExists(project.*List, target);
          },
          [](ProjectState& project, const PopupTarget& target) {
            DeletePathPoint(project.*List, target.Item, target.Point);
          }};
}

template <auto Grid, auto Count>
constexpr KindRow CellRow(std::string_view kind, const char* question) {
  return {kind, question, false,
          [](const ProjectState& project, const PopupTarget& target) {
            return CellExists(project.*Grid, target);
          },
          [](ProjectState& project, const PopupTarget& target) {
            ClearCell(project.*Grid, project.*Count, target);
          }};
}

constexpr std::array Kinds{
    PointRow<&ProjectState::Lines>("PtInLine", "Delete this Point from this Line ?"),
    PointRow<&ProjectState::Polys>("PtInPoly", "Delete this Point from this Poly ?"),
    RecordRow<&ProjectState::Lines>("Line", "Delete this Line ?", true),
    RecordRow<&ProjectState::Polys>("Poly", "Delete this Poly ?", true),
    RecordRow<&ProjectState::Excludes>("Exclude", "Delete this Exclude ?", false),
    RecordRow<&ProjectState::Photos>("Photo", "Delete this Photo ?", false),
    CellRow<&ProjectState::Lands, &ProjectState::NoOfLands>("Land", "Delete this Land Class ?"),
    CellRow<&ProjectState::Waters, &ProjectState::NoOfWaters>("Water", "Delete this Water Class ?"),
    RecordRow<&ProjectState::Fills>("Fill", "Delete this Area Fill ?", true),
    RecordRow<&ProjectState::Meshes>("Mesh", "Delete this Mesh tile ?", false),
    RecordRow<&ProjectState::Objects>("Object", "Delete this Object ?", false),
    RecordRow<&ProjectState::Maps>("Map", "Delete this Map ?", true),
};

const KindRow* RowOf(const PopupTarget& target) {
  for (const KindRow& row : Kinds)
    if (row.Kind == target.Kind) return &row;
  return nullptr;
}

std::string Numbered(const char* word, std::size_t item) {
  return word + std::to_string(item + 1);
}

/// Fills in a target, kind after kind.
class Finder {
public:
  Finder(const ProjectState& project, const ViewState& view, ModeId mode, const GeometryIndex& index,
         PopupTarget& target)
      : m_project(project),
        m_view(view),
        m_mode(mode),
        m_index(index),
        m_target(target),
        m_at(ToWorldPixel(view, target.At)),
        m_place(ToLatLon(view, target.At)) {}

  bool Find() {
    return (Tries(LayerKind::Lines, ModeId::Line) && TakePoint("PtInLine", m_project.Lines, m_index.Lines)) ||
           (Tries(LayerKind::Polys, ModeId::Poly) && TakePoint("PtInPoly", m_project.Polys, m_index.Polys)) ||
           (Tries(LayerKind::Lines, ModeId::Line) && TakePath("Line", m_project.Lines, m_index.Lines)) ||
           (Tries(LayerKind::Polys, ModeId::Poly) && TakePath("Poly", m_project.Polys, m_index.Polys)) ||
           FindObject() || FindTile() || FindMap();
  }

private:
  bool Tries(LayerKind kind, ModeId own) const {
    return m_view.Shows(kind) && (m_mode == ModeId::Pointer || m_mode == own);
  }

  bool Take(const char* kind, const char* word, std::optional<std::size_t> item) {
    if (!item) return false;
    m_target.Kind = kind;
    m_target.Item = *item;
    m_target.Title = Numbered(word, *item);
    return true;
  }

  template <class Path>
  bool TakePoint(const char* kind, const RecordList<Path>& paths, const PathIndex<Path>& index) {
    const auto hit = FindPointUnder(paths, index, m_at, m_view.Scale);
    if (!hit) return false;
    m_target.Kind = kind;
    m_target.Item = hit->item;
    m_target.Point = hit->point;
    m_target.Title = PointTitle(m_project, {KindOfPath<Path>, hit->item, hit->point});
    return true;
  }

  template <class Path>
  bool TakePath(const char* kind, const RecordList<Path>& paths, const PathIndex<Path>& index) {
    const auto hit = FindSegmentUnder(paths, index, m_at, m_view.Scale);
    if (!hit) return false;
    m_target.Kind = kind;
    m_target.Item = hit->item;
    m_target.Title = PathTitle(m_project, KindOfPath<Path>, hit->item);
    return true;
  }

  bool TakeCell(const char* kind, const char* word, const ClassGrid& grid) {
    const auto cell = FindClassAt(grid, m_view.Classes, m_place);
    if (!cell) return false;
    m_target.Kind = kind;
    m_target.Item =
        static_cast<std::size_t>(cell->Row) * ClassGridSide + static_cast<std::size_t>(cell->Column);
    m_target.Title =
        word + std::string(" Row=") + std::to_string(cell->Row) + " Col=" + std::to_string(cell->Column);
    return true;
  }

  /// In Object mode the centres come before all sides.
  bool FindObject() {
    if (!Tries(LayerKind::Objects, ModeId::Object)) return false;
    const auto& objects = m_project.Objects;
    const bool centers = m_mode == ModeId::Object &&
                         Take("Object", "OBJECT # ", FindObjectCenterAt(objects, m_at, m_view.Scale));
    return centers || Take("Object", "OBJECT # ", FindObjectAt(objects, m_at, m_view.Scale));
  }

  bool FindTile() {
    return (Tries(LayerKind::Excludes, ModeId::Exclude) &&
            Take("Exclude", "EXCLUDE # ", FindExcludeAt(m_project.Excludes, m_at, m_view.Scale))) ||
           (Tries(LayerKind::Photos, ModeId::Photo) &&
            Take("Photo", "PHOTO # ", FindBoxAt(m_project.Photos, m_place))) ||
           (Tries(LayerKind::Lands, ModeId::Land) && TakeCell("Land", "LAND CLASS", m_project.Lands)) ||
           (Tries(LayerKind::Waters, ModeId::Water) && TakeCell("Water", "WATER CLASS", m_project.Waters)) ||
           (Tries(LayerKind::Fills, ModeId::Fill) &&
            Take("Fill", "AREA FILL # ", FindFillAt(m_project.Fills, m_place))) ||
           (Tries(LayerKind::Meshes, ModeId::Mesh) &&
            Take("Mesh", "MESH # ", FindBoxAt(m_project.Meshes, m_place)));
  }

  bool FindMap() {
    if (!Tries(LayerKind::Maps, ModeId::Map)) return false;
    if (!Take("Map", "", FindMapAt(m_project.Maps, m_at, m_view.Scale))) return false;
    m_target.Title = m_project.Maps[m_target.Item].Name;
    return true;
  }

  const ProjectState& m_project;
  const ViewState& m_view;
  ModeId m_mode;
  const GeometryIndex& m_index;
  PopupTarget& m_target;
  WorldPixel m_at;
  LatLon m_place;
};

}  // namespace

PopupTarget PopupTargetAt(const ProjectState& project, const ViewState& view, ModeId mode, PixelOffset at,
                          const GeometryIndex& index) {
  PopupTarget target;
  target.At = at;
  if (!Finder(project, view, mode, index, target).Find()) target.Title = ToUpper(project.Name);
  return target;
}

std::string DeleteQuestion(const PopupTarget& target) {
  const KindRow* row = RowOf(target);
  return row != nullptr ? row->Question : std::string();
}

void DeletePopupTarget(ProjectState& project, const PopupTarget& target) {
  if (const KindRow* row = RowOf(target)) row->Delete(project, target);
}

bool TargetExists(const ProjectState& project, const PopupTarget& target) {
  const KindRow* row = RowOf(target);
  return row != nullptr && row->Exists(project, target);
}

bool HasProperties(const PopupTarget& target) {
  const KindRow* row = RowOf(target);
  return target.Kind.empty() || (row != nullptr && row->HasForm);
}

}  // namespace landsmith
