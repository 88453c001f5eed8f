#pragma once
// The logbook as a port officer checks it: the layout column by column, each element against its
// code table and limits, the rules that relate elements, and each line against those of its ship
// before it. Lines come one by one and memory does not grow with them, so a log of any length, of
// one ship or of a fleet, is checked in one pass.
//
// Of ships, the kMostShips seen last are remembered: the last observations of each. Of observations,
// the ship and hour of the last kMostHours, of whichever ships, so that one that is there twice is
// found. What was forgotten is missed, never told wrongly.

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "explain/doubts/doubts.h"
#include "explain/log/element_check.h"
#include "explain/log/identity_check.h"
#include "explain/log/recent.h"
#include "observation/values.h"
#include "text/texts.h"

namespace explain {

inline constexpr std::size_t kMostShips = 1024;
inline constexpr std::size_t kMostHours = 1U << 17U;

enum class Severity : std::uint8_t {
  kError,  ///< what no sound log holds
  kDoubt,  ///< what may be right and should be looked at
  kNote,   ///< what is as it should be where somebody meant it: a correction leaves two lines
};

/// "error", "doubt" or "note".
[[nodiscard]] std::string_view name_of(Severity severity);

/// A kind of finding. A row of the table in logbook_check.cpp.
struct FindingKind {
  std::string_view name;  ///< for lists that a program reads; never changes
  Severity severity;
  text::Id text;  ///< what is wrong, with places for what is so
  text::Id mend;  ///< how to mend it
};
[[nodiscard]] std::span<const FindingKind> finding_kinds();

/// What of a line a finding is about.
struct LinePlace {
  std::vector<ColumnRange> columns;  ///< none for the line as a whole
  std::string symbols;  ///< of its elements, separated by a blank; empty where there are none
  std::string named;    ///< these as a person calls them, in the check's language
};

struct Finding {
  std::uint64_t line = 0;  ///< number of the line, from 1
  const FindingKind* kind = nullptr;
  std::string rule;  ///< which one of its kind: the name of a doubt; else empty
  LinePlace place;
  std::string text;  ///< in the check's language, printable, one line
  std::string when;  ///< date and hour of the observation; empty where they cannot be read
};

/// Findings counted: how many lines, how many sound, which faults how often and where.
class Summary {
 public:
  /// Of each fault so many lines are named.
  static constexpr std::size_t kLinesNamed = 5;
  /// So many ships are named.
  static constexpr std::size_t kShipsNamed = 20;

  explicit Summary(text::Language language) : language_(language) {}

  [[nodiscard]] std::uint64_t lines() const { return lines_; }
  [[nodiscard]] std::uint64_t with_errors() const { return errors_; }
  /// Lines with doubts and without errors.
  [[nodiscard]] std::uint64_t with_doubts() const { return doubts_; }
  /// No line has an error or a doubt.
  [[nodiscard]] bool is_sound() const { return errors_ + doubts_ == 0; }
  /// Nothing at all was found, not even something to note.
  [[nodiscard]] bool is_empty() const { return groups_.empty(); }

  /// For a person, in the language of the check; each line is ended by LF.
  [[nodiscard]] std::string words() const;

 private:
  friend class LogbookCheck;
  struct Group {
    const FindingKind* kind = nullptr;
    std::uint64_t count = 0;
    std::vector<std::uint64_t> lines;
    std::vector<std::string> hours;  ///< of these lines, see Finding::when
    Finding first;
    bool same_text = true;  ///< in all of them
  };
  struct Ship {
    std::string call_sign;
    std::uint64_t lines = 0;
    std::string first, last;  ///< date and hour
  };
  void append_group(std::string& out, const Group& group) const;
  void add(const Finding& finding);
  void count_ship(std::string_view call_sign, const std::string& when);

  text::Language language_;
  std::uint64_t lines_ = 0;
  std::uint64_t errors_ = 0;
  std::uint64_t doubts_ = 0;
  std::uint64_t other_ships_ = 0;  ///< lines of ships that are not named
  std::vector<Ship> ships_;
  /// By kind, rule and elements: as many as the tables have.
  std::map<std::pair<const FindingKind*, std::string>, Group> groups_;
};

class LogbookCheck {
 public:
  using Found = std::function<void(const Finding&)>;
  /// Each finding is handed over as it is made.
  explicit LogbookCheck(text::Language language, Found found = {});

  /// The next line, without its end; any bytes, any length.
  void take(std::string_view line);
  /// No line comes any more: what is known only then is found now.
  const Summary& finish();

 private:
  /// What is remembered of a ship: its last observations in the order of their hours.
  struct Ship {
    struct Past {
      int hour;
      PassedLine at;
      observation::Values values;
      bool elsewhere = false;  ///< where the ship cannot have come to
    };
    std::deque<Past> past;
    std::uint64_t last_line = 0;
  };
  /// Which line told an hour, and a mark of what it said.
  struct Told {
    std::uint64_t line;
    std::uint64_t mark;
  };

  using Members = std::span<std::string Struct_Weather::*const>;
  [[nodiscard]] LinePlace place_of(Members members) const;
  [[nodiscard]] LinePlace place_of(std::string Struct_Weather::*member) const;
  void find(std::size_t kind, LinePlace place, std::initializer_list<std::string_view> words,
            std::string_view rule = {});
  /// Of a line that others were read behind.
  void find_in_passed(std::size_t kind, const PassedLine& line, LinePlace place,
                      std::initializer_list<std::string_view> words);
  void check_layout(const observation::LogbookLine& line, const observation::LogbookRecord& read);
  void check_column(const observation::LogbookLine& line, const observation::LogbookColumn& column);
  void tell(const Finding& finding);
  void check_read(std::string_view text, const observation::LogbookLine& line,
                  const observation::LogbookRecord& read);
  void check_identity(const Struct_Weather& record);
  void tell_identity(const IdentityFinding& found);
  [[nodiscard]] bool has_a_gap_alone(const observation::LogbookRecord& read);
  void check_elements(const observation::LogbookLine& line, const observation::LogbookRecord& read);
  void tell_element(const ElementFinding& found, const Struct_Weather& record);
  void check_rules(const Struct_Weather& record);
  void check_sequence(std::string_view line, const observation::LogbookRecord& read, int hour);
  [[nodiscard]] static Before before_line(const Ship& ship, int hour, bool with_those_elsewhere);
  void check_told(std::string_view line, const std::string& call_sign, int hour);
  void check_order(Ship& ship, int hour);

  text::Language language_;
  Found found_;
  Summary summary_;
  ElementCheck elements_;
  Recent<Ship> ships_{kMostShips};
  IdentityCheck identity_{kMostShips};
  std::deque<PassedLine> passed_;  ///< of which something was found, the last ones
  std::unordered_map<std::string, Told> told_;
  std::deque<std::string> told_order_;
  /// Of the line at hand; nothing when it cannot be read.
  const observation::LogbookRecord* read_ = nullptr;
  std::optional<int> hour_;
  std::vector<std::string Struct_Weather::*> refused_;  ///< of the line at hand
  bool error_ = false;                                  ///< of the line at hand
  bool doubt_ = false;
};

}  // namespace explain
