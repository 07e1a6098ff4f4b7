// Lexers: split a text into tokens, or into lines.
//
// CStrLex takes the tokens between any characters of a delimiter set, its picture: in a text of the
// caller, one after the other (First, Next), or by number in a copy of the text (FirstStr, NextStr,
// GetAtStr). CStrLine takes the lines between carriage return and line feed. A lexer serves one
// thread at a time.
//
//   CStrLex lex(";,");
//   char token[80];
//   for (const char* at = lex.First("a;b,,c", token); at; at = lex.Next(token))
//     puts(token);
//     // Output: a
//     // Output: b
//     // Output: c
#ifndef KZ_LEXER_H
#define KZ_LEXER_H

#include <cstdint>

#include "kz/export.h"
#include "kz/string.h"

class KZ_API CStrLex {
 public:
  // With a delimiter set; null means blank, carriage return, line feed, tab, form feed and vertical
  // tab.
  explicit CStrLex(const char* picture = nullptr);
  CStrLex(const CStrLex&) = default;
  CStrLex& operator=(const CStrLex&) = default;
  virtual ~CStrLex();

  // Changes the delimiter set (a copy is kept); null means the one above.
  void SetPic(const char* picture);

  // The next token of the text, or, with a null text, the next one after the latest token. Returns
  // its start in the text, which must live on while it is being split; null when there are no more
  // tokens. The token is copied to the output, zero-terminated, unless that is null: room for the
  // longest token and the zero; an empty text when there is no token.
  const char* Get(const char* text, char* output);
  // Get of the text; Get of a null text.
  const char* First(const char* text, char* output);
  const char* Next(char* output);

  // The start of the latest token, null when there was none.
  const char* LastBegin() const;
  // The delimiter after it, where Next goes on; null when the text ended there.
  const char* LastEnd() const;
  // The length of the latest token that there was, cut to 16 bits.
  std::int16_t LastLen() const;

  // Keeps a copy of the text (null counts as empty), and returns its token number 0, as GetStr.
  const char* FirstStr(const char* text);
  // Counts the number up by one and returns that token, as GetStr.
  const char* NextStr();
  // The token of that number, an empty text for a negative one; the number counted so far stays.
  // Valid as in GetStr.
  const char* GetAtStr(int index);
  // The token of the number counted so far, valid until the next call. A number beyond the last
  // token gives the last token; an empty text when the text ends with a delimiter. Each call scans
  // from the start of the text.
  const char* GetStr();

 private:
  const char* last_begin_ = nullptr;
  const char* position_ = nullptr;
  std::int16_t last_length_ = 0;
  ZCString picture_;
  std::uint32_t number_ = 0;
  ZCString text_;
  ZCString token_;
};

class KZ_API CStrLine {
 public:
  // No text.
  CStrLine();
  CStrLine(const CStrLine&) = default;
  CStrLine& operator=(const CStrLine&) = default;
  virtual ~CStrLine();

  // The first line of a text.
  ZCString GetFirst(const ZCString& text);
  // The next line, without the carriage return and line feed that end it; after the last one an
  // empty line, and EndOfBuffer is 1 from then on. A text that ends with a line end has no further
  // line after it.
  ZCString GetNext();
  // True when GetNext has found nothing left.
  int EndOfBuffer() const;

 private:
  ZCString text_;
  int end_ = 0;
  int position_ = 0;  // of the remaining text in text_
};

#endif  // KZ_LEXER_H
