// Makes a dictionary of a table, in memory, and looks inflected words up in it.
//
//   maker TABLE.txt WORD...      (an inflection table such as data/ruflex.txt; all text is UTF-8)
#include <array>
#include <cstddef>
#include <iostream>
#include <string>
#include <vector>

#include "kzlexicon/lexicon.h"

namespace {

using namespace kz::lexicon;

struct Row {
  std::string russian;
  std::string part_code;
  std::string tags;  // kzdic grammar encode N masculine animate
  std::vector<PlainMeaning> meanings;
};

const std::array<Row, 4> kTable = {{
    {"отец", "N", "M@", {{.synonyms = {"father"}}}},
    {"книга",
     "N",
     "F",
     {{.number = 1, .synonyms = {"book"}},
      {.number = 2, .definition = "учёта", .synonyms = {"ledger (account)", "journal"}}}},
    {"кафе", "N", "N", {{.synonyms = {"café"}}}},
    {"писать", "V", "", {{.synonyms = {"write"}}}},
}};

Dictionary make() {
  Builder builder({.language = "RUEN", .title = "Made by an example"});
  for (std::size_t i = 0; i < kTable.size(); ++i) {
    const Row& row = kTable[i];
    builder.add({.headword = row.russian,
                 .part_code = row.part_code,
                 .attribute = row.tags,
                 .meanings = row.meanings},
                {"table", i + 1});
  }
  BuildSummary summary;
  const std::string bytes = builder.to_memory(&summary);
  for (const Diagnostic& diagnostic : builder.diagnostics()) {
    std::cout << at_place(diagnostic.place, diagnostic.message) << '\n';
  }
  std::cout << summary.headwords << " headwords\n";
  return Dictionary::from_memory(bytes, "made.dic");
}

void print(const Answer& answer) {
  for (const Entry& entry : answer.entries) {
    const EntryView view = entry.view();
    std::cout << "  " << view.spelling << ", " << view.part_of_speech << ", "
              << describe_step(answer) << '\n';
    if (const std::vector<WordGrammar> words = entry_grammar(view); !words.empty()) {
      std::cout << "    " << describe(words, view.language) << '\n';
    }
    for (const MeaningView& meaning : view.meanings) {
      std::cout << "    " << meaning.number << (meaning.number.empty() ? "" : " ");
      if (!meaning.definition.empty()) std::cout << '{' << meaning.definition << "} ";
      for (std::size_t i = 0; i < meaning.synonyms.size(); ++i) {
        std::cout << (i == 0 ? "" : "; ") << meaning.synonyms[i];
      }
      std::cout << '\n';
    }
  }
}

// As it is written, or else as a form of other headwords.
void look_up(Dictionary& dictionary, const Inflector& inflector, const std::string& word) {
  std::cout << word << '\n';
  if (const Answer answer = dictionary.find(word)) return print(answer);
  const std::vector<Answer> answers = dictionary.find_inflected(word, inflector);
  for (const Answer& answer : answers) print(answer);
  if (answers.empty()) std::cout << "  is not there\n";
}

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string> words(arguments + 1, arguments + count);
  if (words.size() < 2) {
    std::cerr << "usage: maker TABLE.txt WORD...\n";
    return 2;
  }
  try {
    Dictionary dictionary = make();
    Inflector::compile_file(words[0], "maker.Dat");
    const Inflector inflector("maker.Dat");
    for (std::size_t i = 1; i < words.size(); ++i) look_up(dictionary, inflector, words[i]);
  } catch (const Error& error) {
    std::cerr << "maker: " << error.what() << '\n';
    return static_cast<int>(error.code());
  }
}
