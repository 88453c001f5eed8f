#include "observation/logbook_reader.h"

#include <algorithm>

#include "observation/report_text.h"
#include "text/strings.h"

namespace observation {
namespace {

bool is_blank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

// "/" is what an empty field is filled with.
bool is_missing(std::string_view text) {
  return text.find_first_not_of('/') == std::string_view::npos;
}

std::string column_text(const LogbookColumn& column, const LogbookSource& source) {
  std::string text;
  write_column(text, column, source);
  return text;
}

// The field that the column was written from; nothing when no field gives this text.
void take(Struct_Weather& record, const LogbookColumn& column, std::string_view text,
          const ShipFixedData& ship, const KeyObservationItems& items) {
  std::string value;
  if (!is_blank(text) && !is_missing(text)) value = text;
  if (!value.empty() && !is_figures(value)) return;
  Struct_Weather with = record;
  with.*column.field = value;
  if (column_text(column, {with, ship, items}) == text) record.*column.field = value;
}

}  // namespace

LogbookLines::LogbookLines(const Struct_Weather& report, const ShipFixedData& ship,
                           const KeyObservationItems& items) {
  // A report tells neither of these, so each of them may have been so.
  Struct_Weather no_second_swell = report;
  if (is_missing(report.dw2dw2)) no_second_swell.dw2dw2 = "00";
  ShipFixedData other_ship = ship;
  other_ship.dew_point_method = ship.dew_point_method == DewPointMethod::kDirect
                                    ? DewPointMethod::kComputed
                                    : DewPointMethod::kDirect;
  KeyObservationItems other_items = items;
  other_items.set_observed(ObservationItem::PwHw, !items.observed(ObservationItem::PwHw));
  const LogbookSource sources[] = {{report, ship, items},
                                   {no_second_swell, ship, items},
                                   {report, other_ship, items},
                                   {report, ship, other_items}};
  // The wet bulb goes out only where the dew point is computed from it, and into the logbook always.
  const bool no_wet_bulb = report.Sw.empty() && report.TbTbTb.empty();
  for (const LogbookColumn& column : logbook_columns()) {
    const bool of_wet_bulb =
        column.field == &Struct_Weather::Sw || column.field == &Struct_Weather::TbTbTb;
    Place place{&column, of_wet_bulb && no_wet_bulb ? ColumnTells::kMore : column.tells, size_, {}};
    for (const LogbookSource& source : sources) place.texts.push_back(column_text(column, source));
    size_ += place.texts.front().size();
    places_.push_back(std::move(place));
  }
}

bool LogbookLines::holds(std::string_view line) const {
  if (line.size() != size_) return false;
  return std::ranges::all_of(places_, [&](const Place& place) {
    return place.tells != ColumnTells::kReport ||
           std::ranges::find(place.texts, text_of(place, line)) != place.texts.end();
  });
}

void LogbookLines::complete(Struct_Weather& record, std::string_view line) const {
  const ShipFixedData ship;
  const KeyObservationItems items;
  for (const Place& place : places_) {
    const std::string_view text = text_of(place, line);
    if (place.tells == ColumnTells::kMore)
      take(record, *place.column, text, ship, items);
    else if (place.column->first == kSecondSwellColumn && is_blank(text))
      record.dw2dw2 = "00";
  }
}

platform::FileError for_each_line(const platform::Files& files, const std::string& path,
                                  const std::function<void(std::string_view line)>& use) {
  constexpr std::uint64_t kPiece = 1U << 18U;
  // No line of the layout is longer, an editor's byte order mark and line end included, so more of
  // one that is need not be kept.
  constexpr std::size_t kLongest = kLogbookColumns + 8;
  const auto hand_over = [&](std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    use(text::without_byte_order_mark(line.substr(0, 2 * kLongest)));
  };
  std::string begun;  // of the line that goes on in the next piece
  for (std::uint64_t from = 0;;) {
    const auto piece = files.read_part(path, from, kPiece);
    if (!piece.ok()) return piece.error;
    std::string_view rest = *piece.value;
    if (rest.empty()) break;
    from += rest.size();
    for (auto end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
      if (begun.empty()) {
        hand_over(rest.substr(0, end));
      } else {
        begun.append(rest.substr(0, std::min(end, kLongest)));
        hand_over(begun);
        begun.clear();
      }
      rest.remove_prefix(end + 1);
    }
    if (begun.size() <= kLongest) begun.append(rest.substr(0, kLongest));
  }
  if (!begun.empty()) hand_over(begun);
  return platform::FileError::kNone;
}

platform::Result<std::string> find_last_line(const platform::Files& files, const std::string& path,
                                             const LogbookLines& lines) {
  std::string found;
  const auto error = for_each_line(files, path, [&](std::string_view line) {
    if (lines.holds(line)) found = line;
  });
  if (error != platform::FileError::kNone) return error;
  return found;
}

}  // namespace observation
