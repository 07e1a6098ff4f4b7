// The language and direction codes of the library, and how texts name them.
#ifndef KZ_TEXT_LANGUAGE_H
#define KZ_TEXT_LANGUAGE_H

namespace kz {

// The constants that the library's functions return; equal codes are the same pointer.
namespace code {

inline constexpr char kRu[] = "RU";
inline constexpr char kEn[] = "EN";
inline constexpr char kFr[] = "FR";
inline constexpr char kDe[] = "DE";

inline constexpr char kEnru[] = "ENRU";
inline constexpr char kRuen[] = "RUEN";
inline constexpr char kFrru[] = "FRRU";
inline constexpr char kRufr[] = "RUFR";
inline constexpr char kDeru[] = "DERU";
inline constexpr char kRude[] = "RUDE";

}  // namespace code

// Languages whose letters have accents or other marks of their own.
enum class Language { other, russian, german, french };

namespace language_code {

constexpr char to_upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }

}  // namespace language_code

// True when the first two characters of a text, in any case, are the two capitals of `code`. A null
// text names no language.
constexpr bool is_language(const char* text, const char (&code)[3]) {
  return text != nullptr && language_code::to_upper(text[0]) == code[0] &&
         language_code::to_upper(text[1]) == code[1];
}

constexpr Language language_of(const char* text) {
  if (is_language(text, code::kRu)) return Language::russian;
  if (is_language(text, code::kDe)) return Language::german;
  if (is_language(text, code::kFr)) return Language::french;
  return Language::other;
}

}  // namespace kz

#endif  // KZ_TEXT_LANGUAGE_H
