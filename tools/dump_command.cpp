// Walk over a dictionary that prints its records as source text.
#include "tools/dump_command.h"

#include <iostream>
#include <memory>

#include "kz/dic_error.h"
#include "kz/dic_index.h"
#include "kz/dic_iterator.h"
#include "kz/special.h"
#include "lexicon/file/outputs.h"
#include "lexicon/search/file_header.h"
#include "lexicon/search/open_dictionary.h"
#include "lexicon/source/entry_layout.h"
#include "lexicon/source/source_writer.h"
#include "lexicon/text/code_page.h"
#include "tools/status.h"

namespace kzdic {
namespace {

constexpr std::size_t kShown = 20;

struct CloseIterator {
  void operator()(CDicEntryIterator* iterator) const { DicIteratorClose(iterator); }
};
using Iterator = std::unique_ptr<CDicEntryIterator, CloseIterator>;

std::string argument(const char* option, const std::string& utf8, CodePage page) {
  try {
    return encode(from_utf8(utf8), page);
  } catch (const Unmappable& error) {
    throw Failure(Status::kCodePage, std::string(option) + ": " + error.what());
  } catch (const BadUtf8&) {
    throw Failure(Status::kDamaged, std::string(option) + " is not UTF-8");
  }
}

// The range of first letters, in the order of the dictionary. Letters that differ in their accent
// only have one place.
class LetterRange {
 public:
  LetterRange(const FileHeader& header, const std::string& from, const std::string& to)
      : header_(header),
        first_(from.empty() ? kNoLetter : place_of_word("--from", from)),
        last_(to.empty() ? header.alphabet : place_of_word("--to", to)) {}

  bool is_before(char letter) const { return place(letter) < first_; }
  bool is_behind(char letter) const { return place(letter) > last_; }

 private:
  // The place of what is no letter: those words stand before all others.
  static constexpr int kNoLetter = -1;

  int place(char letter) const {
    const char* const language = header_.language.c_str();
    const int slot = Index1(kz_codr_base_member(letter, language), language, header_.alphabet);
    return slot < 0 || slot >= header_.alphabet ? kNoLetter : slot;
  }

  int place_of_word(const char* option, const std::string& utf8) const {
    const std::string& language = header_.language;
    const int found = place(lower_case(argument(option, utf8, source_page(language)), language)[0]);
    if (found != kNoLetter) return found;
    throw Failure(Status::kUsage,
                  std::string(option) + " " + utf8 + ": begins with no letter of the dictionary");
  }

  const FileHeader& header_;
  int first_;
  int last_;
};

Iterator open_walk(const DumpOptions& options) {
  const std::string codes = argument("part codes", options.codes, CodePage::kRussian);
  Dictionary dictionary = open_dictionary(options.dictionary, 0);
  Iterator walk(DicIteratorOpen(dictionary.get(), nullptr, nullptr, "", 0, codes.c_str(),
                                options.not_codes ? 0 : 1));
  if (!walk) throw Failure(Status::kFile, options.dictionary + ": not enough memory");
  static_cast<void>(dictionary.release());  // the walk closes it
  return walk;
}

}  // namespace

void dump(const DumpOptions& options) {
  refuse_inputs_as_output("-", {options.dictionary});
  open_dictionary(options.dictionary, 0);  // tells a header that is not sound
  const FileHeader header = read_file_header(options.dictionary);
  const LetterRange range(header, options.from, options.to);
  const Iterator walk = open_walk(options);
  const SourceWriter writer(header);
  std::cout << writer.directives();
  std::size_t bad = 0;
  const char* record = DicIteratorGetFirstEntry(walk.get(), nullptr, nullptr, nullptr, nullptr, 0);
  for (; record != nullptr;
       record = DicIteratorGetNextEntry(walk.get(), nullptr, nullptr, nullptr, nullptr)) {
    if (range.is_before(record[0])) continue;
    if (range.is_behind(record[0])) break;
    const SourceWriter::Line line = writer.line(record);
    std::cout << line.text << '\n';
    if (!line.exact && ++bad <= kShown) {
      std::cerr << "kzdic: " << options.dictionary
                << ": not the source text of its entry: " << line.text << '\n';
    }
  }
  std::cout.flush();
  if (!std::cout) throw Failure(Status::kFile, "cannot write to standard output");
  if (kz_dict_dic_errno() == DIC_ERR_FILE) {
    throw Failure(Status::kFile, options.dictionary + ": cannot read");
  }
  if (bad != 0) {
    throw Failure(Status::kDamaged, std::to_string(bad) + (bad == 1 ? " entry" : " entries") +
                                        " cannot be written as source text");
  }
}

}  // namespace kzdic
