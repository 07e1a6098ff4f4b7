// CGrSrcWordFlex: an inflection table in memory and its look-ups.
#include "kz/inflection.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/map_core.h"
#include "kz/charclass.h"
#include "kz/dic_error.h"
#include "kz/file.h"
#include "morphology/inflection_file.h"
#include "morphology/inflection_index.h"
#include "morphology/inflection_text.h"
#include "platform/replace.h"
#include "text/literal.h"
#include "util/lexer.h"
#include "util/list_file.h"

using kz::operator""_1251;

namespace kz {
namespace {

constexpr unsigned kReadDenyingWrite = KZ_FILE_READ | KZ_FILE_SHARE_READ;
constexpr std::string_view kCompiledExtension = ".Dat";
constexpr std::string_view kTextExtension = ".txt";

constexpr int kNoPlace = -1;

// The place of a final letter in the table of longest endings, which knows the small Russian ones.
int place_of(char final_letter) {
  const auto c = static_cast<unsigned char>(final_letter);
  if (c == U'ё'_1251) return U'е'_1251 - U'а'_1251;
  return c >= U'а'_1251 ? c - U'а'_1251 : kNoPlace;
}

}  // namespace

// Fills a table and writes it.
struct InflectionCore {
  using Table = CGrSrcWordFlex;

  static void note_ending(Table& table, std::string_view ending) {
    table.last_length_ = static_cast<std::int32_t>(ending.size());
    if (ending.empty() || isruansilower(ending.front()) == 0) return;
    const int place = place_of(ending.back());
    if (place == kNoPlace) return;
    std::int16_t& longest = table.longest_[place];
    if (longest < table.last_length_) longest = static_cast<std::int16_t>(table.last_length_);
  }

  // An ending that is there already keeps its object, which takes what the new one holds.
  static void add(Table& table, std::unique_ptr<CGrSrcWordObj> entry) {
    CGrSrcWordObj*& known = table.index_->at(entry->ending);
    if (known != nullptr) {
      *known = *entry;
    } else {
      known = entry.release();
      add_new_key(table.entries_, known->ending, known);
    }
    table.last_ = known;
  }

  // NOLINTNEXTLINE(bugprone-exception-escape): without memory the process ends, as in the map.
  static bool add_line(Table& table, std::string_view line) noexcept {
    const std::string_view ending = next_token(line, kTableBlanks);
    if (ending.empty() || ending.size() > kLongestEnding) return false;
    note_ending(table, ending);
    auto entry = std::make_unique<CGrSrcWordObj>();
    if (!read_attributes(line, *entry)) return false;
    ending.copy(entry->ending, ending.size());
    add(table, std::move(entry));
    return true;
  }

  static bool read_compiled(Table& table, ZCFile& file) {
    std::vector<std::uint8_t> bytes(
        std::min<std::size_t>(file.GetLength(), kLargestInflectionFile));
    bytes.resize(file.Read(bytes.data(), static_cast<unsigned>(bytes.size())));
    auto entries = decode_inflection(bytes);
    if (!entries) return false;
    table.declared_count_ = static_cast<std::int32_t>(entries->size());
    for (auto& entry : *entries) {
      note_ending(table, entry->ending);
      add(table, std::move(entry));
    }
    return true;
  }

  // False when the file could not be read to its end.
  static bool read_text(Table& table, ZCFile& file) {
    ZCString line;
    table.line_count_ = 0;
    while (const char* const text = file.ReadString(line)) {
      if (is_table_line(text)) table.line_count_ += table.GetWord(text);
    }
    return file.GetPosition() == file.GetLength();
  }

  template <typename Visit>
  static void for_each_entry(const Table& table, Visit visit) {
    ZCString key;
    ZCObject* value = nullptr;
    for (POSITION at = table.entries_.GetStartPosition(); at != nullptr;) {
      table.entries_.GetNextAssoc(at, key, value);
      visit(static_cast<CGrSrcWordObj&>(*value));
    }
  }

  static void write_compiled(const Table& table, const char* path) {
    const auto count = static_cast<std::size_t>(table.entries_.GetCount());
    if (count > kMostEndings) return;
    std::string file;
    append_count(file, count);
    for_each_entry(table, [&file](const CGrSrcWordObj& entry) { append_entry(file, entry); });
    if (!platform::write_whole_file(path, file)) return;
    for_each_entry(table, [](CGrSrcWordObj& entry) {
      entry.length = static_cast<std::uint8_t>(std::strlen(entry.ending));
    });
  }

  static std::string text_path(std::string_view path) {
    std::string result(path);
    const std::size_t at = result.rfind(kCompiledExtension);
    if (at == std::string::npos) return {};
    return result.replace(at, kCompiledExtension.size(), kTextExtension);
  }

  // NOLINTNEXTLINE(bugprone-exception-escape): without memory the process ends, as in the map.
  static std::int16_t load(Table& table, const char* path) noexcept {
    ZCFile file;
    if (file.Open(path, kReadDenyingWrite)) {
      if (table.load_flag_ == 0 || read_compiled(table, file)) return DIC_OK;
      file.Close();
    }
    const std::string text = text_path(path);
    if (text.empty() || !file.Open(text.c_str(), kReadDenyingWrite)) return DIC_ERR_FILE;
    if (table.load_flag_ == 0) return DIC_OK;
    const bool complete = read_text(table, file);
    file.Close();
    if (complete) write_compiled(table, path);
    return DIC_OK;
  }

  // True when the table has been loaded in earnest, now or before.
  static bool is_loaded(Table& table) {
    if (!table.entries_.IsEmpty()) return true;
    if (table.load_flag_ == 0) return false;
    table.load_flag_ = table._LoadFlex(table.path_) == DIC_OK ? 1 : 0;
    return table.load_flag_ != 0;
  }

  static CGrSrcWordObj* find(const Table& table, std::string_view word) {
    if (word.empty() || word.find(' ') != std::string_view::npos) return nullptr;
    const int place = place_of(word.back());
    const std::size_t longest =
        place == kNoPlace ? word.size() : static_cast<std::size_t>(table.longest_[place]);
    return table.index_->find(word, longest);
  }
};

}  // namespace kz

using kz::InflectionCore;

CGrSrcWordObj::CGrSrcWordObj() : attributes{}, count(0), ending{}, length(0) {}

CGrSrcWordObj::~CGrSrcWordObj() = default;

CGrSrcWordFlex::CGrSrcWordFlex() noexcept
    : entries_(10), index_(std::make_unique<kz::EndingIndex>().release()) {}

CGrSrcWordFlex::~CGrSrcWordFlex() {
  ZCString key;
  ZCObject* value = nullptr;
  for (POSITION at = entries_.GetStartPosition(); at != nullptr;) {
    entries_.GetNextAssoc(at, key, value);
    delete value;
  }
  delete index_;
}

std::int16_t CGrSrcWordFlex::Load(const char* name, const char* directory, std::int16_t flag) {
  if (!entries_.IsEmpty()) return DIC_OK;
  path_ = directory;
  path_ += name;
  load_flag_ = flag;
  const std::int16_t result = _LoadFlex(path_);
  if (result == DIC_OK) load_flag_ = 1;
  return result;
}

std::int16_t CGrSrcWordFlex::_LoadFlex(const char* path) {
  return path != nullptr ? InflectionCore::load(*this, path) : std::int16_t{DIC_ERR_FILE};
}

std::int16_t CGrSrcWordFlex::GetWord(const char* line) {
  return line != nullptr && InflectionCore::add_line(*this, line) ? 1 : 0;
}

CGrSrcWordObj* CGrSrcWordFlex::Find(const char* word, std::int16_t /*mode*/) {
  if (!InflectionCore::is_loaded(*this) || word == nullptr) return nullptr;
  return InflectionCore::find(*this, word);
}

char* CGrSrcWordFlex::FindStrAttr(const char* word, char* output, std::int16_t mode) {
  return GetStrAttr(Find(word, mode), output);
}

char* CGrSrcWordFlex::GetStrAttr(const CGrSrcWordObj* entry, char* output) {
  if (output == nullptr) return nullptr;
  *output = '\0';
  if (entry == nullptr) return nullptr;
  kz::write_entry(*entry, output);
  return output;
}

CGrSrcWordObj* CGrSrcWordFlex::GetFirstFlex() {
  position_ = InflectionCore::is_loaded(*this) ? entries_.GetStartPosition() : nullptr;
  return GetNextFlex();
}

CGrSrcWordObj* CGrSrcWordFlex::GetNextFlex() {
  if (position_ == nullptr) return nullptr;
  ZCString key;
  ZCObject* value = nullptr;
  entries_.GetNextAssoc(position_, key, value);
  return static_cast<CGrSrcWordObj*>(value);
}

namespace {
CGrSrcWordFlex russian_table;
}  // namespace

CGrSrcWordFlex* GetRuSrcFlex() { return &russian_table; }
CGrSrcWordFlex* GetEnSrcFlex() { return nullptr; }
CGrSrcWordFlex* GetFrSrcFlex() { return nullptr; }
CGrSrcWordFlex* GetDeSrcFlex() { return nullptr; }
