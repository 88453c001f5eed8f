#pragma once
// FIXDATA.DAT (the ship's fixed data, one line of 155 characters) and MOKSDATA.DAT (the twelve
// observation items, 12 digits). The encoding is a table of fields; reading and writing are pure
// functions, and load/save put them on the files port. Widths and offsets count bytes of code page
// 932 (ship_text.h).
//
// A save replaces the file as a whole: a full disk, a refusal or a kill at any moment leaves the
// old file. Reading survives any bytes. What the format cannot hold is lost by design: blanks of
// the text fields (also those inside a port), "not chosen" as card type (it is written like type
// "1"), underscores of a manufacturer.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ports.h"
#include "ship/data/KeyObservationItems.h"
#include "ship/data/ShipFixedData.h"

inline constexpr std::size_t kFixedDataSize = 155;
inline constexpr std::size_t kKeyItemsSize = kObservationItems;

/// The line of FIXDATA.DAT, always 155 bytes. `written` is the local date put in front. A value too
/// long for its field is cut at a character, so that no later field moves; a control character is
/// written as a blank.
[[nodiscard]] std::string encode_fixed_data(const ShipFixedData& data,
                                            const platform::DateTime& written,
                                            const platform::CodePage& code_page);

/// The values of a line, or nothing when it is not exactly 155 bytes or holds a control character:
/// a damaged file, of which no value can be trusted. A blank check date becomes `utc`, without
/// leading zeros.
[[nodiscard]] std::optional<ShipFixedData> decode_fixed_data(std::string_view line,
                                                             const platform::DateTime& utc,
                                                             const platform::CodePage& code_page);

/// The values as they come back from a file: without what the form of the line loses.
[[nodiscard]] ShipFixedData as_read_back(const ShipFixedData& data, const platform::DateTime& utc,
                                         const platform::CodePage& code_page);

/// Twelve digits, "0" observed and "1" not observed.
[[nodiscard]] std::string encode_key_items(const KeyObservationItems& items);

/// Nothing when the text is not exactly 12 bytes or holds a control character. Anything but "0" is
/// not observed.
[[nodiscard]] std::optional<KeyObservationItems> decode_key_items(std::string_view digits);

/// How reading one of the two files ended.
enum class FileRead {
  kRead,
  kMissing,     ///< there is none, for certain
  kWrongSize,   ///< not a file of its kind, by its size or for control characters: ignored, the
                ///< caller goes on with its defaults
  kUnreadable,  ///< it cannot be read, or one cannot tell whether it is there: the officer is told
};

template <class T>
struct Loaded {
  FileRead outcome = FileRead::kMissing;
  T values{};                                              ///< the defaults unless outcome is kRead
  platform::FileError error = platform::FileError::kNone;  ///< of kUnreadable
};

[[nodiscard]] Loaded<ShipFixedData> load_fixed_data(const platform::Files& files,
                                                    const std::string& path,
                                                    const platform::Clock& clock,
                                                    const platform::CodePage& code_page);
[[nodiscard]] Loaded<KeyObservationItems> load_key_items(const platform::Files& files,
                                                         const std::string& path);

/// Replaces the file. On an error the old file, or none, is there as before.
[[nodiscard]] platform::FileError save_fixed_data(platform::Files& files, const std::string& path,
                                                  const ShipFixedData& data,
                                                  const platform::Clock& clock,
                                                  const platform::CodePage& code_page);
[[nodiscard]] platform::FileError save_key_items(platform::Files& files, const std::string& path,
                                                 const KeyObservationItems& items);
