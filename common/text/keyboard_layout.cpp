// Text typed on the wrong keyboard, or with letters that look alike.
#include <cstddef>
#include <cstring>
#include <string_view>

#include "kz/translit.h"
#include "text/byte_map.h"
#include "text/literal.h"

namespace kz {
namespace {

// Position by position the characters of the same key.
constexpr std::string_view kRussianKeys =
    U"йцукенгшщзхъфывапролджэячсмитьбюёЙЦУКЕНГШЩЗХЪФЫВАПРОЛДЖЭЯЧСМИТЬБЮЁ"_1251;
constexpr std::string_view kLatinKeys =
    "qwertyuiop[]asdfghjkl;'zxcvbnm,.`QWERTYUIOP{}ASDFGHJKL:\"ZXCVBNM<>~";

// Position by position letters that look the same.
constexpr std::string_view kRussianLookAlikes = U"адеикмопрсухАВЕКМНОРСУХ"_1251;
constexpr std::string_view kLatinLookAlikes = "ageukmonpcyxABEKMHOPCYX";

consteval ByteMap replacing(std::string_view characters, std::string_view replacements) {
  if (characters.size() != replacements.size()) throw "texts of different length";
  ByteMap map = identity_map();
  for (std::size_t i = 0; i < characters.size(); ++i) {
    map[static_cast<unsigned char>(characters[i])] = static_cast<unsigned char>(replacements[i]);
  }
  return map;
}

constexpr Translation kToLatinKeys{replacing(kRussianKeys, kLatinKeys)};
constexpr ByteMap kToRussianKeys = replacing(kLatinKeys, kRussianKeys);
constexpr Translation kToLatinLookAlikes{replacing(kRussianLookAlikes, kLatinLookAlikes)};
constexpr Translation kToRussianLookAlikes{replacing(kLatinLookAlikes, kRussianLookAlikes)};

char* translate_before(char* text, int stop, const Translation& translation) {
  if (text == nullptr) return nullptr;
  const char stops[] = {static_cast<char>(stop), '\0'};
  const std::size_t size = std::strcspn(text, stops);
  translate(text, text, size, translation);
  return text + size;
}

}  // namespace
}  // namespace kz

char* strlat(char* text, int stop) {
  return kz::translate_before(text, stop, kz::kToLatinLookAlikes);
}

char* strrus(char* text, int stop) {
  return kz::translate_before(text, stop, kz::kToRussianLookAlikes);
}

char* strlatcase(char* text) {
  return text == nullptr ? nullptr : kz::translate_text(text, text, kz::kToLatinKeys);
}

char* strruscase(char* text) {
  if (text == nullptr) return nullptr;
  for (; *text != '\0'; ++text) {
    *text = static_cast<char>(kz::kToRussianKeys[static_cast<unsigned char>(*text)]);
  }
  return text;
}
