// What the menus and the toolbar of the main window are made of, once.
#pragma once

#include "editor/ToolState.h"
#include "editor/ViewState.h"

#include <array>

namespace landsmith {

/// A tool. Its menu item is "mnuO" + key, its button "tb" + key, its icon the one of that key.
struct ModeRow {
  ModeId mode;
  const char* key;
  bool available;  ///< this version can work with it
};

inline constexpr std::array ModeTable{
    ModeRow{ModeId::Pointer, "Pointer", true}, ModeRow{ModeId::Zoom, "Zoom", true},
    ModeRow{ModeId::Map, "Map", false},        ModeRow{ModeId::Mesh, "Mesh", false},
    ModeRow{ModeId::Line, "Line", true},       ModeRow{ModeId::Poly, "Poly", false},
    ModeRow{ModeId::Object, "Object", false},  ModeRow{ModeId::Exclude, "Exclude", false},
    ModeRow{ModeId::Photo, "Photo", false},    ModeRow{ModeId::Land, "Land", false},
    ModeRow{ModeId::Water, "Water", false},    ModeRow{ModeId::Fill, "Fill", false},
};

/// A kind of item. Its items in the View and Select menus are "mnuV" and "mnuS" + key.
struct KindRow {
  LayerKind kind;
  const char* key;
  ModeId mode;  ///< the kind's own mode
};

inline constexpr std::array KindTable{
    KindRow{LayerKind::Maps, "Maps", ModeId::Map},
    KindRow{LayerKind::Meshes, "Meshes", ModeId::Mesh},
    KindRow{LayerKind::Lands, "Lands", ModeId::Land},
    KindRow{LayerKind::Waters, "Waters", ModeId::Water},
    KindRow{LayerKind::Photos, "Photos", ModeId::Photo},
    KindRow{LayerKind::Lines, "Lines", ModeId::Line},
    KindRow{LayerKind::Polys, "Polys", ModeId::Poly},
    KindRow{LayerKind::Fills, "Fills", ModeId::Fill},
    KindRow{LayerKind::Objects, "Objects", ModeId::Object},
    KindRow{LayerKind::Excludes, "Excludes", ModeId::Exclude},
};

/// Commands of the toolbar beside the tools: the action and its documented key.
struct ButtonRow {
  const char* action;
  const char* key;
};

inline constexpr std::array ButtonTable{
    ButtonRow{"mnuFNew", "New"},   ButtonRow{"mnuFOpen", "Open"}, ButtonRow{"tbSaveAction", "Save"},
    ButtonRow{"mnuEUndo", "Undo"}, ButtonRow{"mnuFBGL", "BGL"},
};

/// The levels of the Grid menu, "mnuG" + level.
inline constexpr std::array GridLevels{0, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19};

/// Below this width of the canvas the toolbar gives its room to the drawing.
inline constexpr int ToolbarMinWidth = 680;
inline constexpr std::size_t RecentNameLength = 35;

}  // namespace landsmith
