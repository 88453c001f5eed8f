#pragma once
// The groups of a ship report as rows: what stands in front, which symbols follow and how wide they
// are, when the group is written and under which label it is noted as missing. The encoder, the
// reader and the main window's group fields all work from this one table.

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "observation/Struct_Weather.h"
#include "text/id.h"

namespace observation {

/// The groups in the order of the message.
enum class Group : std::uint8_t {
  kYYGGiw,
  k99LaLaLa,
  kQcLoLoLoLo,
  kiRiXhVV,
  kNddff,
  k00fff,
  k1SnTTT,
  k2SnTdTdTd,
  k4PPPP,
  k5appp,
  k7wwW1W2,
  k8NhCLCMCH,
  k9GGgg,
  k222DsVs,
  k0SsTwTwTw,
  k1PwaPwaHwaHwa,
  k2PwPwHwHw,
  k3dw1dw1dw2dw2,
  k4Pw1Pw1Hw1Hw1,
  k5Pw2Pw2Hw2Hw2,
  k6IsEsEsRs,
  k8SwTbTbTb,
  kICE,
};
inline constexpr std::size_t kGroups = 23;

/// How a symbol's figures come from its field.
enum class Figures : std::uint8_t {
  kNormalised,  ///< spaces removed, "*" for every figure of an empty field
  kKept,        ///< as it stands
  kTenths,      ///< minutes / 6, truncated; "*" for an empty field
};

struct Symbol {
  std::string Struct_Weather::*field = nullptr;
  std::uint8_t width = 0;
  Figures figures = Figures::kNormalised;
};

enum class Written : std::uint8_t {
  kAlways,            ///< even when incomplete
  kUnlessAllMissing,  ///< left out when every figure is missing
  kWhenSet,           ///< only when the field named by the row is set
  kWhenAsked,         ///< only when the caller asks for it, and then kUnlessAllMissing
  kSwell,             ///< the three swell groups decide together
};

struct GroupRow {
  Group group;
  std::string_view indicator;  ///< fixed figures in front
  std::array<Symbol, 5> symbols;
  Written written;
  text::Id missing_label = {};  ///< id of the label in the missing list; none = never noted
  std::string Struct_Weather::*when_set = nullptr;

  /// The symbols that are used.
  [[nodiscard]] std::span<const Symbol> used() const;
  /// Number of characters of the group when every figure is there.
  [[nodiscard]] std::size_t width() const;
};

/// All rows, indexed by group.
[[nodiscard]] std::span<const GroupRow, kGroups> group_rows();
[[nodiscard]] const GroupRow& row_of(Group group);

/// Group builder: appends the group's text with "*" where a field is empty, such as "4****",
/// "222**", "3**//". A second swell direction "00" beside a first one other than "00" reads "**".
void append_group(std::string& out, const Struct_Weather& record, Group group);
[[nodiscard]] std::string group_text(const Struct_Weather& record, Group group);

/// True when a symbol of the group has an empty field.
[[nodiscard]] bool is_incomplete(const Struct_Weather& record, Group group);

/// True when a group's text, "*" read as "/", holds nothing but "/" behind its indicator.
[[nodiscard]] bool is_all_missing(std::string_view text, const GroupRow& row);

}  // namespace observation
