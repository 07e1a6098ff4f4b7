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
constexpr std::string_view russian_keys =
    U"йцукенгшщзхъфывапролджэячсмитьбюёЙЦУКЕНГШЩЗХЪФЫВАПРОЛДЖЭЯЧСМИТЬБЮЁ"_1251;
constexpr std::string_view latin_keys =
    "qwertyuiop[]asdfghjkl;'zxcvbnm,.`QWERTYUIOP{}ASDFGHJKL:\"ZXCVBNM<>~";

// Position by position letters that look the same.
constexpr std::string_view russian_look_alikes = U"адеикмопрсухАВЕКМНОРСУХ"_1251;
constexpr std::string_view latin_look_alikes = "ageukmonpcyxABEKMHOPCYX";

consteval ByteMap replacing(std::string_view characters, std::string_view replacements) {
  if (characters.size() != replacements.size()) throw "texts of different length";
  ByteMap map = identity_map();
  for (std::size_t i = 0; i < characters.size(); ++i) {
    map[static_cast<unsigned char>(characters[i])] = static_cast<unsigned char>(replacements[i]);
  }
  return map;
}

constexpr Translation to_latin_keys{replacing(russian_keys, latin_keys)};
constexpr ByteMap to_russian_keys = replacing(latin_keys, russian_keys);
constexpr Translation to_latin_look_alikes{replacing(russian_look_alikes, latin_look_alikes)};
constexpr Translation to_russian_look_alikes{replacing(latin_look_alikes, russian_look_alikes)};

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
  return kz::translate_before(text, stop, kz::to_latin_look_alikes);
}

char* strrus(char* text, int stop) {
  return kz::translate_before(text, stop, kz::to_russian_look_alikes);
}

char* strlatcase(char* text) {
  return text == nullptr ? nullptr : kz::translate_text(text, text, kz::to_latin_keys);
}

char* strruscase(char* text) {
  if (text == nullptr) return nullptr;
  for (; *text != '\0'; ++text) {
    *text = static_cast<char>(kz::to_russian_keys[static_cast<unsigned char>(*text)]);
  }
  return text;
}
