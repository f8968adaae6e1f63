#include "forms/StatusPanelBar.h"

#include "forms/QtText.h"

#include <QFontMetrics>

#include <array>

namespace landsmith {

namespace {

struct PanelRow {
  const char* name;
  const char* widest;  ///< sets the width, so that the panels keep their places while the mouse moves
  const char* tip;
  std::string StatusPanels::*text;  ///< null for the panel of the simulator
};

constexpr std::array Panels{
    PanelRow{"sbLat", "88° 88' 88.8888'' N", "Latitude under the mouse", &StatusPanels::Lat},
    PanelRow{"sbLon", "188° 88' 88.8888'' W", "Longitude under the mouse", &StatusPanels::Lon},
    PanelRow{"sbLod5", " Lod5 = 88 88", "LOD5 tile, column and row from the north-west", &StatusPanels::Lod5},
    PanelRow{"sbCell", " Cell = 888 888", "Cell (LOD8), column and row from the north-west",
             &StatusPanels::Cell},
    PanelRow{"sbArea", " Area = 88 88", "Area (LOD13) in its Cell", &StatusPanels::Area},
    PanelRow{"sbPoint", " Cell Pt = 88888 88888", "Point in its Area or Cell", &StatusPanels::Point},
    PanelRow{"sbZoom", "Zoom = 0.03125", "1 shows an Area 8 pixels high", &StatusPanels::Zoom},
    PanelRow{"sbSimulator", "Simulator: shipped folder", "", nullptr},
    PanelRow{"sbExtra", "  Custom = 888888888888888", "", &StatusPanels::Extra},
};

/// Wants the width of its widest text while it has any, but gives way: a narrow window stays possible.
class Panel final : public QLabel {
public:
  explicit Panel(const PanelRow& row) : m_widest(QString::fromUtf8(row.widest)) {
    setObjectName(QString::fromLatin1(row.name));
    setToolTip(QString::fromLatin1(row.tip));
    setTextFormat(Qt::PlainText);
    setContentsMargins(4, 0, 4, 0);
    setMinimumWidth(1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  }
  QSize sizeHint() const override {
    const QFontMetrics metrics(font());
    const int width = text().isEmpty() ? 1 : metrics.horizontalAdvance(m_widest) + 12;
    return {width, metrics.height() + 2};
  }

private:
  QString m_widest;
};

}  // namespace

StatusPanelBar::StatusPanelBar(QStatusBar& bar) {
  for (const PanelRow& row : Panels) {
    m_panels.push_back(new Panel(row));
    bar.addWidget(m_panels.back());
  }
}

void StatusPanelBar::Show(const StatusPanels& panels) {
  for (std::size_t i = 0; i < Panels.size(); ++i)
    if (Panels[i].text) m_panels[i]->setText(ToQString(panels.*Panels[i].text));
}

void StatusPanelBar::ShowSimulator(const ProgramFolders& folders) {
  for (std::size_t i = 0; i < Panels.size(); ++i) {
    if (Panels[i].text) continue;
    m_panels[i]->setText(folders.SimulatorIsStandIn ? QStringLiteral("Simulator: shipped folder")
                                                    : QStringLiteral("Simulator: installed"));
    m_panels[i]->setToolTip(PathToQString(folders.FSPath));
  }
}

}  // namespace landsmith
