#include "forms/frmCalibrate.h"

#include "core/CoordText.h"
#include "core/Numbers.h"
#include "editor/Edit.h"
#include "editor/MapView.h"
#include "forms/FormGuard.h"
#include "forms/QtText.h"
#include "ui_frmCalibrate.h"

#include <QPointer>
#include <QTimer>

#include <limits>

namespace landsmith {

namespace {

constexpr std::string_view HelpText =
    "In order to calibrate a map, the geographic and the bitmap locations of two points must be known. "
    "Choose "
    "two points that are easy to find in the bitmap and that lie far from each other, best near opposite "
    "corners.\n\n"
    "1. Type the latitude and longitude of point 1, or press Pick Place and click on the canvas where the "
    "point lies: on a line, on an object or on another map.\n"
    "2. Press the Pick Pixel button of point 1 and click on the point in the bitmap. Zoom in first; the "
    "wheel "
    "and the middle mouse button work while the form waits for the click.\n"
    "3. Do the same for point 2.\n"
    "4. Press Calibrate. The bitmap moves and stretches so that both points lie in their places.\n\n"
    "Where the two points lie almost side by side, or almost on top of each other, take the scale from "
    "longitude or latitude only: the pixels are then drawn square. The right mouse button and Esc end a "
    "picking. A calibration can be undone.";

std::filesystem::path BitmapInView(const Session& session, std::size_t map) {
  const MapViewRow* view = FindMapView(session.view.MapView);
  if (view == nullptr || map >= session.project.Maps.size()) return {};
  return PictureOfView(session.project.Maps[map], *view, session.settings.Mesh8);
}

QString PixelText(float pixel) {
  return QString::number(RoundHalfEven(pixel));
}

/// The picked pixel while its box is as the pick left it, else what was typed; no number for no number.
float ReadPixel(const QLineEdit& box, const QString& shown, float picked) {
  if (!shown.isEmpty() && box.text() == shown) return picked;
  return ParseFloat(box.text().toStdString()).value_or(std::numeric_limits<float>::quiet_NaN());
}

}  // namespace

frmCalibrate::frmCalibrate(Session& session, Editor& editor, std::size_t map, QWidget* parent)
    : QDialog(parent),
      m_session(session),
      m_editor(editor),
      m_ui(std::make_unique<Ui::frmCalibrate>()),
      m_map(map),
      m_bitmap(BitmapInView(session, map)) {
  m_ui->setupUi(this);
  m_points = {PointFields{m_ui->txtLat1, m_ui->txtLon1, m_ui->txtPX1, m_ui->txtPY1, 0, 0, {}, {}},
              PointFields{m_ui->txtLat2, m_ui->txtLon2, m_ui->txtPX2, m_ui->txtPY2, 0, 0, {}, {}}};
  m_ui->lbMap->setText(ToQString(session.project.Maps[map].Name) + QStringLiteral("   ") +
                       PathToQString(m_bitmap.filename()));
  connect(m_ui->cmdLL1, &QPushButton::clicked, this, [this] { Pick(0, PickKind::Place); });
  connect(m_ui->cmdPP1, &QPushButton::clicked, this, [this] { Pick(0, PickKind::Pixel); });
  connect(m_ui->cmdLL2, &QPushButton::clicked, this, [this] { Pick(1, PickKind::Place); });
  connect(m_ui->cmdPP2, &QPushButton::clicked, this, [this] { Pick(1, PickKind::Pixel); });
  connect(m_ui->cmdCalibrate, &QPushButton::clicked, this, &frmCalibrate::Calibrate);
  connect(m_ui->cmdHelp, &QPushButton::clicked, this,
          [this] { m_session.dialogs.Message(MessageKind::Info, HelpText); });
}

frmCalibrate::~frmCalibrate() = default;

void frmCalibrate::Open(Session& session, Editor& editor, std::size_t map, QWidget* parent) {
  const auto open = parent->findChildren<frmCalibrate*>(QString(), Qt::FindDirectChildrenOnly);
  for (frmCalibrate* form : open)
    form->reject();
  auto* form = new frmCalibrate(session, editor, map, parent);
  form->setAttribute(Qt::WA_DeleteOnClose);
  form->show();
  // Whoever asked for the form is still closing and hands the focus back to the window.
  QTimer::singleShot(0, form, [form] { form->activateWindow(); });
}

void frmCalibrate::done(int result) {
  if (m_picking) m_editor.PickPoint({});
  m_picking = false;
  QDialog::done(result);
}

bool frmCalibrate::CheckMap() {
  if (!m_bitmap.empty() && BitmapInView(m_session, m_map) == m_bitmap) return true;
  m_session.dialogs.Message(MessageKind::Error, "The bitmap under calibration is no longer shown!");
  reject();
  return false;
}

void frmCalibrate::Pick(std::size_t point, PickKind kind) {
  if (!CheckMap()) return;
  m_picking = true;
  m_place = pos();
  hide();
  m_editor.PickPoint([form = QPointer<frmCalibrate>(this), point, kind](const PointerInput& in) {
    if (form) form->TakePick(point, kind, in);
  });
}

void frmCalibrate::TakePick(std::size_t point, PickKind kind, const PointerInput& in) {
  m_picking = false;
  move(m_place);  // some window managers place a window anew each time
  show();
  raise();
  activateWindow();
  if (in.button != MouseButton::Left || !CheckMap()) return;
  const LatLon at = ToLatLon(m_session.view, in.at);
  PointFields& fields = m_points[point];
  if (kind == PickKind::Pixel) return TakePixel(fields, at);
  const CoordForm form = m_session.settings.Form();
  fields.Lat->setText(ToQString(FormatLatText(at.lat, form)));
  fields.Lon->setText(ToQString(FormatLonText(at.lon, form)));
}

void frmCalibrate::TakePixel(PointFields& fields, LatLon at) {
  const auto pixel = PixelOnMap(m_session.project.Maps[m_map].Level[0], at);
  if (!pixel) {
    m_session.dialogs.Message(MessageKind::Error, "Point is not on the map!");
    return;
  }
  fields.PickedX = pixel->X;
  fields.PickedY = pixel->Y;
  fields.ShownX = PixelText(pixel->X);
  fields.ShownY = PixelText(pixel->Y);
  fields.X->setText(fields.ShownX);
  fields.Y->setText(fields.ShownY);
}

CalibrationPoint frmCalibrate::ReadPoint(const PointFields& fields) const {
  const CoordForm form = m_session.settings.Form();
  CalibrationPoint point;
  point.Place = {ParseLatText(fields.Lat->text().toStdString(), form),
                 ParseLonText(fields.Lon->text().toStdString(), form)};
  point.X = ReadPixel(*fields.X, fields.ShownX, fields.PickedX);
  point.Y = ReadPixel(*fields.Y, fields.ShownY, fields.PickedY);
  return point;
}

CalibrationAxis frmCalibrate::Axis() const {
  if (m_ui->optLat->isChecked()) return CalibrationAxis::Lat;
  return m_ui->optLon->isChecked() ? CalibrationAxis::Lon : CalibrationAxis::Both;
}

void frmCalibrate::Calibrate() {
  if (!CheckMap()) return;
  UpdateScale(m_session.view);
  SetDisplayExtent(m_session.view);
  const MapLevel& shown = m_session.project.Maps[m_map].Level[0];
  const auto outcome = landsmith::Calibrate(
      {ReadPoint(m_points[0]), ReadPoint(m_points[1]), Axis(), shown.COLS, shown.ROWS, m_session.view.Scale});
  if (const auto* refusal = std::get_if<CalibrationRefusal>(&outcome)) {
    m_session.dialogs.Message(MessageKind::Error, refusal->Message);
    return;
  }
  const bool stored = RunGuarded(m_session.dialogs, [&] {
    Edit edit(m_session, m_editor.Canvas());
    StoreCalibration(edit.Project().Maps.Edit(m_map), m_session.view.MapView, std::get<GeoBox>(outcome));
  });
  if (stored) accept();
}

}  // namespace landsmith
