#pragma once
// An observation that was not saved, as a text that outlives the program.
//
//   draft=1                     version of this layout: 2 for a report that is being corrected,
//                               3 when that came with VOSClim values
//   call_sign=JXKV              whose observation it is
//   ship=5A1C22F0               what of the ship the values were computed with
//   record.YY=15                fields of the record, as in an observation file
//   text.reading=1010.8         what a field of the form shows
//   typed.ww=                   a text that is not accepted, and what stood there before it
//   wrong.ww=1                  it is marked wrong
//   aside.VV=97                 an entry put aside while its element is switched off
//   ...
//   correcting=14111512.tlx     file of the report that is being corrected
//   unplaced.0=70033            what of that file is not in the form, and why
//   why.0=4
//   check=0F2E6A11              checksum of all that stands above
//
// UTF-8, one line each, in one order; what is empty, not set or not chosen has no line. "%" and
// what would not survive in a line (ends of lines, blanks at the ends, bytes that are no UTF-8)
// stand as "%" with two figures of 16. A text that differs from what encode_draft() writes in a
// single byte is damaged.

#include <cstdint>
#include <string>
#include <string_view>

#include "elements/form/correction.h"
#include "elements/form/entries.h"

namespace elements {

struct Draft {
  std::string call_sign;   ///< as in the ship's fixed data
  std::string ship_mark;   ///< see ship_mark()
  Entries form;            ///< the working values of the record are not kept
  std::string typing_in;   ///< name of the control that was being typed into; empty: none was
  std::string group_text;  ///< what stood in it, when it is a group of the report
  Correction correction = {};
};

/// Changes with every value of the ship that the form computes with: a draft with another one has
/// its derived values computed anew.
[[nodiscard]] std::string ship_mark(const ShipFixedData& ship);

[[nodiscard]] std::string encode_draft(const Draft& draft);

enum class DraftFault : std::uint8_t {
  kNone,
  kDamaged,
  kLaterVersion,
};
struct DraftRead {
  DraftFault fault = DraftFault::kDamaged;
  Draft draft;  ///< only with kNone
};
/// Any bytes are survived. With kNone the draft encodes to the same text.
[[nodiscard]] DraftRead decode_draft(std::string_view text);

/// More bytes than any draft has.
inline constexpr std::uint64_t kLargestDraft = 256U << 10U;

}  // namespace elements
