// Dictionaries against their sources, and what the format cannot hold.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include "tests/lexicon/source.h"
#include "tests/support/source_tree.h"

namespace kz::test {
namespace {

using namespace lexicon;
using ::testing::HasSubstr;
using Lines = std::vector<std::string>;

std::string dumped(const Dictionary& dictionary) {
  const SourceFormatter formatter(dictionary.header());
  std::string text = formatter.directives();
  for (const Entry& entry : dictionary.entries()) text += formatter.line(entry).text + '\n';
  return text;
}

// The lines of a source that are neither comments nor empty, sorted.
Lines sorted_lines(const std::string& source) {
  std::istringstream in(source);
  Lines lines;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && (line[0] != '*' || line.starts_with("*:"))) lines.push_back(line);
  }
  std::sort(lines.begin(), lines.end());
  return lines;
}

// Every headword of the dictionary finds all its entries, and builds give the same bytes again.
void expect_sound(const std::string& source, const BuildOptions& options) {
  const std::string bytes = built(source, options);
  Dictionary dictionary = Dictionary::from_memory(bytes);
  EXPECT_EQ(dictionary.header().packed, options.packed);
  std::map<std::string, Lines> held;
  for (const Entry& entry : dictionary.entries()) held[entry.headword()].push_back(entry.text());
  for (const auto& [word, entries] : held) EXPECT_EQ(found(dictionary, word), entries) << word;
  EXPECT_TRUE(built(source, options) == bytes);
  EXPECT_TRUE(built(dumped(dictionary), options) == bytes);
}

const std::pair<bool, bool> kForms[] = {{false, false}, {false, true}, {true, true}, {true, false}};

// Letters of headwords, and of bodies. Packed headwords do without the last one.
struct Letters {
  const char* language;
  std::u32string small, capital, body;
};

const Letters kLetters[] = {
    {"ENRU", U"abtz", U"ABTZ", U"абвгшъя"}, {"RUEN", U"абеяё", U"АБЕЯЁ", U"abcdefg"},
    {"DERU", U"aäsßü", U"AÄSßÜ", U"абвёя"}, {"FRRU", U"aeéçœ", U"AEÉÇŒ", U"абвя"},
    {"RUFR", U"абея", U"АБЕЯ", U"aeéœ"},    {"RUDE", U"абея", U"АБЕЯ", U"abc"},
    {"DE", U"aäoöz", U"AÄOÖZ", U"abäöü"}};

struct RandomSource {
  std::string text;
  std::map<std::string, Lines> entries;  // by headword, in source order
};

RandomSource random_source(const Letters& letters, bool packed, bool roomy) {
  static std::mt19937 random(20240601);
  const auto pick = [](std::size_t limit) { return random() % limit; };
  RandomSource source;
  std::set<std::string> seen;
  for (int line = 0; line < 250; ++line) {
    std::u32string head, written, rest = U"*N";
    for (std::size_t i = 0, length = 1 + pick(pick(20) == 0 ? 60 : 5); i < length; ++i) {
      const std::size_t kind = pick(12), letter = pick(letters.small.size() - packed);
      head += kind == 0            ? static_cast<char32_t>(U'0' + pick(10))
              : kind == 1 && i > 0 ? U"-'./"[pick(4)]
                                   : letters.small[letter];
      const bool capital = head.back() == letters.small[letter] && pick(8) == 0;
      written += capital ? letters.capital[letter] : head.back();
    }
    const std::size_t kind = pick(10);
    if (kind == 0 && letters.language != std::string("RUDE")) {
      constexpr const char32_t* kBodies[] = {U"dad", U"1", U"0", U"1.two/2.three", U""};
      rest += kBodies[pick(5)];
    } else {
      if (kind == 1) rest += U"[M]";
      for (std::size_t i = 0, length = 1 + pick(kind == 2 && roomy ? 1500 : 12); i < length; ++i) {
        rest += letters.body[pick(letters.body.size())];
      }
      if (kind == 3) rest += U"\\list";
    }
    source.text += to_utf8(written + rest) + '\n';
    if (head != written) rest += U"\\\\" + written;
    const std::string entry = to_utf8(head + rest);
    if (seen.insert(entry).second) source.entries[to_utf8(head)].push_back(entry);
  }
  return source;
}

TEST(Build, RandomSourcesBecomeTheirEntries) {
  for (const Letters& letters : kLetters) {
    for (const int depth : {2, 3, 5}) {
      for (const auto& [packed, shared] : kForms) {
        SCOPED_TRACE(letters.language + std::to_string(depth) + (packed ? " packed" : "") +
                     (shared ? " shared" : ""));
        BuildOptions options{.language = letters.language, .packed = packed, .shared = shared};
        options.depth = depth;
        // Without shared text, bodies with letters that packed records cannot hold have no place.
        options.skip_bad = packed && !shared;
        const RandomSource source = random_source(letters, packed, !options.skip_bad);
        expect_sound(source.text, options);
        if (options.skip_bad) continue;
        std::map<std::string, Lines> held;
        const Dictionary dictionary = Dictionary::from_memory(built(source.text, options));
        for (const Entry& e : dictionary.entries()) held[e.headword()].push_back(e.text());
        EXPECT_EQ(held, source.entries);
      }
    }
  }
}

TEST(Build, SampleDictionariesAreTheirSourcesAgain) {
  for (const char* name :
       {"enru", "ruen", "deru", "rude", "frru", "rufr", "ru", "en", "de", "fr"}) {
    const auto path = source_tree() / "data" / (std::string("base") + name + ".txt");
    std::ostringstream source;
    source << std::ifstream(path).rdbuf();
    for (const auto& [packed, shared] : kForms) {
      for (const int depth : {0, 2, 3, 5}) {
        SCOPED_TRACE(name + std::to_string(depth) + (packed ? " packed" : ""));
        BuildOptions options{.packed = packed, .shared = shared, .depth = depth};
        options.skip_bad = options.fold_yo = packed;
        if (depth != 5 || name[0] == 'r') expect_sound(source.str(), options);
        if (packed || depth == 5) continue;
        const Dictionary dictionary = Dictionary::from_memory(built(source.str(), options));
        EXPECT_EQ(sorted_lines(dumped(dictionary)), sorted_lines(source.str()));
      }
    }
  }
}

TEST(Build, HeadwordsWithoutALetterComeFirstAndYoIsBesideYe) {
  const struct {
    const char* language;
    int depth;
    Lines words;
  } orders[] = {{"ENRU", 2, {"1st", "24-hour", "a", "a-z", "aa-", "aaz", "ab", "b"}},
                {"ENRU", 3, {"a1-", "a-a", "a-z", "aa-b", "aab"}},
                {"RUEN", 2, {"едва", "ёж", "ёлка", "ель"}},
                {"DE", 2, {"as", "aß", "at", "az", "ä"}},
                {"RUEN", 5, {"1", "ёж", "аб в", "абв"}}};
  for (const auto& [language, depth, words] : orders) {
    Builder builder({.language = language, .depth = depth});
    for (auto word = words.rbegin(); word != words.rend(); ++word) builder.add_line(*word + "*N");
    const Dictionary dictionary = Dictionary::from_memory(builder.to_memory());
    Lines order;
    for (const Entry& entry : dictionary.entries()) order.push_back(entry.headword());
    EXPECT_EQ(order, words);
  }
}

TEST(Build, StoresEqualBodiesOnceAndAllBodiesThatReadAsNumbers) {
  const std::string body(100, 'x');
  Builder builder({.language = "RUEN", .shared = true});
  for (const std::string& rest :
       {"а*N" + body, "б*V" + body, std::string("в*Nface"), std::string("г*Nfaces"),
        std::string("д*N[M]bed\\r"), std::string("е*N0x1"), std::string("ж*N0123456789abcdef"),
        std::string("з*Nx]y[z]b"), std::string("и*N{d}[x]12AB")}) {
    builder.add_line(rest);
  }
  BuildSummary summary;
  Dictionary dictionary = Dictionary::from_memory(builder.to_memory(&summary));
  EXPECT_EQ(summary.shared_texts, 5u);
  EXPECT_EQ(summary.referring_records, 6u);
  EXPECT_EQ(summary.shared_bytes, (body + " face bed 0123456789abcdef 12AB ").size());
  EXPECT_EQ(found(dictionary, "д"), Lines{"д*N[M]bed\\r"});
}

// A dictionary holds these lines, or the last one is refused with a message.
TEST(Build, RefusesWhatTheFormatCannotHold) {
  const std::string a63(63, 'a'), x(256, 'x'), longest(77, 'a'), body(2044, '1');
  const BuildOptions plain{.language = "ENRU"}, packed{.language = "ENRU", .packed = true},
      unshared{.language = "ENRU", .packed = true, .shared = false},
      yo{.language = "RUEN", .packed = true}, two{.language = "EN", .depth = 2},
      three{.language = "EN", .depth = 3}, keys{.language = "RU", .depth = 5};
  const struct {
    BuildOptions options;
    Lines lines;
    std::string message = {};
    ErrorCode code = ErrorCode::kData;
  } cases[] = {{plain, {longest + "*Nа", "cat*N" + body}},
               {plain, {longest + "a*Nа"}, "78 characters"},
               {plain, {"cat*N1" + body}, "2050 characters"},
               {plain, {"no star"}, "no '*'"},
               {plain, {"a*N*б"}, "more than one"},
               {plain, {"!*Nб"}, "neither a letter"},
               {plain, {"!a*Nб\\\\A"}, "neither a letter"},
               {plain, {"дом*Nhouse"}, "neither a letter"},
               {plain, {"cat *Nкот"}, "blank"},
               {plain, {"cat*N\tкот"}, "control"},
               {plain, {"cat*N\xFFкот"}, "UTF-8"},
               {plain, {"cat*Nкот ≤ кошка"}, "U+2264", ErrorCode::kCodePage},
               {plain, {"café*Nкафе"}, "U+00E9", ErrorCode::kCodePage},
               {plain, {"a!b*"}, "character 2"},
               {two, {"ab!*Nb\\\\c"}},
               {three, {"ab!*Nb\\\\c"}, "character 3"},
               {three, {"abc!*Nb\\\\c"}},
               {keys, {"абвг!*Nb\\\\c"}, "character 5"},
               {keys, {"абвгд!*Nb\\\\c"}},
               {packed, {a63 + "b*Nа", a63 + "c*Nб", a63 + "c*Vв"}},
               {packed, {a63 + "ab*Nа", a63 + "ac*Nб"}, "shares more than 63"},
               {unshared, {"a*N" + x}},
               {unshared, {"a*Nx" + x}, "does not fit a packed record"},
               {packed, {"a*Nx" + x}},
               {yo, {"а*Nx\\" + x + "yyyy"}, "too long for a packed record"},
               {yo, {"ё*N"}, "ё"},
               {yo, {"а*Nx\\ё"}, "source sections"}};
  for (const auto& [options, lines, message, code] : cases) {
    SCOPED_TRACE(lines.back());
    Builder builder(options);
    for (std::size_t i = 0; i < lines.size(); ++i) builder.add_line(lines[i], {"s", i + 1});
    if (message.empty()) {
      Dictionary dictionary = Dictionary::from_memory(builder.to_memory());
      for (const std::string& line : lines) {
        EXPECT_THAT(found(dictionary, line.substr(0, line.find('*'))), testing::Contains(line));
      }
      continue;
    }
    EXPECT_THROW(builder.to_memory(), Error);
    ASSERT_EQ(builder.diagnostics().size(), 1u);
    const Diagnostic& diagnostic = builder.diagnostics()[0];
    EXPECT_THAT(diagnostic.message, HasSubstr(message));
    EXPECT_EQ(diagnostic.code, code);
    EXPECT_EQ(diagnostic.place.line, lines.size());
  }
}

TEST(Build, FoldsYoAndDropsMarksOnlyWhereTheyCannotStay) {
  const struct {
    BuildOptions options;
    const char *line, *word, *stored, *dumped;
  } cases[] = {{{.language = "RUEN", .packed = true, .fold_yo = true},
                "Ёлка*Nfir",
                "ЁЛКА",
                "елка*Nfir\\\\Елка",
                "Елка*Nfir"},
               {{.language = "RUEN", .fold_yo = true},
                "Ёлка*Nfir",
                "елка",
                "елка*Nfir\\\\Ёлка",
                "елка*Nfir\\\\Ёлка"},
               {{.language = "RUEN"},
                "Елка*Nfir\\list",
                "елка",
                "елка*Nfir\\list\\\\Елка",
                "Елка*Nfir\\list"},
               {{.language = "ENRU"}, "'Tis*Vа", "'tis", "tis*Vа\\\\'Tis", "'Tis*Vа"},
               {{.language = "ENRU"}, "av*Nг\\\\_ав", "av", "av*Nг\\\\_ав", "av*Nг\\\\_ав"},
               {{.language = "ENRU", .depth = 2}, "ab!*Nв", "ab!", "ab!*Nв", "ab!*Nв"},
               {{.language = "ENRU", .depth = 3}, "ab!*Nв", "ab!", "ab*Nв\\\\ab!", "ab!*Nв"},
               {{.language = "EN", .type = "S"}, "cat", "cat", "cat*", "cat"},
               {{.language = "EN", .type = "S", .packed = true}, "cat", "cat", "cat", "cat"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.line);
    const std::string directives = "*: language " + c.options.language + "\n*: type " +
                                   (c.options.type.empty() ? "C" : "S") + "\n*: title Пробы\n";
    Dictionary dictionary = Dictionary::from_memory(built(directives + c.line + "\n", c.options));
    EXPECT_EQ(found(dictionary, c.word), Lines{c.stored});
    EXPECT_EQ(dumped(dictionary), directives + c.dumped + "\n");
  }
}

}  // namespace
}  // namespace kz::test
