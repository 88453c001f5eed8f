// MOKSDATA.DAT from any bytes: it is refused unless it has its size and holds no control character,
// and comes back as it was written.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ship/data/ship_files.h"
#include "text/strings.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string digits(data, data + size);
  const auto items = decode_key_items(digits);
  const bool sound = size == kKeyItemsSize && !text::has_control(digits);
  if (items.has_value() != sound) std::abort();
  if (!items) return 0;
  if (decode_key_items(encode_key_items(*items)) != items) std::abort();
  return 0;
}
