// FIXDATA.DAT from any bytes: it is refused unless it has its size and holds no control
// character; read and written again and
// again, it soon changes no more. A damaged line may change once for each of its readings: a port
// that looks like UTF-8 after the damage was written as "?" is read so, and has fewer bytes then.

#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz.h"
#include "platform/posix/code_page.h"
#include "ship/data/ship_files.h"
#include "text/strings.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const platform::posix::PosixCodePage code_page;
  constexpr platform::DateTime kNow{2014, 11, 15, 11, 50, 0};
  constexpr int kRounds = 8;  // each takes a third of the bytes away, and there are 24
  const fuzz::Input input(data, size);
  auto read = decode_fixed_data(input.text(), kNow, code_page);
  fuzz::expect(read.has_value() == (size == kFixedDataSize && !text::has_control(input.text())),
               "only 155 bytes without control characters are read");
  if (!read) return 0;
  std::string line;
  for (int round = 0; round < kRounds; ++round) {
    line = encode_fixed_data(*read, kNow, code_page);
    fuzz::expect(line.size() == kFixedDataSize, "155 bytes are written", line);
    read = decode_fixed_data(line, kNow, code_page);
    fuzz::expect(read.has_value(), "what was written is read", line);
  }
  const std::string again = encode_fixed_data(*read, kNow, code_page);
  fuzz::expect(again == line, "the line settles", again, line);
  return 0;
}
