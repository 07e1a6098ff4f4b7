// CGenSteno: front coding of a sorted list of words.
//
// Each word is written as the number of leading characters that it shares with the word before it,
// then the rest of the word with the top bit of every byte inverted: the form in which packed
// dictionaries keep their records. One object encodes one list, word by word in order:
//
//   CGenSteno coder;
//   char code[64];
//   coder.CodeOrfo("house", code);                  // 0, "house" inverted, zero byte
//   int length = coder.CodeOrfo("houses", code);    // 5, "s" inverted, zero byte
//   printf("%d bytes, %d shared\n", length, code[0]);  // Output: 2 bytes, 5 shared
#ifndef KZ_FRONT_CODING_H
#define KZ_FRONT_CODING_H

#include <cstdint>

#include "kz/export.h"
#include "kz/object.h"

class KZ_API CGenSteno : public ZCObject {
 public:
  // A coder at the start of a list.
  CGenSteno();
  ~CGenSteno() override;

  // Begins a new list: the previous word becomes the capital letter Ya of Windows-1251, with which
  // hardly any word begins.
  void Start();

  // Writes the code of word to out: one byte with the number of shared leading characters (at most
  // 63, all that readers of packed records take), the inverted rest, a zero byte. out has room for
  // the word's length + 2 bytes and does not overlap the word. The number of bytes before the zero
  // byte; 0, with nothing written, for a null or empty word and for one of more than 32,766
  // characters.
  std::int16_t CodeOrfo(const char* word, char* out);

 private:
  std::int16_t length_ = 0;  // of the rest written last; kept for the layout alone
  char previous_[64] = {};   // no more than the first 63 characters are ever compared
};

#endif  // KZ_FRONT_CODING_H
