// Opens arbitrary bytes as a dictionary and searches it in every mode.
#include <cstdint>
#include <fstream>
#include <string>

#include "fuzz/scratch.h"
#include "kz/dictionary.h"
#include "text/literal.h"

using kz::operator""_1251;
using kz::operator""_1252;

namespace {

std::string path() { return scratch_directory() + "input.dic"; }

void search(CDic* dictionary) {
  constexpr int kSteps = 50;
  const char* const words[] = {nullptr, "a", "table", U"дом"_1251.data(), "7", U"über"_1252.data(),
                               "a-b"};
  for (const std::int16_t mode :
       {std::int16_t{0}, std::int16_t{0}, std::int16_t{2}, std::int16_t{-1}}) {
    for (const char* word : words) {
      if (DicFind(dictionary, word, mode, DIC_LEVEL_FULL) == nullptr) continue;
      for (int i = 0; i < kSteps && DicFindNext(dictionary, DIC_LEVEL_FULL) != nullptr; ++i) {
      }
      DicGetFound(dictionary, nullptr, DIC_LEVEL_ANEW);
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::ofstream(path(), std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  for (const std::int16_t mode : {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}}) {
    CDic* const dictionary = DicOpen(path().c_str(), mode);
    if (dictionary == nullptr) continue;
    LoadAllOffsets(dictionary);
    search(dictionary);
    DicClose(dictionary);
  }
  return 0;
}
