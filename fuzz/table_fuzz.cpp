// Fuzz target: inflection tables in both forms, replacement buffers and list files of any bytes.
//
// The first byte chooses the kind of file; the rest is the file.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "fuzz/scratch.h"
#include "kz/inflection.h"
#include "kz/list_file.h"
#include "kz/replace_buffer.h"

namespace {

void require(bool condition) {
  if (!condition) std::abort();
}

void write(const char* name, const std::string& bytes) {
  std::ofstream(scratch_directory() + name, std::ios::binary) << bytes;
}

// What was read from a text is read from the compiled form that it left behind.
void check_inflection(const char* name, const std::string& bytes) {
  std::filesystem::remove(scratch_directory() + "table.Dat");
  std::filesystem::remove(scratch_directory() + "table.txt");
  write(name, bytes);
  CGrSrcWordFlex first;
  if (first.Load("table.Dat", scratch_directory().c_str(), 1) != 0) return;
  CGrSrcWordFlex second;
  require(second.Load("table.Dat", scratch_directory().c_str(), 1) == 0);
  for (CGrSrcWordObj* entry = first.GetFirstFlex(); entry != nullptr; entry = first.GetNextFlex()) {
    char text[GR_SRC_FLEX_STRING_SIZE];
    require(std::strlen(first.GetStrAttr(entry, text)) < sizeof text);
    const std::string word = std::string("p") + entry->ending;
    first.Find(word.c_str(), 0);
    if (std::strchr(entry->ending, ' ') != nullptr || entry->ending[0] == 0) continue;
    const CGrSrcWordObj* again = second.Find(entry->ending, 0);
    require(again != nullptr && std::strcmp(again->ending, entry->ending) == 0);
    require(std::memcmp(again->attributes, entry->attributes, sizeof entry->attributes) == 0);
  }
}

// Every byte of a text may become the longest replacement, which is shorter than the file.
void check_buffer(const std::string& bytes) {
  write("words.buf", bytes);
  CFindBuffer buffer(0);
  if (buffer.Load((scratch_directory() + "words.buf").c_str()) != 0) return;
  constexpr std::int16_t kNothingToSave = 196;
  const std::int16_t saved = buffer.Save((scratch_directory() + "saved.buf").c_str());
  require(saved == 0 || saved == kNothingToSave);
  if (saved != 0) return;
  CFindBuffer again(0);
  require(again.Load((scratch_directory() + "saved.buf").c_str()) == 0);
  const std::string text = bytes.substr(0, 200).c_str();
  const std::unique_ptr<char[]> output(new char[text.size() * (bytes.size() + 1) + 1]);
  ChangeWord(&buffer, text.c_str(), output.get());
}

void check_list(const std::string& bytes) {
  write("words.lst", bytes);
  CListFile list;
  if (list.Load("words.lst", scratch_directory().c_str()) != 0) return;
  for (std::int32_t i = 0; i < list.GetList()->GetSize(); ++i) {
    const auto* const item = static_cast<CListItem*>(list.GetList()->GetAt(i));
    require(list.FindObj(item->GetWordFor()) != nullptr);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  switch (data[0] % 4) {
    case 0: check_inflection("table.Dat", bytes); break;
    case 1: check_inflection("table.txt", bytes); break;
    case 2: check_buffer(bytes); break;
    default: check_list(bytes); break;
  }
  return 0;
}
