// Import of dictd databases.
#include "tools/import_command.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>
#include <optional>
#include <utility>

#include "kz/charclass.h"
#include "lexicon/build/sort_order.h"
#include "lexicon/file/delivery.h"
#include "lexicon/file/outputs.h"
#include "lexicon/import/article.h"
#include "lexicon/import/dictd.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/source/index_headword.h"
#include "lexicon/text/code_page.h"
#include "lexicon/text/plain_letters.h"
#include "tools/status.h"

namespace kzdic {
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
  Import(const DictdDatabase& database, std::string language)
      : database_(database),
        language_(std::move(language)),
        order_(language_, kStrictDepth),
        writer_(language_) {}

  void write(std::ostream& out) {
    for (const DictdEntry& entry : database_.entries()) write_entry(entry, out);
  }

  bool empty() const { return lines_ == 0; }

  void report(const std::string& name) const {
    const Losses& losses = writer_.losses();
    std::cerr << name << ": " << database_.entries().size() << " articles, " << lines_
              << " entries in " << language_ << '\n';
    const auto count = [&](std::size_t number, const char* what) {
      if (number != 0) std::cerr << "  " << number << ' ' << what << '\n';
    };
    count(plain_, "headwords written in plain letters: a character is not in the code page");
    count(characters_, "headwords left out: a character is not in the code page");
    count(unindexed_, "headwords left out: without a letter, or too long");
    count(empty_, "articles left out: no translation is left");
    count(losses.characters, "characters of translations written otherwise or dropped");
    count(losses.definitions, "definitions dropped: too long");
    count(losses.meanings, "meanings dropped: without a translation");
  }

 private:
  std::u32string text_of(std::string_view bytes, std::size_t offset) const {
    try {
      return from_utf8(bytes);
    } catch (const BadUtf8& error) {
      throw Failure(Status::kDamaged,
                    at_offset(database_.text_path(), offset + error.offset, "not UTF-8"));
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
  bool take_headword(const std::u32string& word, PlainEntry& entry) {
    const CodePage page = source_page(language_);
    const auto plain = in_plain_letters(word, page);
    if (!plain) {
      ++characters_;
      return false;
    }
    entry.headword = *plain;
    const std::string bytes = lower_case(encode(*plain, page), language_);
    if (order_.refusal(bytes) && !index_headword(bytes, order_, ForeignLetters::kDropped)) {
      const auto other = index_headword(bytes, order_, ForeignLetters::kTransliterated);
      if (!other) {
        ++unindexed_;
        return false;
      }
      entry.spelling = std::exchange(entry.headword, decode(*other, page));
    }
    plain_ += *plain != word ? 1 : 0;
    return true;
  }

  void write_entry(const DictdEntry& entry, std::ostream& out) {
    const std::u32string key = text_of(entry.headword, entry.offset);
    bool any = false;
    std::vector<PlainEntry> parts = read_article(text_of(entry.text, entry.offset));
    for (PlainEntry& part : parts) {
      // Index keys lack capitals and marks; a key of another word than the article's is an alias.
      const bool alias = squeezed(part.headword) != squeezed(key);
      if (!take_headword(plain_headword(alias ? key : part.headword), part)) return;
      for (const std::string& line : writer_.lines(part)) {
        out << line << '\n';
        ++lines_;
        any = true;
      }
    }
    if (!any) ++empty_;
  }

  const DictdDatabase& database_;
  std::string language_;
  SortOrder order_;
  BodyWriter writer_;
  std::size_t lines_ = 0;
  std::size_t plain_ = 0;
  std::size_t characters_ = 0;
  std::size_t unindexed_ = 0;
  std::size_t empty_ = 0;
};

// English beside Russian is assumed where the name of the database does not tell.
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

std::string settle_language(const ImportOptions& options, const std::string& base,
                            const DictdDatabase& database) {
  std::string language = options.language;
  if (language.empty()) language = language_of_name(base);
  if (language.empty()) language = language_of_words(database);
  if (language.empty()) {
    throw Failure(Status::kUsage, base + ": the languages cannot be told: use --language");
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

// Reports, and throws when the database left nothing to write.
void check_entries(const Import& import, const ImportOptions& options, const std::string& name) {
  if (!options.quiet || import.empty()) import.report(name);
  if (import.empty()) throw Failure(Status::kDamaged, name + ": no entry is left");
}

void write_source(std::ostream& out, const std::string& name, Import& import,
                  const std::string& language) {
  out << "* Imported from the dictd database " << name << ".\n"
      << "*: language " << language << '\n'
      << "*: title " << name.substr(0, 40) << "\n*\n";
  import.write(out);
}

}  // namespace

void import_dictd(const ImportOptions& options) {
  const std::string base = base_of(options.base);
  refuse_inputs_as_output(options.output, {base + ".index", base + ".dict.dz", base + ".dict"});
  const DictdDatabase database(base);
  const std::string language = settle_language(options, base, database);
  const std::string name = std::filesystem::path(base).filename().string();
  Import import(database, language);
  if (options.output == "-") {
    write_source(std::cout, name, import, language);
    if (!std::cout.flush()) throw Failure(Status::kFile, "cannot write to standard output");
    check_entries(import, options, name);
  } else {
    Delivery output(options.output);
    write_source(output.stream(), name, import, language);
    check_entries(import, options, name);
    output.deliver();
  }
}

}  // namespace kzdic
