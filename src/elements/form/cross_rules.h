#pragma once
// Rules that relate two or more elements. The editors of the elements involved ask here when a
// field is left, the save asks for all of them.

#include <span>
#include <vector>

#include "elements/form/fields.h"
#include "observation/Struct_Weather.h"
#include "text/id.h"

namespace elements {

struct CrossRule {
  text::Id message;     ///< text id of the refusal
  text::Id check_text;  ///< text id, 0 for none
  bool (*broken)(const Struct_Weather& record);
  /// The fields whose editors raise it; none for a rule that only a save asks for.
  std::vector<Field> (*raised_by)();
};

[[nodiscard]] std::span<const CrossRule> cross_rules();

/// The rules that the record breaks, in the table's order. An element that is not entered, or not
/// observed ("/"), breaks none.
[[nodiscard]] std::vector<const CrossRule*> broken_rules(const Struct_Weather& record);

/// The first rule that this field raises and the record breaks, nullptr when it keeps all of them.
[[nodiscard]] const CrossRule* broken_by(Field field, const Struct_Weather& record);

}  // namespace elements
