/* Replacement buffers: a short list of words, some with a replacement, edited by the user.
 *
 * CFindBuffer holds the list as one text, loads and saves it, tells whether a word is listed and
 * what replaces it; ChangeWord replaces every listed word in a text. Text is Windows-1251, words
 * are compared exactly. docs/tables.md describes the file. In C++:
 *
 *   CFindBuffer list(0);
 *   char output[64];
 *   if (list.Load("replace.txt") == 0)
 *     puts(ChangeWord(&list, "the cat", output));  // Output: the dog
 *
 * The text begins with "\r\n", lines end with "\r\n". A line is a word, or a word, "=" and its
 * replacement, which may be empty. The text holds fewer than 16,000 characters after its leading
 * white space. Positions point into the block of the buffer and are valid until the buffer changes.
 * A buffer serves one thread at a time. */
#ifndef KZ_REPLACE_BUFFER_H
#define KZ_REPLACE_BUFFER_H

#include <stdint.h>

#include "kz/export.h"

/* The file holds fewer bytes than this. */
enum { REPLACE_BUFFER_LIMIT = 16000 };

#ifdef __cplusplus
#include <cstdint>

#include "kz/object.h"

namespace kz {
class WordReplacer;     // replaces the words of a buffer in one pass over a text
struct FindBufferCore;  // works on the block of a buffer
}  // namespace kz

// A list of words and their replacements.
class KZ_API CFindBuffer : public ZCObject {
 public:
  // A buffer without a block. The mode is kept for the caller.
  explicit CFindBuffer(std::int16_t mode);
  CFindBuffer(const CFindBuffer&) = delete;
  CFindBuffer& operator=(const CFindBuffer&) = delete;
  ~CFindBuffer() override;

  // Allocates a block of `size` bytes, 0 for 16,100, with the text "\r\n"; a block that there is
  // stays with its text. Blocks grow as the text needs it, whatever their size. 1 on success, 0
  // when memory runs out. The operations below allocate the default block when there is none.
  std::int16_t Allocate(std::uint16_t size);
  // Releases the block; modified, corrected and size become 0. Returns 0.
  std::int16_t Free();
  // Makes the text "\r\n", and the line after it the current one. Returns the text; null when no
  // block can be allocated.
  char* Clear();
  // The block, which holds the text; null when none can be allocated.
  char* GetBuffer();
  // Copies a text into the buffer, after the leading "\r\n" if it does not begin with one, and
  // sets modified. 1 on success; 0 for null, for 16,000 characters or more and without a block.
  std::int16_t SetBuffer(const char* text);

  // Clear, then LoadBuffer. White space at the end becomes one "\r\n", which is left out where the
  // file would become too long with it. Modified becomes 0. The result of LoadBuffer, with an empty
  // buffer and modified untouched when it is not 0; 196 without a block.
  std::int16_t Load(const char* path);
  // SaveBuffer of the text from its first character that is no white space; modified becomes 0 if
  // that succeeds. 196 when there is only white space, 1 without a block.
  std::int16_t Save(const char* path);

  // FindWordInBuffer in this buffer.
  const char* Find(const char* word, std::int16_t mode);
  // 1 when the word is listed as a line without replacement, else 0.
  std::int16_t Find(const char* word);

  // Appends a line with the word. 1 on success, and when such a line is there already; 0 for null,
  // an empty word, one of 255 characters or more or of white space alone, and when the text and the
  // word together reach 16,000 characters; -1 without a block.
  std::int16_t Add(const char* word);
  // Appends a line with the word, "=" and the replacement (null counts as empty). 1 on success, and
  // when the word is listed without replacement; 0 for a null word, and when the text and all that
  // is added but the line end together reach 16,000 characters; -1 without a block.
  std::int16_t Add(const char* word, const char* replacement);
  // Appends a text as it is. 1 on success; 0 for null, an empty text, one of 512 characters or
  // more, and when both texts together reach 16,000 characters; -1 without a block.
  std::int16_t Concat(const char* text);

  // Copies the replacement of a word to the output (room for the text of the buffer) and counts
  // corrected up. Returns the position after the "="; null, with an empty output, when the word
  // has no line with a replacement.
  const char* Replace(const char* word, char* output);

  // Copies the word of the line at a position, and returns the output; null at the end of the text,
  // with the output untouched, and the output, untouched, for a null position. A line feed at the
  // position is passed over.
  char* GetWordFor(const char* line, char* output);
  // Copies what follows the first "=" at or after a position, up to the end of its line, and
  // returns its position; null, with an empty output, for a null position and when there is no "=".
  // A null output is left out.
  const char* GetWordTo(const char* line, char* output);

  // Iteration: the word of the first line; of the line after the current one, which without a
  // First is the first. Returns the output; null, with an empty output, when there is no line.
  char* First(char* output);
  char* Next(char* output);

  // True when the text was changed by SetBuffer since it was loaded or saved, for the caller to set
  // after other changes; the number of successful calls of Replace.
  std::int16_t GetModified() const;
  void SetModified(std::int16_t modified);
  std::int16_t GetCorrected() const;
  void SetCorrected(std::int16_t corrected);

 private:
  friend struct kz::FindBufferCore;

  std::int16_t mode_;
  std::int16_t modified_ = 0;
  std::int16_t corrected_ = 0;
  std::uint16_t size_ = 0;
  char* cursor_ = nullptr;
  char* text_ = nullptr;
  char* block_ = nullptr;
  kz::WordReplacer* replacer_ = nullptr;  // what ChangeWord compiled last
};

extern "C" {
#else
typedef struct CFindBuffer CFindBuffer;
#endif

/* Reads a file to the destination and puts two zero bytes after it: room for 16,001 bytes. 0 on
 * success; 196 for a null argument, 195 when the file cannot be opened, 202 when it has 16,000
 * bytes or more, has a zero byte or cannot be read in full. */
KZ_API int16_t LoadBuffer(const char* path, char* destination);

/* Makes the text the contents of a file, in one step, or in place where the directory takes no new
 * file. 0 on success; 196 for a null argument, 195 when the file cannot be written: a file that
 * there was is then untouched, unless its device failed while it was written in place. */
KZ_API int16_t SaveBuffer(const char* path, const char* text);

/* The first line after a line feed that is the word (mode 0), the word with a replacement (mode
 * 1), or begins with the word (other modes). Returns the start of the line; null when there is
 * none, for a null or empty word, one of 251 characters or more, and a null buffer. */
KZ_API const char* FindWordInBuffer(const char* buffer, const char* word, int16_t mode);

/* Copies the source to the destination and replaces the words of the buffer. At every position the
 * lines are tried in their order; a word matches when the source goes on with it, also inside of a
 * longer word. A word with a replacement is replaced, and the lines are tried anew after it; a
 * word without one is dropped, and the lines that remain are tried after it; when none of them has
 * matched and been replaced, one character is copied. Lines with an empty word are passed over.
 *
 * Returns the destination, null for a null destination. The texts do not overlap, and a destination
 * of the source's length times that of the longest replacement (at least 1), plus 1, is never too
 * short. A null buffer replaces nothing, a null source counts as empty. The iteration of the buffer
 * is not disturbed. */
KZ_API char* ChangeWord(CFindBuffer* buffer, const char* source, char* destination);

#ifdef __cplusplus
}
#endif

#endif /* KZ_REPLACE_BUFFER_H */
