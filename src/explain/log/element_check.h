#pragma once
// Each element of a logbook's line against its code table and its limits. Both are those of the form
// (elements/form/fields.h) and of the code tables; what is an element's own here is the columns that
// it stands in.

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "elements/form/fields.h"
#include "observation/logbook_record.h"

namespace explain {

/// What may be wrong with the figures of one element.
enum class ElementFault : std::uint8_t {
  kNone,
  kCode,        ///< not in its code table
  kLimit,       ///< outside its limits
  kIncomplete,  ///< figures are missing among others
  kNoSign,      ///< a value without its sign
};

/// Columns of the line, counted from 1; 0 and 0 are the whole line.
struct ColumnRange {
  std::uint8_t first = 0;
  std::uint8_t last = 0;
};
/// Where the figures of a member of the record stand; the whole line for one that has no columns.
[[nodiscard]] ColumnRange columns_of(std::string Struct_Weather::*member);
/// What the member is called ("TTT").
[[nodiscard]] std::string_view symbol_of(std::string Struct_Weather::*member);

struct ElementFinding {
  ElementFault fault = ElementFault::kNone;
  std::string Struct_Weather::*member = nullptr;
  std::string_view figures;  ///< as they stand, with the sign in front where that has a part in it
  std::string_view code_table;                ///< number of the code table for kCode
  const elements::FieldRow* field = nullptr;  ///< whose limits they are, for kLimit
};

/// Remembers what it has judged, for a line has forty elements and most values come again.
class ElementCheck {
 public:
  ElementCheck();
  /// Calls `found` for each element with a fault, in the order of the table. Missing elements have
  /// none.
  void check(const Struct_Weather& record, const std::function<void(const ElementFinding&)>& found);

 private:
  struct Memory {
    std::vector<std::uint8_t> faults;  ///< one more than the fault of the figures; 0 is not judged
  };
  [[nodiscard]] ElementFault judge(std::size_t row, std::string_view sign,
                                   std::string_view figures);

  std::vector<Memory> memory_;
};

}  // namespace explain
