// Conversion of entries between code pages, section by section.
#include "entry/convert.h"

#include <cstring>

#include "entry/code_letter.h"
#include "entry/skip.h"
#include "kz/entry_convert.h"

namespace kz {
namespace {

constexpr std::size_t kNotFound = std::string_view::npos;

// Languages whose own sections are Windows-1251; English has no letters beyond ASCII.
bool is_russian_table(char language_letter) {
  return language_letter == 'R' || language_letter == 'E';
}

// An entry and how to convert parts of it, given by position.
struct EntryConverter {
  const CodePages& pages;
  std::span<char> entry;
  const char* language;

  std::string_view text() const { return {entry.data(), entry.size()}; }

  void convert(std::size_t begin, std::size_t end, const Translation& table) const {
    translate(entry.data() + begin, entry.data() + begin, end - begin, table);
  }

  // The table of the languages that a letter of the direction may name.
  const Translation& table_of(char letter) const {
    return is_russian_table(letter) ? pages.russian : pages.western;
  }

  // Converts part code and attribute block; the position after them. An extension of the part
  // code, between the two, is ASCII.
  std::size_t convert_head(std::size_t part) const {
    if (part == entry.size()) return part;
    convert(part, part + 1, pages.russian);
    const std::size_t rest = part + 1;
    const std::size_t bracket = find_attr(text().substr(rest));
    if (bracket == kNotFound) return rest;
    const std::size_t end = text().find(']', rest + bracket);
    if (end == kNotFound) return rest;
    convert(rest + bracket + 1, end, pages.russian);
    return end + 1;
  }

  void convert_body(std::size_t begin, std::size_t end) const {
    if (entry::LanguagePair(language).third == 'D') {
      convert_mixed(pages, text().substr(begin, end - begin), language, entry.data() + begin);
    } else {
      convert(begin, end, table_of(entry::target_letter(language)));
    }
  }
};

}  // namespace

void convert_entry(const CodePages& pages, std::span<char> entry, const char* language) {
  const EntryConverter converter{pages, entry, language};
  const Translation& source_table = converter.table_of(*language);
  const std::size_t star = converter.text().rfind('*');
  if (star == kNotFound) return converter.convert(0, entry.size(), source_table);

  converter.convert(0, star, source_table);
  const std::size_t body = converter.convert_head(star + 1);
  std::size_t sources = converter.text().find('\\', body);
  if (sources == kNotFound) sources = entry.size();
  converter.convert_body(body, sources);
  converter.convert(sources, entry.size(), source_table);
}

}  // namespace kz

namespace {

char* convert_text(const kz::CodePages& pages, const char* source, char* destination,
                   const char* language) {
  const std::string_view text(source);
  kz::convert_mixed(pages, text, language, destination);
  destination[text.size()] = '\0';
  return destination + text.size();
}

char* convert_entry(const kz::CodePages& pages, const char* source, char* destination,
                    const char* language) {
  if (language == nullptr) return convert_text(pages, source, destination, nullptr);
  const std::size_t size = std::strlen(source);
  std::memmove(destination, source, size + 1);
  kz::convert_entry(pages, {destination, size}, language);
  return destination;
}

}  // namespace

char* DicEntryAnsiToOem(const char* source, char* destination, const char* language) {
  return convert_entry(kz::kToOem, source, destination, language);
}

char* DicEntryOemToAnsi(const char* source, char* destination, const char* language) {
  return convert_entry(kz::kToAnsi, source, destination, language);
}

char* strdicansitooem(const char* source, char* destination, const char* language) {
  return convert_text(kz::kToOem, source, destination, language);
}

char* strdicoemtoansi(const char* source, char* destination, const char* language) {
  return convert_text(kz::kToAnsi, source, destination, language);
}
