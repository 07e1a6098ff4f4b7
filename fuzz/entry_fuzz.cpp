// Fuzz target: entries and the plain functions over entry text, on arbitrary bytes.
//
// The first byte chooses direction, kind and part code; the rest is the text.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "kz/entry.h"
#include "kz/entry_text.h"
#include "kz/strutil.h"

namespace {

void require(bool condition) {
  if (!condition) std::abort();
}

// Nothing follows the zero, so that the sanitizer sees every overrun.
std::unique_ptr<char[]> exact(const std::string& text) {
  std::unique_ptr<char[]> copy(new char[text.size() + 1]);
  *std::copy(text.begin(), text.end(), copy.get()) = 0;
  return copy;
}

void read_everything(CDicEntry& entry) {
  for (std::int16_t i = 0; i < entry.GetMeaningsSize(); ++i) {
    entry.GetMeaningTag(i, nullptr);
    entry.GetMeaningDefinition(i, nullptr);
    for (std::int16_t j = 0; j < entry.GetSynonymsSize(i); ++j) {
      ZCString synonym = entry.GetSynonym(i, j, nullptr);
      ZCString labels;
      ZCString references;
      entry.GetSynonymValues(synonym, labels, references);
    }
  }
}

void check_entry(const std::string& text, const char* language, char kind) {
  CDicEntry entry(language, kind);
  entry.Build(text.c_str(), 0, nullptr, nullptr);
  read_everything(entry);
  entry.Merge();
  const std::string joined = entry.GetFullEntry(nullptr);
  require(joined.size() <= text.size() + 1);
  entry.Build(joined.c_str(), 0, nullptr, nullptr);
  entry.Merge();
  require(joined == entry.GetFullEntry(nullptr));
  entry.Build("word", 'N', text.c_str(), "1");
  read_everything(entry);
}

void check_text(const std::string& text, const char* language, char part) {
  const auto source = exact(text);
  const auto destination = exact(text);
  const char* const end = source.get() + text.size();
  for (const char* p = source.get(); p < end; ++p) {
    p = GetNextPart(p, language, part);
    require(p <= end);
    require(IsDicEntryNewPart(p, language, part) >= 0);
  }
  PackEntry(source.get(), destination.get(), language, part);
  KzWordRecord word = {};
  GetExtSyn(source.get(), &word);
  GetInf(source.get(), &word);
  kz_misc_free(word.inflection);
  GetAttrBegin(source.get());
  require(SkipLabels(source.get()) <= end);
  require(SkipCLabels(source.get()) <= end);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static constexpr const char* kLanguages[] = {"ENRU", "RUEN", "FRRU", "RUFR",
                                               "DERU", "RUDE", "RU",   nullptr};
  if (size == 0) return 0;
  const unsigned choice = data[0];
  const std::string text(reinterpret_cast<const char*>(data) + 1, size - 1);
  const char* const language = kLanguages[choice % 8];
  check_entry(text.c_str(), language, "CcS="[choice / 8 % 4]);
  check_text(text.c_str(), language, "NVWw$=EA"[choice / 32]);
  return 0;
}
