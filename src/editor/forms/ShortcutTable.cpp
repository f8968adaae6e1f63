#include "forms/ShortcutTable.h"

#include <Qt>

namespace landsmith {

std::vector<ShortcutGroup> ShortcutGroups() {
  return {
      {"With every tool",
       {
           {"Wheel", "Zoom in or out"},
           {"Middle button, drag", "Move the view"},
           {"P held, drag", "Move the view", Qt::Key_P},
           {"Z held, drag up or down", "Zoom in or out", Qt::Key_Z},
           {"Right click", "The menu of what is under the mouse"},
           {"R, then click", "The click counts as a right click", Qt::Key_R},
           {"Alt+P", "Fill polygons, or draw their borders alone", Qt::Key_P},
           {"Del", "Delete what is selected", Qt::Key_Delete},
           {"Esc", "End the measure, the walk along points, or what is being drawn", Qt::Key_Escape},
       }},
      {"Pointer",
       {
           {"Click", "Select a point, an item, or the border of a map"},
           {"Shift+click", "Select one more"},
           {"Drag what is selected", "Move it"},
           {"Drag elsewhere", "Select what lies in the box"},
       }},
      {"Zoom", {{"Click", "Zoom in on the point"}, {"Right click", "Zoom out"}}},
      {"Map", {{"Click", "Add a map here"}}},
      {"Fill",
       {
           {"Click", "Fill the block under the mouse; the grid sets its size"},
           {"Drag", "Fill one block after the other"},
       }},
      {"Line and Poly",
       {
           {"Click elsewhere", "Begin a figure, then add a point with each click"},
           {"Right click", "End the figure"},
           {"Click a point", "Select it; drag to move it"},
           {"Click a border", "Select the figure; drag to move it"},
           {"Shift+click", "Select one more figure"},
           {"I held, click a border", "Insert a point", Qt::Key_I},
           {"Ins, then click a border", "Insert a point", Qt::Key_Insert},
           {"D held, click a point", "Delete it", Qt::Key_D},
           {"B held, click a point", "Cut the line there", Qt::Key_B},
           {"+ of the number pad held, click a point", "Half as wide again, up to 255 metres", Qt::Key_Plus},
           {"- of the number pad held, click a point", "Narrower by a third, down to 1 metre", Qt::Key_Minus},
           {"Ctrl held, drag", "Select what lies in the box", Qt::Key_Control},
           {"Space", "A click where the mouse is (Line)", Qt::Key_Space},
       }},
      {"Walking along points, from the point form",
       {
           {"Up, Down", "The next point, the one before", Qt::Key_Up},
           {"Right, Left", "The next figure, the one before", Qt::Key_Right},
           {"Del", "Delete the point", Qt::Key_Delete},
       }},
      {"Object and Exclude",
       {
           {"Click", "Select an object, or the edge of an excluded area"},
           {"Drag", "Move it"},
           {"Shift+click", "Select one more object"},
           {"Ctrl held, drag", "Select the objects in the box", Qt::Key_Control},
       }},
      {"Paste armed", {{"Click", "Paste here"}, {"Right click", "No more"}}},
      {"Measure",
       {
           {"M", "Begin or end", Qt::Key_M},
           {"Click", "The first point; the next click ends the distance"},
           {"Right click", "End"},
       }},
  };
}

}  // namespace landsmith
