#pragma once
// Rules that relate two or more elements. The editors of the elements involved ask here when a
// field is left, the save asks for all of them.

#include <cstdint>
#include <initializer_list>
#include <span>
#include <vector>

#include "elements/form/fields.h"
#include "observation/Struct_Weather.h"
#include "text/id.h"

namespace elements {

/// Some fields.
class FieldSet {
 public:
  constexpr FieldSet(std::initializer_list<Field> fields) {
    for (const Field field : fields) bits_ |= bit(field);
  }
  [[nodiscard]] constexpr bool contains(Field field) const { return (bits_ & bit(field)) != 0; }

 private:
  static_assert(kFields <= 64);
  static constexpr std::uint64_t bit(Field field) {
    return std::uint64_t{1} << static_cast<unsigned>(field);
  }
  std::uint64_t bits_ = 0;
};

struct CrossRule {
  text::Id message;     ///< text id of the refusal
  text::Id check_text;  ///< the rule's short name beside its message, which says all; none for most
  bool (*broken)(const Struct_Weather& record);
  /// The fields whose editors raise it; none for a rule that only a save asks for.
  FieldSet raised_by;
  /// What is to be corrected, beside these.
  FieldSet also_about = {};
};

[[nodiscard]] std::span<const CrossRule> cross_rules();

/// The rules that the record breaks, in the table's order. An element that is not entered, or not
/// observed ("/"), breaks none.
[[nodiscard]] std::vector<const CrossRule*> broken_rules(const Struct_Weather& record);

/// The first rule that this field raises and the record breaks, nullptr when it keeps all of them.
[[nodiscard]] const CrossRule* broken_by(Field field, const Struct_Weather& record);

}  // namespace elements
