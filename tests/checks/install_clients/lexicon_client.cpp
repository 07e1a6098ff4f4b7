// A C++20 client of the installed libraries: of both, and of what crosses their boundary.
#include <kz/dictionary.h>
#include <kzlexicon/lexicon.h>

#include <cstdio>

int main() {
  namespace lexicon = kz::lexicon;
  lexicon::Builder builder({.language = "ENRU"});
  builder.add_line("cat*Nкот");
  lexicon::Dictionary dictionary = lexicon::Dictionary::from_memory(builder.to_memory());
  if (dictionary.find("Cat").entries.at(0).view().meanings.at(0).synonyms.at(0) != "кот") return 1;
  try {
    builder.to_memory();  // it has made its dictionary
    return 1;
  } catch (const lexicon::Error& error) {
    if (error.code() != lexicon::ErrorCode::kArgument) return 1;
  }
  try {
    lexicon::Dictionary missing("/no/such/dictionary");
    return 1;
  } catch (const lexicon::Error& error) {
    if (error.code() != lexicon::ErrorCode::kFile) return 1;
  }
  if (DicOpen("/no/such/dictionary", DIC_MODE_PLAIN) != nullptr) return 1;
  std::puts("the C++20 client works");
  return 0;
}
