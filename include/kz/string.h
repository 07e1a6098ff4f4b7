// ZCString: the 8-bit string in which the library passes words, entries, paths and messages.
//
// A value type with a shared buffer: copies cost one atomic increment, and the first change gives
// the changed string a buffer of its own. A language tag in the buffer selects the character tables
// of case change, caseless comparison, character classes and ANSI/OEM conversion. The text is
// Windows-1251 or Windows-1252 (ANSI), or CP866 or CP850 (OEM); nothing depends on the locale.
//
//   ZCString word("Tables");
//   word.SetLanguage(1033);  // English
//   word.MakeLower();
//   if (word.IsFlex("s")) word = word.Left(word.GetLength() - 1);
//   ZCString message;
//   message.Format("%s: %d characters", static_cast<const char*>(word), word.GetLength());
//   puts(message);  // Output: table: 5 characters
//
// Rules that hold for every operation:
// - Positions and lengths are `int` and count characters from 0; truth values are 1 or 0.
// - A null text counts as empty. A text argument may point into the string's own buffer.
// - A string may hold NUL characters. A `const char*` argument ends at its first NUL, and so does
//   the string itself in comparisons; all else works on the whole length.
// - Nothing is reported and nothing is thrown. When memory is exhausted, or a text would be longer
//   than an `int` can tell, the process ends through std::terminate.
// - Strings that share a buffer may be copied and destroyed on different threads at once; a single
//   object must not be changed on one thread while another uses it.
#ifndef KZ_STRING_H
#define KZ_STRING_H

#include <cstdint>

#include "kz/export.h"

// The header that is immediately before the first character of every buffer.
struct ZCStringData {
  std::int32_t references;  // strings that share the buffer; -1: locked, or no string's own
  std::int32_t language;    // Windows language identifier of the text, 0 for none
  std::int32_t length;      // characters, without the terminating NUL
  std::int32_t allocated;   // characters that the buffer can hold, without the NUL
};

// The language tag belongs to the buffer. An operation that keeps the buffer keeps the tag; one
// that gives the string a new buffer leaves the tag 0, except assignment from a ZCString, Left and
// the Span operations, which copy the tag. A buffer grows to exactly what is asked for: callers
// that build a long text ask GetBuffer for the final size first.
//
// "Makes the buffer unique" below means: a shared buffer is left to the other strings, and this one
// gets a copy (with tag 0) of exactly its length.
class KZ_API ZCString {
 public:
  // --- Construction and assignment ---

  // An empty string. It owns no buffer.
  ZCString() noexcept;
  // Shares the buffer of `other`, or copies its characters when that buffer is locked.
  ZCString(const ZCString& other) noexcept;
  // A copy of the text up to its NUL.
  ZCString(const char* text) noexcept;
  ZCString(const unsigned char* text) noexcept;
  // A copy of the first `count` bytes at `text`, NULs included; empty for a count below 1.
  ZCString(const char* text, int count) noexcept;
  // `count` times `ch`; empty for a count below 1.
  ZCString(char ch, int count) noexcept;
  // Releases the buffer, a locked one too.
  ~ZCString();

  // Shares the buffer of `other`. When one of the two is locked, or `other` has no buffer, the
  // characters are copied instead, into this string's buffer if that is unshared and large enough.
  // The language tag is copied in either case.
  ZCString& operator=(const ZCString& other) noexcept;
  // Copies the text, or the one character (NUL is a character too), into this string's buffer if
  // that is unshared and large enough, else into a new one.
  ZCString& operator=(const char* text) noexcept;
  ZCString& operator=(const unsigned char* text) noexcept;
  ZCString& operator=(char ch) noexcept;

  // --- Access ---

  // Characters, without the NUL after them.
  int GetLength() const noexcept;
  // Characters that the buffer can hold; 0 without a buffer.
  int GetAllocLength() const noexcept;
  // 1 when the length is 0.
  int IsEmpty() const noexcept;
  // The zero-terminated characters: valid until this string changes or dies.
  operator const char*() const noexcept;
  // The character at `index`, which the caller keeps in 0..length (the NUL is at length).
  char GetAt(int index) const noexcept;
  char operator[](int index) const noexcept;
  // Makes the buffer unique and stores `ch` at `index`, which the caller keeps in 0..length - 1.
  void SetAt(int index, char ch) noexcept;

  // Writes the tag into the current buffer, where every string that shares it sees it. An empty
  // string without a buffer first gets an empty one of its own.
  void SetLanguage(int language) noexcept;
  // The tag of the current buffer; 0 for a fresh empty string.
  int GetLanguage() const noexcept;

  // --- Buffer control ---

  // Makes the string empty and releases its buffer; a locked string keeps its buffer. A string of
  // length 0 stays as it is.
  void Empty() noexcept;
  // A writable buffer for at least `count` characters, holding the present text. It is this
  // string's buffer if that is unshared (a locked one is) and large enough, else a new, unlocked
  // one of max(count, length) characters. After writing, call ReleaseBuffer. The pointer is valid
  // until the string changes otherwise; write at most GetAllocLength() characters and the NUL.
  char* GetBuffer(int count) noexcept;
  // Ends the writing: makes the buffer unique and sets the length to `count` (cut to what the
  // buffer holds), or, for -1, to the characters before the first NUL; stores a NUL there.
  void ReleaseBuffer(int count = -1) noexcept;
  // GetBuffer(count), then the length `count` with a NUL after it.
  char* GetBufferSetLength(int count) noexcept;
  // Moves the text into a new, unlocked buffer of exactly its length, when the present one is
  // larger.
  void FreeExtra() noexcept;
  // Makes the buffer unique and locks it: from now on copies of this string copy the characters, so
  // that the buffer stays this string's own. An operation that needs a larger buffer replaces it by
  // an unlocked one. Returns the buffer. An empty string without a buffer has nothing to lock.
  char* LockBuffer() noexcept;
  // Ends the lock; does nothing on a string that is not locked.
  void UnlockBuffer() noexcept;

  // --- Search: a position, or -1 when nothing is found ---

  // First and last occurrence of `ch`. The NUL is found at the length.
  int Find(char ch) const noexcept;
  int ReverseFind(char ch) const noexcept;
  // First occurrence of `text`; an empty text is found at 0.
  int Find(const char* text) const noexcept;
  // First character that occurs in `set`.
  int FindOneOf(const char* set) const noexcept;

  // --- Extraction: a new string, this one is unchanged ---

  // `count` characters from `first`, or all from `first`; cut to what there is. Tag 0.
  ZCString Mid(int first, int count) const noexcept;
  ZCString Mid(int first) const noexcept;
  // The first or last `count` characters, cut to what there is. Left copies the tag, Right's is 0.
  ZCString Left(int count) const noexcept;
  ZCString Right(int count) const noexcept;
  // The leading run of characters that occur, or do not occur, in `set`, with this string's tag.
  ZCString SpanIncluding(const char* set) const noexcept;
  ZCString SpanExcluding(const char* set) const noexcept;
  // The text between the delimiter at `position` and the last equal character after it that does
  // not directly follow `escape`; moves `position` to that closing delimiter. Without one: the
  // whole string, and `position` stays. For a position outside the string: an empty string.
  ZCString GetInside(int& position, char escape) const noexcept;

  // --- Change in place ---

  // Append: in place when the buffer is unshared and large enough, else in a new buffer of exactly
  // the new length. Appending nothing changes nothing.
  ZCString& operator+=(const ZCString& text) noexcept;
  ZCString& operator+=(const char* text) noexcept;
  ZCString& operator+=(char ch) noexcept;
  // Make the buffer unique and remove the leading, the trailing, or both runs of white space (codes
  // 9 to 13 and 32).
  void TrimLeft() noexcept;
  void TrimRight() noexcept;
  void Trim() noexcept;
  // Makes the buffer unique and reverses the characters.
  void MakeReverse() noexcept;
  // Makes the buffer unique and turns every run of white space, at the ends too, into one blank.
  // Returns a copy.
  ZCString MakeOneSpace() noexcept;
  // Inserts `text` before `position`; nothing changes for a position outside 0..length. Both return
  // a copy.
  ZCString Insert(const char* text, int position) noexcept;
  ZCString Insert(int position, const char* text) noexcept;
  // Replaces every occurrence of `old_text`, left to right; inserted text is not searched again. An
  // empty `old_text` changes nothing; a NUL character counts as an empty text. All return a copy.
  ZCString Replace(const char* old_text, const char* new_text) noexcept;
  ZCString Replace(const char* old_text, char new_char) noexcept;
  ZCString Replace(char old_char, const char* new_text) noexcept;
  ZCString Replace(char old_char, char new_char) noexcept;
  // Replaces every character that occurs in `set`; an empty set changes nothing. Both return a
  // copy.
  ZCString ReplaceOneOf(const char* set, const char* new_text) noexcept;
  ZCString ReplaceOneOf(const char* set, char new_char) noexcept;
  // Make the buffer unique and scramble its characters with a fixed key; each undoes the other, and
  // itself. The length stays, although the character '~' becomes NUL.
  void Code() noexcept;
  void DeCode() noexcept;
  // Replaces the contents by the text formatted by the rules of vsprintf and the "C" locale, cut
  // at its first NUL. The arguments may come from this string; a null text is written as "(null)".
  // Room is reserved by a generous estimate per item, at least for the formatted text; a text that
  // cannot be formatted leaves the string empty.
  void Format(const char* format, ...) noexcept;

  // --- Comparison and tests ---

  // Compares the zero-terminated texts by unsigned bytes: negative, 0 or positive.
  int Compare(const char* text) const noexcept;
  // True when the string begins or ends with `text`, byte by byte.
  int StartsWith(const char* text) const noexcept;
  int EndsWith(const char* text) const noexcept;
  // True when the string ends with the ending `text`; whether `text` ends just before `position`
  // (0 for a position outside 0..length).
  int IsFlex(const char* text) const noexcept;
  int IsFlex(int position, const char* text) const noexcept;
  // True when the character at `index` is white space (codes 9 to 13 and 32), or a digit, in any
  // language. The caller keeps the index in 0..length.
  int IsSpace(int index) const noexcept;
  int IsDigit(int index) const noexcept;

  // --- By the language tag ---
  //
  // The tags 1031 (German) and 1036 (French) select Windows-1252 and CP850; 1033 (English) and 1049
  // (Russian) select Windows-1251 and CP866, where the class tests accept what either code page
  // knows. What any other tag selects is at each operation. The tag that counts is the one
  // before the operation makes the buffer unique, which leaves the tag 0.

  // Make the buffer unique and change the case; without a language of Latin letters only.
  void MakeUpper() noexcept;
  void MakeLower() noexcept;
  // Make the buffer unique and convert between ANSI and OEM; without a language as for Russian.
  void CharToOemA() noexcept;
  void OemToCharA() noexcept;
  // Change the case of the character at `index`, without a language as for German; outside the
  // string nothing happens.
  void ToUpper(int index) noexcept;
  void ToLower(int index) noexcept;
  // Compares the zero-terminated texts ignoring case: negative, 0 or positive; without a language
  // as for Russian.
  int CompareNoCase(const char* text) const noexcept;
  // As StartsWith, EndsWith and IsFlex. Case is ignored for Latin letters, and for English and
  // Russian also for the Russian letters.
  int StartsWithNoCase(const char* text) const noexcept;
  int EndsWithNoCase(const char* text) const noexcept;
  int IsFlexNoCase(const char* text) const noexcept;
  int IsFlexNoCase(int position, const char* text) const noexcept;
  // The class of the character at `index`, without a language as for German; 0 outside the string.
  int IsAlpha(int index) const noexcept;
  int IsAlphaNum(int index) const noexcept;
  int IsUpper(int index) const noexcept;
  int IsLower(int index) const noexcept;

 private:
  char* text_;  // the first character; a ZCStringData is before it
};

// Concatenation: a new string of exactly the joined length, with tag 0.
KZ_API ZCString operator+(const ZCString& left, const ZCString& right) noexcept;
KZ_API ZCString operator+(const ZCString& left, const char* right) noexcept;
KZ_API ZCString operator+(const char* left, const ZCString& right) noexcept;
KZ_API ZCString operator+(const ZCString& left, char right) noexcept;
KZ_API ZCString operator+(char left, const ZCString& right) noexcept;

// Comparison as by ZCString::Compare.
KZ_API bool operator==(const ZCString& left, const ZCString& right) noexcept;
KZ_API bool operator==(const ZCString& left, const char* right) noexcept;
KZ_API bool operator==(const char* left, const ZCString& right) noexcept;
KZ_API bool operator!=(const ZCString& left, const ZCString& right) noexcept;
KZ_API bool operator!=(const ZCString& left, const char* right) noexcept;
KZ_API bool operator!=(const char* left, const ZCString& right) noexcept;
KZ_API bool operator<(const ZCString& left, const ZCString& right) noexcept;
KZ_API bool operator<(const ZCString& left, const char* right) noexcept;
KZ_API bool operator<(const char* left, const ZCString& right) noexcept;
KZ_API bool operator>(const ZCString& left, const ZCString& right) noexcept;
KZ_API bool operator>(const ZCString& left, const char* right) noexcept;
KZ_API bool operator>(const char* left, const ZCString& right) noexcept;
KZ_API bool operator<=(const ZCString& left, const ZCString& right) noexcept;
KZ_API bool operator<=(const ZCString& left, const char* right) noexcept;
KZ_API bool operator<=(const char* left, const ZCString& right) noexcept;
KZ_API bool operator>=(const ZCString& left, const ZCString& right) noexcept;
KZ_API bool operator>=(const ZCString& left, const char* right) noexcept;
KZ_API bool operator>=(const char* left, const ZCString& right) noexcept;

// Shows a message box with the text, the caption and the style flags of the platform, and returns
// the identifier of the button pressed. The host decides how it looks, see kz/platform.h.
extern "C" KZ_API int ZMessageBox(const char* text, const char* caption,
                                  unsigned int type) noexcept;

#endif  // KZ_STRING_H
