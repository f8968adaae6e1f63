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
};

inline constexpr std::array ModeTable{
    ModeRow{ModeId::Pointer, "Pointer"}, ModeRow{ModeId::Zoom, "Zoom"},       ModeRow{ModeId::Map, "Map"},
    ModeRow{ModeId::Mesh, "Mesh"},       ModeRow{ModeId::Line, "Line"},       ModeRow{ModeId::Poly, "Poly"},
    ModeRow{ModeId::Object, "Object"},   ModeRow{ModeId::Exclude, "Exclude"}, ModeRow{ModeId::Photo, "Photo"},
    ModeRow{ModeId::Land, "Land"},       ModeRow{ModeId::Water, "Water"},     ModeRow{ModeId::Fill, "Fill"},
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

/// A bitmap of the maps: its item in the View menu and the exact name of the view.
struct ViewRow {
  const char* action;
  const char* view;
};

inline constexpr std::array ViewTable{
    ViewRow{"mnuVSummer", "Summer"}, ViewRow{"mnuVSpring", "Spring"},   ViewRow{"mnuVFall", "Fall"},
    ViewRow{"mnuVWinter", "Winter"}, ViewRow{"mnuVHard", "HardWinter"}, ViewRow{"mnuVNight", "NightMap"},
    ViewRow{"mnuVAlpha", "Alpha"},   ViewRow{"mnuVLand", "Land"},       ViewRow{"mnuVMesh", "Mesh"},
};

/// Menu items with a picture and no button: the action and the picture's name.
inline constexpr std::array MenuPictures{
    ButtonRow{"mnuFSave", "Save"}, ButtonRow{"mnuERedo", "Redo"},       ButtonRow{"mnuECut", "Cut"},
    ButtonRow{"mnuECopy", "Copy"}, ButtonRow{"mnuEPaste", "Paste"},     ButtonRow{"mnuEDelete", "Delete"},
    ButtonRow{"mnuEFind", "Find"}, ButtonRow{"mnuEMeasure", "Measure"},
};

/// The levels of the Grid menu, "mnuG" + level.
inline constexpr std::array GridLevels{0, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19};

/// Below this width of the canvas the toolbar gives its room to the drawing.
inline constexpr int ToolbarMinWidth = 680;
inline constexpr std::size_t RecentNameLength = 35;

}  // namespace landsmith
