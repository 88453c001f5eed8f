// FIXDATA.DAT from any bytes: it is refused unless it has its size and holds no control character;
// what was read once is written,
// read and written again without a further change.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ship/ship_files.h"
#include "text/strings.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string line(data, data + size);
  constexpr platform::DateTime kNow{2014, 11, 15, 11, 50, 0};
  const auto once = decode_fixed_data(line, kNow);
  const bool sound = size == kFixedDataSize && !text::has_control(line);
  if (once.has_value() != sound) std::abort();
  if (!once) return 0;
  const auto twice = decode_fixed_data(encode_fixed_data(*once, kNow), kNow);
  if (!twice) std::abort();
  const std::string written = encode_fixed_data(*twice, kNow);
  const auto again = decode_fixed_data(written, kNow);
  if (!again || encode_fixed_data(*again, kNow) != written) std::abort();
  return 0;
}
