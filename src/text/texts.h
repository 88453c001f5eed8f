#pragma once
// The string table and the language of the moment.

#include <initializer_list>
#include <string>
#include <string_view>

#include "text/id.h"

namespace text {

enum class Language { kEnglish = 0, kJapanese = 1 };

/// Names a text of the table. With an offset of 0 the entry holds both languages and is split at
/// its marker; else the id is the Japanese label and id + offset the English one.
struct Ref {
  Id id;
  int english_offset = 0;
};

/// Entry of the table as stored, empty when there is none.
[[nodiscard]] std::string_view entry(Id id);
[[nodiscard]] bool has_entry(Id id);

/// The half of a combined text: before the marker in English, after it in Japanese; all of it when
/// it holds none.
[[nodiscard]] std::string_view half(std::string_view combined, Language language);

/// half() of the entry.
[[nodiscard]] std::string_view bilingual(Id id, Language language);

/// Text of a label or message; empty for id 0.
[[nodiscard]] std::string_view resolve(Ref ref, Language language);

/// Replaces each "%s" and "%d" of the text by the next argument, in order; "%%" stays as it is.
[[nodiscard]] std::string fill(std::string_view format,
                               std::initializer_list<std::string_view> arguments);
/// The same behind what `result` holds.
void append_filled(std::string& result, std::string_view format,
                   std::initializer_list<std::string_view> arguments);

/// The language flag of the run. One object, handed to everything that shows a text.
class Texts {
 public:
  Language language = Language::kEnglish;

  [[nodiscard]] std::string_view get(Id id) const { return bilingual(id, language); }
  [[nodiscard]] std::string_view get(Ref ref) const { return resolve(ref, language); }
};

}  // namespace text
