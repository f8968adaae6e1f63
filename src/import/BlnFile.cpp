#include "import/BlnFile.h"

#include "core/Numbers.h"
#include "core/Text.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

namespace landsmith {
namespace {

/// Everything up to `separator`, taken off the front of `rest`; the separator goes too. `hasMore` tells
/// whether there was one.
struct Field {
  std::string_view text;
  bool hasMore = false;
};

Field TakeField(std::string_view& rest, char separator) {
  const std::size_t end = rest.find(separator);
  if (end == std::string_view::npos) return {std::exchange(rest, {}), false};
  const std::string_view text = rest.substr(0, end);
  rest.remove_prefix(end + 1);
  return {text, true};
}

class BlnReader {
public:
  BlnReader(std::string_view bytes, char separator, const std::string& file, BlnWidthField widths)
      : m_lines(SplitLines(bytes)), m_separator(separator), m_file(file), m_widths(widths) {
    while (!m_lines.empty() && Trim(m_lines.back()).empty())
      m_lines.pop_back();
  }

  std::vector<BlnItem> Read() {
    std::vector<BlnItem> items;
    while (m_next < m_lines.size()) {
      BlnItem item;
      const std::size_t count = ReadHeader(item);
      item.Points.reserve(count);
      for (std::size_t i = 0; i < count; ++i)
        item.Points.push_back(ReadPoint());
      items.push_back(std::move(item));
    }
    return items;
  }

private:
  [[noreturn]] void Fail(const std::string& found) const {
    throw RuntimeError::At("reading the Surfer file", m_file, "line " + std::to_string(m_next), found);
  }

  static std::string Quoted(std::string_view bytes) {
    std::string text = "\"";
    text += FromWindows1252(bytes);
    text += '"';
    return text;
  }

  std::size_t ReadHeader(BlnItem& item) {
    std::string_view rest = m_lines[m_next++];
    const Field count = TakeField(rest, m_separator);
    const std::optional<std::int32_t> points = ParseInt32(count.text);
    if (!points || *points < 0) Fail(Quoted(count.text) + " is no number of points");
    const std::size_t left = m_lines.size() - m_next;
    if (static_cast<std::size_t>(*points) > left)
      Fail(std::to_string(*points) + " points announced, " + std::to_string(left) + " lines left");
    // The flag of the format that tells inside from outside stands before the name, where it stands at all.
    if (rest.size() > 1 && (rest[0] == '0' || rest[0] == '1') && rest[1] == m_separator)
      rest.remove_prefix(2);
    item.Name = FromWindows1252(rest);
    return static_cast<std::size_t>(*points);
  }

  BlnPoint ReadPoint() {
    const std::string_view line = m_lines[m_next++];
    std::string_view rest = Trim(line);
    const Field lon = TakeField(rest, m_separator);
    if (!lon.hasMore) Fail(Quoted(line) + " has no separator");
    const Field lat = TakeField(rest, m_separator);
    BlnPoint point;
    point.Lon = Degrees(lon.text);
    point.Lat = Degrees(lat.text);
    if (lat.hasMore && m_widths == BlnWidthField::Read) point.Wid = Width(TakeField(rest, m_separator).text);
    return point;
  }

  double Degrees(std::string_view text) const {
    const std::optional<double> value = ParseNumber(text);
    if (!value) Fail(Quoted(text) + " is no number");
    return *value;
  }

  float Width(std::string_view text) const {
    if (Trim(text).empty()) return 0;
    const std::optional<float> value = ParseFloat(text);
    if (!value) Fail(Quoted(text) + " is no width");
    return *value;
  }

  std::vector<std::string_view> m_lines;
  std::size_t m_next = 0;  ///< 0-based; the 1-based number of the line read last
  char m_separator;
  const std::string& m_file;
  BlnWidthField m_widths;
};

bool IsClosed(const BlnItem& item) {
  if (item.Points.size() < 2) return false;
  const BlnPoint& first = item.Points.front();
  const BlnPoint& last = item.Points.back();
  return first.Lon == last.Lon && first.Lat == last.Lat;
}

std::string NameOr(const BlnItem& item, std::size_t points, std::string_view ending) {
  return item.Name.empty() ? std::to_string(points) + std::string(ending) : item.Name;
}

PolyRec PolyOf(const BlnItem& item, const AppSettings& settings) {
  PolyRec poly;
  poly.Points.reserve(item.Points.size() - 1);
  for (std::size_t k = 0; k + 1 < item.Points.size(); ++k)
    poly.Points.push_back({item.Points[k].Lon, item.Points[k].Lat, 0, false});
  poly.Name = NameOr(item, poly.Points.size(), "_Points_Poly");
  poly.Type = settings.BLNPolyType;
  poly.Color = settings.BLNPolyColor;
  SetPathBounds(poly);
  return poly;
}

/// Widths from start to end, a vertex a step.
void SpreadWidths(LineRec& line, const AppSettings& settings) {
  const auto start = static_cast<double>(settings.BLNStartWidth);
  const auto end = static_cast<double>(settings.BLNEndWidth);
  const double steps = std::max(1.0, static_cast<double>(line.Points.size()) - 1);
  for (std::size_t k = 0; k < line.Points.size(); ++k)
    line.Points[k].Wid = static_cast<float>(start + (end - start) * static_cast<double>(k) / steps);
}

LineRec LineOf(const BlnItem& item, const AppSettings& settings, BlnWidthField widths) {
  LineRec line;
  line.Points.reserve(item.Points.size());
  for (const BlnPoint& point : item.Points)
    line.Points.push_back({point.Lon, point.Lat, point.Wid, false});
  line.Name = NameOr(item, line.Points.size(), "_Points_Line");
  line.Type = settings.BLNLineType;
  line.Color = settings.BLNLineColor;
  if (widths == BlnWidthField::Ignore) SpreadWidths(line, settings);
  SetPathBounds(line);
  return line;
}

}  // namespace

std::vector<BlnItem> ParseBln(std::string_view bytes, char separator, const std::string& file,
                              BlnWidthField widths) {
  return BlnReader(bytes, separator, file, widths).Read();
}

char BlnSeparatorOf(const AppSettings& settings) {
  if (EqualsIgnoringCase(settings.BLNSeparator, "tab")) return '\t';
  const std::string inFile = ToWindows1252(settings.BLNSeparator);
  return inFile.empty() ? ',' : inFile.front();
}

void ImportBLN(const std::filesystem::path& path, ProjectState& project, const AppSettings& settings) {
  const BlnWidthField widths = settings.BLNWidths ? BlnWidthField::Read : BlnWidthField::Ignore;
  const std::vector<BlnItem> items =
      ParseBln(ReadWholeFile(path), BlnSeparatorOf(settings), PathText(path), widths);
  for (const BlnItem& item : items) {
    if (item.Points.empty()) continue;
    const bool closed = IsClosed(item);
    if (closed) project.Polys.push_back(PolyOf(item, settings));
    if (!closed) project.Lines.push_back(LineOf(item, settings, widths));
    if (closed && settings.BLNAutoLine)
      project.Lines.push_back(LineOf(item, settings, BlnWidthField::Ignore));
  }
}

}  // namespace landsmith
