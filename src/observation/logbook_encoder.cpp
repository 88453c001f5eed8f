#include "observation/logbook_encoder.h"

namespace observation {

std::string encode_logbook(const Struct_Weather& record, const ShipFixedData& ship,
                           const KeyObservationItems& items) {
  std::string line;
  // A position's group is written whole before it is cut to its last figures.
  line.reserve(kLogbookColumns + 8);
  const LogbookSource source{record, ship, items};
  for (const LogbookColumn& column : logbook_columns()) write_column(line, column, source);
  return line;
}

}  // namespace observation
