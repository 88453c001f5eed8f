#pragma once
// Which ship a logbook's lines are of. A ship keeps her IMO number for life and may change her call
// sign, so a line that says otherwise than those around it was damaged, typed wrong, or is another
// ship's. What a line is among is known only when the lines behind it are read: it is told then.
//
// Nothing is asked of a line without a call sign, and of an IMO number that is left empty.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "explain/log/recent.h"
#include "observation/Struct_Weather.h"

namespace explain {

/// A line that something is told of when others were read behind it.
struct PassedLine {
  std::uint64_t line = 0;
  std::string when;    ///< Finding::when
  bool error = false;  ///< it has one already
  bool doubt = false;
};

enum class IdentityFault : std::uint8_t {
  kOtherImoNumber,    ///< in a few lines, and then again the one of before
  kImoNumberChanged,  ///< from this line on
  kOtherCallSign,     ///< in a few lines of an IMO number, and then again the one of before
  kCallSignChanged,   ///< from this line on, for the first time
  kCallSignChangedAgain,
  kOtherShip,  ///< a few lines among many of one ship, of which both are others
};

struct IdentityFinding {
  IdentityFault fault;
  PassedLine at;
  std::string has;     ///< IMO number or call sign of the line
  std::string others;  ///< that of the lines around it
  std::string of;      ///< what they have in common; empty for kOtherShip
};

/// Seven figures, of which the last is the last one of the sum of the others times 7 to 2.
[[nodiscard]] bool is_sound_imo_number(std::string_view number);

class IdentityCheck {
 public:
  using Found = std::function<void(const IdentityFinding&)>;
  /// So many lines may be a slip; one more is a change.
  static constexpr std::size_t kFewLines = 3;
  /// From so many lines of one ship on another ship's are strange among them.
  static constexpr std::uint64_t kManyLines = 50;

  /// Of so many call signs and so many IMO numbers something is remembered.
  explicit IdentityCheck(std::size_t most_ships);

  /// The next line; `passed` gives its place, and is called only where that is kept.
  void take(const Struct_Weather& record, const std::function<PassedLine()>& passed,
            const Found& found);
  /// No line comes any more.
  void finish(const Found& found);

 private:
  struct Kinds;
  static const Kinds kImoNumbers, kCallSigns;

  using Lines = std::vector<PassedLine>;
  /// What goes with a call sign or an IMO number.
  struct Settled {
    std::string value;
    bool has_changed = false;
    std::string other;  ///< that of the last lines
    Lines few;          ///< these, while they are few
    std::uint64_t lines = 0;
  };
  /// Lines of one call sign behind each other.
  struct Run {
    std::string call_sign, imo_number;
    std::uint64_t lines = 0;
    Lines first;
  };

  static void settle(Settled& settled, const std::string& key, const std::string& value,
                     const Kinds& kinds, const std::function<PassedLine()>& passed,
                     const Found& found);
  static void tell_change(Settled& settled, const std::string& key, const Kinds& kinds,
                          const Found& found);
  void take_run(const std::string& call_sign, const std::string& imo_number,
                const std::function<PassedLine()>& passed, const Found& found);
  /// The lines of one run are few, and those of the other are many and of another ship.
  [[nodiscard]] bool is_strange(const Run& few, const Run& many);
  /// There were no lines of other ships.
  [[nodiscard]] bool are_all(const Run& few, const Run& many);
  static void tell_strange(const Run& few, const Run& many, const Found& found);

  Recent<Settled> of_call_sign_;
  Recent<Settled> of_imo_number_;
  Run run_, run_before_;
  std::uint64_t lines_ = 0;
};

}  // namespace explain
