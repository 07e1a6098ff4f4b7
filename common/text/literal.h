// Single-byte text constants written as readable letters: U"дом"_1251, U"für"_1252, U'я'_1251.
//
// The conversion happens at compile time; a character that the code page lacks does not compile.
// The texts are zero-terminated views of static storage.
#ifndef KZ_TEXT_LITERAL_H
#define KZ_TEXT_LITERAL_H

#include <cstddef>
#include <string_view>

namespace kz {

// Code of a Unicode character in Windows-1251 (the part of it that this library names), 0 if it
// has none.
constexpr unsigned char to_1251(char32_t c) {
  if (c < 0x80) return static_cast<unsigned char>(c);
  if (c >= U'А' && c <= U'я') return static_cast<unsigned char>(c - U'А' + 192);
  switch (c) {
    case U'Ё': return 168;
    case U'ё': return 184;
    case U'‚': return 130;
    case U'„': return 132;
    case U'‘': return 145;
    case U'’': return 146;
    case U'“': return 147;
    case U'”': return 148;
    case U'–': return 150;
    case U'—': return 151;
    case U'«': return 171;
    case U'\u00AD': return 173;  // soft hyphen
    case U'ґ': return 180;
    case U'№': return 185;
    case U'»': return 187;
    default: return 0;
  }
}

// Code of a Unicode character in Windows-1252 (Latin-1 and the typographic characters that this
// library names), 0 if it has none.
constexpr unsigned char to_1252(char32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<unsigned char>(c);
  switch (c) {
    case U'‚': return 130;
    case U'„': return 132;
    case U'Š': return 138;
    case U'Œ': return 140;
    case U'‘': return 145;
    case U'’': return 146;
    case U'“': return 147;
    case U'”': return 148;
    case U'–': return 150;
    case U'—': return 151;
    case U'š': return 154;
    case U'œ': return 156;
    case U'Ÿ': return 159;
    default: return 0;
  }
}

namespace literal {

template <std::size_t N>
struct Utf32 {
  char32_t text[N]{};
  consteval Utf32(const char32_t (&source)[N]) {
    for (std::size_t i = 0; i < N; ++i) text[i] = source[i];
  }
};

template <std::size_t N>
struct Bytes {
  char text[N]{};
};

template <std::size_t N>
consteval Bytes<N> encode(const Utf32<N>& source, unsigned char (*code)(char32_t)) {
  Bytes<N> result;
  for (std::size_t i = 0; i + 1 < N; ++i) {
    const unsigned char c = code(source.text[i]);
    if (c == 0) throw "a character that the code page lacks";
    result.text[i] = static_cast<char>(c);
  }
  return result;
}

template <Utf32 Text>
inline constexpr auto kIn1251 = encode(Text, to_1251);
template <Utf32 Text>
inline constexpr auto kIn1252 = encode(Text, to_1252);

}  // namespace literal

// U"дом"_1251: the text in Windows-1251.
template <literal::Utf32 Text>
consteval std::string_view operator""_1251() {
  return {literal::kIn1251<Text>.text, sizeof literal::kIn1251<Text>.text - 1};
}

// U"für"_1252: the text in Windows-1252.
template <literal::Utf32 Text>
consteval std::string_view operator""_1252() {
  return {literal::kIn1252<Text>.text, sizeof literal::kIn1252<Text>.text - 1};
}

// U'я'_1251, U'ß'_1252: the code of one character.
consteval unsigned char operator""_1251(char32_t c) {
  if (to_1251(c) == 0) throw "a character that the code page lacks";
  return to_1251(c);
}
consteval unsigned char operator""_1252(char32_t c) {
  if (to_1252(c) == 0) throw "a character that the code page lacks";
  return to_1252(c);
}

}  // namespace kz

#endif  // KZ_TEXT_LITERAL_H
