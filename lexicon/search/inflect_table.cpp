// Inflection tables: written, loaded, and asked for all endings of a word.
#include "lexicon/search/inflect_table.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <map>
#include <sstream>

#include "kz/charclass.h"
#include "kz/file.h"
#include "kz/gram_codec.h"
#include "kzlexicon/error.h"
#include "kzlexicon/output.h"
#include "lexicon/search/inflector_table.h"
#include "lexicon/source/text.h"
#include "lexicon/text/code_page.h"

namespace kz::lexicon {
namespace {

constexpr unsigned kReadDenyingWrite = KZ_FILE_READ | KZ_FILE_SHARE_READ;
constexpr std::string_view kCompiledExtension = ".Dat";
constexpr std::size_t kLongestEnding = 79;
constexpr int kRecords = 4;
constexpr std::int16_t kKinds = 3;

// The text of a table, beside it.
std::string text_path(const std::string& path) {
  if (!path.ends_with(kCompiledExtension)) {
    throw Error(ErrorCode::kArgument, "the name of an inflection table ends in .Dat", {path});
  }
  return path.substr(0, path.size() - kCompiledExtension.size()) + ".txt";
}

bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool is_latin(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// A number of 16 bits, perhaps with one character after it.
bool is_paradigm(std::string_view word) {
  std::uint16_t number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  return error == std::errc() &&
         from_utf8(word.substr(static_cast<std::size_t>(end - word.data()))).size() <= 1;
}

// What is wrong with the attributes of a line, empty if nothing is.
std::string fault_of(const std::vector<std::string>& attributes) {
  if (attributes.empty()) return "an ending without attributes";
  if (attributes.back() == "|") return "a record without attributes";
  int records = 1;
  std::int16_t kind = 0;
  const std::string* before = nullptr;
  for (const std::string& word : attributes) {
    const bool bar = word == "|";
    if (bar && (before == nullptr || *before == "|")) return "a record without attributes";
    before = &word;
    if (bar) {
      if (++records > kRecords) return "more than four records";
      kind = 0;
    } else if (is_digit(word[0])) {
      if (!is_paradigm(word)) return "'" + word + "' is no paradigm";
      kind = kKinds - 1;
    } else if (!is_latin(word[0])) {
      return "'" + word + "' is no attribute";
    } else if (kind >= kKinds) {
      return "'" + word + "' is one name too many";
    } else if (GetAttrNameIndex(kind++, word.c_str()) < 0) {
      return "'" + word + "' is no name of kind " + std::to_string(kind - 1);
    }
  }
  return {};
}

// Windows-1251 lines of a text in UTF-8, all of which the library understands.
std::string encode_text(const SourceText& source) {
  std::map<std::string, std::size_t> seen;
  std::string bytes;
  for (const SourceLine& line : source.lines) {
    const auto fail = [&](ErrorCode code, const std::string& fault) {
      throw Error(code, fault, source.place(line));
    };
    try {
      const std::string encoded = encode(from_utf8(line.text), CodePage::kRussian);
      if (isansialpha(encoded[0]) == 0 && isruansialpha(encoded[0]) == 0) {
        fail(ErrorCode::kData, "an ending begins with a letter; comments begin with *");
      }
      bytes += encoded + '\n';
    } catch (const Unmappable& error) {
      fail(ErrorCode::kCodePage, error.what());
    } catch (const BadUtf8& error) {
      fail(ErrorCode::kData, error.what());
    }
    std::istringstream words(line.text);
    std::string ending;
    words >> ending;
    std::vector<std::string> attributes;
    for (std::string word; words >> word;) attributes.push_back(word);
    if (from_utf8(ending).size() > kLongestEnding) fail(ErrorCode::kData, "too long an ending");
    if (const std::string fault = fault_of(attributes); !fault.empty()) {
      fail(ErrorCode::kData, fault);
    }
    const auto [first, is_new] = seen.emplace(ending, line.line);
    if (!is_new) {
      fail(ErrorCode::kData, "the ending is in line " + std::to_string(first->second) + " too");
    }
  }
  return bytes;
}

class Table : public CGrSrcWordFlex {
 public:
  using CGrSrcWordFlex::GetWord;
};

void append_number(std::string& bytes, std::uint32_t value, int size) {
  for (; size > 0; --size, value >>= 8) bytes += static_cast<char>(value);
}

// The compiled form of the lines, as docs/tables.md describes it.
std::string compile(const std::string& lines, const std::string& source) {
  constexpr std::size_t kMostEndings = 0xFFFF;
  constexpr char kTextKey = '~';
  Table table;
  std::istringstream in(lines);
  for (std::string line; std::getline(in, line);) table.GetWord(line.c_str());
  std::string entries;
  std::size_t count = 0;
  for (const CGrSrcWordObj* at = table.GetFirstFlex(); at != nullptr; at = table.GetNextFlex()) {
    ++count;
    append_number(entries, at->count, 1);
    for (int i = 0; i < at->count; ++i) {
      for (const std::uint32_t word : at->attributes[i]) append_number(entries, word, 4);
    }
    const std::string_view ending = at->ending;
    append_number(entries, static_cast<std::uint32_t>(ending.size()), 1);
    for (const char c : ending) entries += static_cast<char>(c ^ kTextKey);
  }
  if (count == 0) throw Error(ErrorCode::kData, "holds no endings", {source});
  if (count > kMostEndings) {
    throw Error(ErrorCode::kData, "more than " + std::to_string(kMostEndings) + " endings",
                {source});
  }
  std::string bytes;
  append_number(bytes, static_cast<std::uint32_t>(count), 2);
  return bytes + entries;
}

SourceText lines_of(std::istream& text, const std::string& name) {
  SourceText source;
  read_source(text, name, Marked::kComment, source);
  return source;
}

SourceText lines_of_file(const std::string& path) {
  SourceText source;
  read_source_file(path, Marked::kComment, source);
  return source;
}

// Writes the table and its text beside it.
void write_table(const SourceText& source, const std::string& name, const std::string& path) {
  const std::string bytes = encode_text(source);
  const std::string compiled = compile(bytes, name);
  OutputFile text_file(text_path(path));
  OutputFile table_file(path);
  text_file.stream() << bytes;
  table_file.stream() << compiled;
  text_file.commit();
  table_file.commit();
}

}  // namespace

std::string Inflector::text_path(const std::string& path) { return kz::lexicon::text_path(path); }

void Inflector::compile(std::istream& text, const std::string& name, const std::string& path) {
  text_path(path);
  write_table(lines_of(text, name), name, path);
}

void Inflector::compile_file(const std::string& text_name, const std::string& path) {
  refuse_inputs_as_output(text_path(path), {text_name, path});
  refuse_inputs_as_output(path, {text_name});
  write_table(lines_of_file(text_name), text_name, path);
}

std::unique_ptr<CGrSrcWordFlex> load_table(const std::string& path) {
  text_path(path);
  ZCFile file;
  errno = 0;
  if (file.Open(path.c_str(), kReadDenyingWrite) == 0) {
    const std::string reason = std::strerror(errno);
    throw Error(ErrorCode::kFile, "cannot open: " + reason, {path});
  }
  // By a name without ".Dat" it reads this file or none, and writes none.
  const std::string name = "/proc/self/fd/" + std::to_string(static_cast<int>(file));
  auto table = std::make_unique<CGrSrcWordFlex>();
  // An empty one would be looked for again.
  if (table->Load(name.c_str(), "", 1) != 0 || table->GetFirstFlex() == nullptr) {
    throw Error(ErrorCode::kData, "not an inflection table, or a damaged one", {path});
  }
  return table;
}

std::string fold_yo(std::string word) {
  const std::string letters = encode(U"ёе", CodePage::kRussian);
  std::replace(word.begin(), word.end(), letters[0], letters[1]);
  return word;
}

std::vector<const CGrSrcWordObj*> known_endings(CGrSrcWordFlex& table, const std::string& word) {
  const std::array<std::string, 2> spellings = {word, fold_yo(word)};
  std::vector<const CGrSrcWordObj*> entries;
  for (std::size_t from = 0; from < word.size();) {
    const CGrSrcWordObj* longest = nullptr;
    std::size_t length = 0;
    for (const std::string& spelling : spellings) {
      const CGrSrcWordObj* entry = table.Find(spelling.c_str() + from, 0);
      if (entry == nullptr || std::strlen(entry->ending) <= length) continue;
      longest = entry;
      length = std::strlen(entry->ending);
    }
    if (longest == nullptr) break;
    entries.push_back(longest);
    from = word.size() - length + 1;
  }
  return entries;
}

}  // namespace kz::lexicon
