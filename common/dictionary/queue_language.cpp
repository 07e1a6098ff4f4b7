// Language and type of a dictionary from its file name.
#include <algorithm>
#include <cstring>
#include <span>
#include <string_view>

#include "dictionary/queue_case.h"
#include "kz/dic_queue.h"

namespace kz {
namespace {

// Language codes as they are in a name, before the extension's dot or another one.
constexpr std::string_view kDirections[] = {"ENRU.", "RUEN.", "FRRU.", "RUFR.", "DERU.", "RUDE."};
constexpr std::string_view kLanguages[] = {"RU.", "EN.", "FR.", "DE."};

bool same_letter(char a, char b) { return a == b; }

// Stores the first of the codes that the name holds, without its dot; false when there is none.
template <typename Same>
bool store_code(std::span<const std::string_view> codes, std::string_view name, char* language,
                Same same) {
  for (const std::string_view code : codes) {
    if (std::search(name.begin(), name.end(), code.begin(), code.end(), same) == name.end()) {
      continue;
    }
    if (language != nullptr) language[code.copy(language, code.size() - 1)] = '\0';
    return true;
  }
  return false;
}

// What an extension says: the type, and the kinds of code that the name may hold.
struct Extension {
  std::string_view text;
  char type;
  bool direction;
  bool language;
};

constexpr Extension kExtensions[] = {
    {"DIC", 'C', true, false}, {"DIS", 'S', false, true}, {"DIT", 'T', true, true},
    {"DIH", 'H', false, true}, {"DIG", 'G', false, true},
};

}  // namespace
}  // namespace kz

int DicDefineLangType(const char* name, char* language, char* type) {
  if (language != nullptr) std::memset(language, 0, 5);
  if (type != nullptr) std::memset(type, 0, 2);
  const std::string_view text = name != nullptr ? name : "";
  const std::size_t dot = text.rfind('.');
  if (dot == std::string_view::npos) return 0;
  for (const kz::Extension& extension : kz::kExtensions) {
    if (!kz::equal_ascii_case(text.substr(dot + 1), extension.text)) continue;
    if (type != nullptr) *type = extension.type;
    const auto store = [&](std::span<const std::string_view> codes) {
      return kz::store_code(codes, text, language, kz::same_ascii_letter);
    };
    if (!extension.direction || !store(kz::kDirections)) {
      if (extension.language) store(kz::kLanguages);
    }
    return 1;
  }
  return 0;
}

void DicDefineLang(const char* name, char* language) {
  if (name != nullptr) kz::store_code(kz::kDirections, name, language, kz::same_letter);
}

void DicDefineSpLang(const char* name, char* language) {
  if (name != nullptr) kz::store_code(kz::kLanguages, name, language, kz::same_letter);
}
