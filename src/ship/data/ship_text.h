#pragma once
// The texts of FIXDATA.DAT between the program's UTF-8 and the bytes of code page 932. A field has
// a width in bytes; each field is converted by itself, so that a damaged character never touches
// the next field.
//
// Earlier versions of this program wrote the port of the barometer check in UTF-8. A field is read
// so only when it cannot well be anything else (see from_ship_bytes()); the next save writes code
// page 932.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ports.h"

/// The text of a field's bytes. A byte that is no character becomes platform::kNoCharacter.
///
/// It is code page 932 unless all of this holds: the bytes are well-formed UTF-8; every character
/// beside ASCII has three bytes and is one of code page 932; and either the bytes are no code page
/// 932, or no letter follows a Japanese character directly and the text in UTF-8 has fewer unusual
/// characters (kanji of the second level, half-width katakana) than the one in code page 932.
///
/// So no name in katakana or hiragana, half-width or full-width, no name that begins with a kanji
/// of the first level, and no name of up to two kanji is ever taken for UTF-8. Read wrong are, of
/// the files of earlier versions, Greek, Cyrillic and accented letters (two bytes in UTF-8, like
/// half-width katakana), a letter directly behind a Japanese character, and some names with rare
/// kanji; and of code page 932 a name of three kanji or more with rare ones, in which every third
/// byte falls so that UTF-8 has everyday kanji there.
[[nodiscard]] std::string from_ship_bytes(std::string_view bytes,
                                          const platform::CodePage& code_page);

/// The bytes of a text, as many whole characters as fit into `width`; what the code page does not
/// have is written as "?".
[[nodiscard]] std::string to_ship_bytes(std::string_view text, std::size_t width,
                                        const platform::CodePage& code_page);

/// Bytes that the text takes.
[[nodiscard]] std::size_t ship_bytes(std::string_view text, const platform::CodePage& code_page);

/// The first character that the code page does not have, or nothing; kNoCharacter for stray bytes.
[[nodiscard]] std::optional<std::string> first_unknown(std::string_view text,
                                                       const platform::CodePage& code_page);

/// The text as a file gives it back: twins take the place of the characters they stand for. What
/// the code page does not have stays.
[[nodiscard]] std::string as_kept(std::string_view text, const platform::CodePage& code_page);
