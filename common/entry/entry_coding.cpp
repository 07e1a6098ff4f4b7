// CDicEntry: a full entry brought into its normal form.
#include "kz/entry.h"

const char* CDicEntry::Code(const char* text, char* buffer) {
  Build(text, 0, nullptr, nullptr);
  CodeFullEntry();
  Merge();
  return GetFullEntry(buffer);
}

const char* CDicEntry::Decode(const char* text, char* buffer) {
  Decoding = 1;
  Build(text, 0, nullptr, nullptr);
  DecodeFullEntry();
  Merge();
  Decoding = 0;
  return GetFullEntry(buffer);
}

void CDicEntry::CodeFullEntry() {}
void CDicEntry::DecodeFullEntry() {}
