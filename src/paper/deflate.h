#pragma once
// Bytes packed as files take them (zlib's format, RFC 1950 and 1951).

#include <string>
#include <string_view>

namespace paper {

/// Repetitions are told by where they were; the codes are the format's own fixed ones.
[[nodiscard]] std::string deflate(std::string_view bytes);

}  // namespace paper
