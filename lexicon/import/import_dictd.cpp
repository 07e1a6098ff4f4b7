// Entries of dictd databases as source text.
#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <ostream>
#include <utility>

#include "kz/charclass.h"
#include "kzlexicon/importers.h"
#include "lexicon/build/sort_order.h"
#include "lexicon/import/article.h"
#include "lexicon/import/dictd.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/source/index_headword.h"
#include "lexicon/text/code_page.h"
#include "lexicon/text/plain_letters.h"

namespace kz::lexicon {
namespace {

// The strictest index that a build chooses by itself.
constexpr int kStrictDepth = 3;

bool is_cyrillic(char32_t c) { return c >= 0x400 && c < 0x500; }

std::size_t count_cyrillic(std::u32string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), is_cyrillic));
}

// Names such as "freedict-deu-rus" state the languages.
std::string language_of_name(const std::string& base) {
  constexpr std::array<std::pair<std::string_view, const char*>, 6> kNames = {
      {{"eng-rus", "ENRU"},
       {"rus-eng", "RUEN"},
       {"deu-rus", "DERU"},
       {"rus-deu", "RUDE"},
       {"fra-rus", "FRRU"},
       {"rus-fra", "RUFR"}}};
  const std::string name = std::filesystem::path(base).filename().string();
  for (const auto& [part, language] : kNames) {
    if (name.find(part) != std::string::npos) return language;
  }
  return {};
}

// Writes the entries of a database as source lines, and counts what does not fit.
class Import {
 public:
  Import(const DictdDatabase& database, std::string language, ImportSummary& summary)
      : database_(database),
        language_(std::move(language)),
        order_(language_, kStrictDepth),
        writer_(language_),
        summary_(summary) {}

  void write(std::ostream& out) {
    for (const DictdEntry& entry : database_.entries()) write_entry(entry, out);
  }

  const Losses& losses() const { return writer_.losses(); }

 private:
  std::u32string text_of(std::string_view bytes, std::size_t offset) const {
    try {
      return from_utf8(bytes);
    } catch (const BadUtf8& error) {
      throw Error(ErrorCode::kData, "not UTF-8",
                  {database_.text_path(), 0, 0, static_cast<long long>(offset + error.offset)});
    }
  }

  // The headword in the characters that headwords have.
  static std::u32string plain_headword(std::u32string_view text) {
    std::u32string word;
    for (const char32_t c : plain_punctuation(text)) {
      if (c == U'\\') {
        word += U'/';
      } else if (c != U'\u0301' && c != U'\u00AD' && c != U'*') {
        word += c;
      }
    }
    return trimmed(word);
  }

  // The word in lower case, without what indexes leave out.
  std::optional<std::string> squeezed(std::u32string_view word) const {
    const CodePage page = source_page(language_);
    const auto plain = in_plain_letters(plain_headword(word), page);
    if (!plain) return std::nullopt;
    std::string bytes = lower_case(encode(*plain, page), language_);
    std::erase_if(bytes, [](char c) { return c > 0 && _isalpha(c) == 0 && _isdigit(c) == 0; });
    return bytes;
  }

  // Gives the entry a headword of this dictionary, with its spelling where a build would not find
  // it. False, and counted, when there is none.
  bool take_headword(const std::u32string& word, EntryDraft& entry) {
    const CodePage page = source_page(language_);
    const auto plain = in_plain_letters(word, page);
    if (!plain) {
      ++summary_.bad_characters;
      return false;
    }
    entry.headword = *plain;
    const std::string bytes = lower_case(encode(*plain, page), language_);
    if (order_.refusal(bytes) && !index_headword(bytes, order_, ForeignLetters::kDropped)) {
      const auto other = index_headword(bytes, order_, ForeignLetters::kTransliterated);
      if (!other) {
        ++summary_.unindexed;
        return false;
      }
      entry.spelling = std::exchange(entry.headword, decode(*other, page));
    }
    summary_.plain_headwords += *plain != word ? 1 : 0;
    return true;
  }

  void write_entry(const DictdEntry& entry, std::ostream& out) {
    const std::u32string key = text_of(entry.headword, entry.offset);
    bool any = false;
    std::vector<EntryDraft> parts = read_article(text_of(entry.text, entry.offset));
    for (EntryDraft& part : parts) {
      // Index keys lack capitals and marks; a key of another word than the article's is an alias.
      const bool alias = squeezed(part.headword) != squeezed(key);
      if (!take_headword(plain_headword(alias ? key : part.headword), part)) return;
      for (const std::string& line : writer_.lines(part)) {
        out << line << '\n';
        ++summary_.entries;
        any = true;
      }
    }
    if (!any) ++summary_.empty;
  }

  const DictdDatabase& database_;
  std::string language_;
  SortOrder order_;
  BodyWriter writer_;
  ImportSummary& summary_;
};

// English beside Russian is assumed where the name of the database does not show them.
std::string language_of_words(const DictdDatabase& database) {
  std::size_t russian_words = 0;
  std::size_t russian_texts = 0;
  for (const DictdEntry& entry : database.entries()) {
    try {
      russian_words += count_cyrillic(from_utf8(entry.headword)) > 0 ? 1 : 0;
      russian_texts += count_cyrillic(from_utf8(entry.text)) > 0 ? 1 : 0;
    } catch (const BadUtf8&) {
      continue;
    }
  }
  const std::size_t half = database.entries().size() / 2;
  if (russian_words > half) return "RUEN";
  return russian_texts > half ? "ENRU" : "";
}

std::string settle_language(std::string language, const std::string& base,
                            const DictdDatabase& database) {
  if (language.empty()) language = language_of_name(base);
  if (language.empty()) language = language_of_words(database);
  if (language.empty()) {
    throw Error(ErrorCode::kArgument, "the languages are not clear from the data", {base});
  }
  return language;
}

// The files of a database stand for it.
std::string base_of(const std::string& path) {
  for (const std::string_view extension : {".index", ".dict.dz", ".dict"}) {
    if (path.ends_with(extension)) return path.substr(0, path.size() - extension.size());
  }
  return path;
}

}  // namespace

std::vector<std::string> dictd_files(const std::string& base) {
  const std::string name = base_of(base);
  return {name + ".index", name + ".dict.dz", name + ".dict"};
}

ImportSummary import_dictd(const std::string& path, const std::string& language,
                           std::ostream& out) {
  const std::string base = base_of(path);
  const DictdDatabase database(base);
  const std::string name = std::filesystem::path(base).filename().string();
  ImportSummary summary;
  summary.name = name;
  summary.language = settle_language(language, base, database);
  summary.articles = database.entries().size();
  out << "* Imported from the dictd database " << name << ".\n"
      << "*: language " << summary.language << '\n'
      << "*: title " << name.substr(0, 40) << "\n*\n";
  Import import(database, summary.language, summary);
  import.write(out);
  summary.losses = import.losses();
  return summary;
}

}  // namespace kz::lexicon
