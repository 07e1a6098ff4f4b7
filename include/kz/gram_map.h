/* Grammar of a translation carried into the word record of the translation modules.
 *
 * The modules keep one fixed record per word: its codes, its grammar in both languages, and summary
 * fields (number, tense, person, case ...) from which they choose forms. The functions read a tag
 * string (kz/gram_codec.h) into the record and derive the summary from it. Prefix er_: from the
 * foreign language into Russian; re_: from Russian. Nothing is cleared, so the order of calls
 * matters: some fields are only filled while they are 0.
 *
 *   uint8_t record[WORD_RECORD_SIZE] = {0};
 *   record[WORD_RECORD_CODE] = 'N';
 *   re_get_wgram(0, "[FS|P]", record, 'N');  // the Russian word, then its English translation
 *   printf("%d\n", record[WORD_RECORD_GENDER]);  // the Russian feminine
 *   // Output: 2
 */
#ifndef KZ_GRAM_MAP_H
#define KZ_GRAM_MAP_H

#include <stdint.h>

#include "kz/export.h"
#include "kz/gram_record.h"
#ifdef __cplusplus
#include <cstring>
#endif

/* Where the fields of a word record begin. The record is packed and is at any address; fields
 * of several bytes are in the machine's byte order. Bytes not named here belong to the modules. */
enum WordRecordOffset {
  WORD_RECORD_LEVEL = 15,                /* above 4: re_set_egram appends to the text buffer */
  WORD_RECORD_CODE = 16,                 /* current part-of-speech code */
  WORD_RECORD_ADJECTIVE_MARK = 21,       /* set to "a" by the foreign code "a" */
  WORD_RECORD_WORD = 52,                 /* the word, zero-terminated */
  WORD_RECORD_SECONDARY_CODE = 134,      /* set to "n" by the foreign code "F" */
  WORD_RECORD_CONTEXT_CODE = 136,        /* "B", "E", "V", "z" ... */
  WORD_RECORD_FOREIGN_CODE = 137,        /* the code by which foreign tags were read */
  WORD_RECORD_RUSSIAN_CODE = 138,        /* the code by which Russian tags were read */
  WORD_RECORD_FOREIGN_GRAM = 139,        /* GRAMINFO */
  WORD_RECORD_RUSSIAN_GRAM = 167,        /* GRAMINFO */
  WORD_RECORD_SEMANTICS = 195,           /* SEMANTICS, shared by both languages */
  WORD_RECORD_NUMBER = 199,              /* 0 singular, 1 plural, 2 both */
  WORD_RECORD_TENSE = 200,               /* 0 none, 1 past, 2 future */
  WORD_RECORD_PERSON = 201,              /* 0 none, 1 to 3 */
  WORD_RECORD_ASPECT = 202,              /* 1 perfective */
  WORD_RECORD_CASE = 203,                /* a case set (enum GramCase) */
  WORD_RECORD_GENDER = 204,              /* 0 neuter or none, 1 masculine, 2 feminine, 3 both */
  WORD_RECORD_VERB_FLAGS = 205,          /* enum WordVerbFlag */
  WORD_RECORD_SECOND_CASE = 206,         /* a case set */
  WORD_RECORD_V_FLAG = 207,              /* 1 for a verb's tag "V" */
  WORD_RECORD_H_FLAG = 208,              /* 1 for the tag "H" */
  WORD_RECORD_LATIN_AREA = 209,          /* two bytes, receive the tag "&" with a Latin letter */
  WORD_RECORD_PARADIGM_NUMBER = 218,     /* uint32_t */
  WORD_RECORD_TEXT_BUFFER = 269,         /* char*, of the platform's width, or null */
  WORD_RECORD_SIZE = 269 + sizeof(void*) /* how much of the record the functions may touch */
};

enum WordVerbFlag { WORD_VERB_REFLEXIVE = 1, WORD_VERB_U = 2, WORD_VERB_IMPERATIVE = 4 };

#ifdef __cplusplus
/* The fields of a word record, over the record's bytes. It owns nothing and is valid as long as
 * they are. */
class WordRecordView {
 public:
  explicit WordRecordView(std::uint8_t* record) : bytes_(record) {}

  std::uint8_t* bytes() const { return bytes_; }

  std::uint8_t& level() const { return bytes_[WORD_RECORD_LEVEL]; }
  std::uint8_t& code() const { return bytes_[WORD_RECORD_CODE]; }
  std::uint8_t& adjective_mark() const { return bytes_[WORD_RECORD_ADJECTIVE_MARK]; }
  char* word() const { return text_at(WORD_RECORD_WORD); }
  std::uint8_t& secondary_code() const { return bytes_[WORD_RECORD_SECONDARY_CODE]; }
  std::uint8_t& context_code() const { return bytes_[WORD_RECORD_CONTEXT_CODE]; }
  std::uint8_t& foreign_code() const { return bytes_[WORD_RECORD_FOREIGN_CODE]; }
  std::uint8_t& russian_code() const { return bytes_[WORD_RECORD_RUSSIAN_CODE]; }
  std::uint8_t& number() const { return bytes_[WORD_RECORD_NUMBER]; }
  std::uint8_t& tense() const { return bytes_[WORD_RECORD_TENSE]; }
  std::uint8_t& person() const { return bytes_[WORD_RECORD_PERSON]; }
  std::uint8_t& aspect() const { return bytes_[WORD_RECORD_ASPECT]; }
  std::uint8_t& cases() const { return bytes_[WORD_RECORD_CASE]; }
  std::uint8_t& gender() const { return bytes_[WORD_RECORD_GENDER]; }
  std::uint8_t& verb_flags() const { return bytes_[WORD_RECORD_VERB_FLAGS]; }
  std::uint8_t& second_cases() const { return bytes_[WORD_RECORD_SECOND_CASE]; }
  std::uint8_t& v_flag() const { return bytes_[WORD_RECORD_V_FLAG]; }
  std::uint8_t& h_flag() const { return bytes_[WORD_RECORD_H_FLAG]; }
  char* latin_area() const { return text_at(WORD_RECORD_LATIN_AREA); }

  GRAMINFO foreign_gram() const { return get<GRAMINFO>(WORD_RECORD_FOREIGN_GRAM); }
  GRAMINFO russian_gram() const { return get<GRAMINFO>(WORD_RECORD_RUSSIAN_GRAM); }
  SEMANTICS semantics() const { return get<SEMANTICS>(WORD_RECORD_SEMANTICS); }
  std::uint32_t paradigm_number() const { return get<std::uint32_t>(WORD_RECORD_PARADIGM_NUMBER); }
  char* text_buffer() const { return get<char*>(WORD_RECORD_TEXT_BUFFER); }

  void set_foreign_gram(const GRAMINFO& gram) const { set(WORD_RECORD_FOREIGN_GRAM, gram); }
  void set_russian_gram(const GRAMINFO& gram) const { set(WORD_RECORD_RUSSIAN_GRAM, gram); }
  void set_semantics(SEMANTICS semantics) const { set(WORD_RECORD_SEMANTICS, semantics); }
  void set_paradigm_number(std::uint32_t number) const { set(WORD_RECORD_PARADIGM_NUMBER, number); }
  void set_text_buffer(char* buffer) const { set(WORD_RECORD_TEXT_BUFFER, buffer); }

 private:
  char* text_at(int offset) const { return reinterpret_cast<char*>(bytes_ + offset); }

  template <class T>
  T get(int offset) const {
    T value;
    std::memcpy(&value, bytes_ + offset, sizeof value);
    return value;
  }
  template <class T>
  void set(int offset, T value) const {
    std::memcpy(bytes_ + offset, &value, sizeof value);
  }

  std::uint8_t* bytes_;
};

extern "C" {
#endif

/* For all functions: `record` points to a word record, WORD_RECORD_SIZE bytes at any address. With
 * a null record nothing is done; functions that return a position then return `text`. Codes are
 * Windows-1251 characters, cut to their low 8 bits. Texts are zero-terminated Windows-1251. */

/* Read a grammar from `text`, its leading "[" skipped, and derive the summary for the given code.
 * The tags are added to the GRAMINFO and SEMANTICS of the record. The result is the position after
 * the grammar, as StrToGram gives it, and after a "\" that is there; null for a null text.
 *
 * er_get_wgram, by mode: 0 reads the Russian grammar, then er_set_rgram; 1 the foreign one, then
 * er_set_egram; 3 the foreign one and, after a "|", the Russian one, then er_set_egram.
 *
 * re_get_wgram, by mode: 0 and 2 read the Russian grammar and, after a "|", the foreign one, then
 * re_set_rgram; 1 the foreign one, then re_set_egram with the text after the grammar.
 *
 * Other modes read nothing; the "[" and "\" are stepped over all the same. */
KZ_API const char* er_get_wgram(int16_t mode, const char* text, uint8_t* record, int16_t code);
KZ_API const char* re_get_wgram(int16_t mode, const char* text, uint8_t* record, int16_t code);

/* Read what follows a word, by the record's current code, and return the position after it; null
 * for a null text.
 *
 * At a "[", they call er_get_wgram in mode 0, re_get_wgram in mode 1. Without one, code "S" gets
 * person 3; er_get_rgram_gt also reads the case letters after a preposition ("P"), of which the
 * last one says the case, and makes "n" a plural of code "N". */
KZ_API const char* er_get_rgram_gt(const char* text, uint8_t* record);
KZ_API const char* re_get_egram_gt(const char* text, uint8_t* record);

/* Derive the summary fields from the Russian (rgram) or the foreign (egram) GRAMINFO of the record.
 * What is set depends on the code; a code without a rule sets nothing. er_set_rgram may also clear
 * the reflexive bit of the Russian GRAMINFO, and er_set_egram marks the foreign one of "be". */
KZ_API void er_set_rgram(uint8_t* record, int16_t code);
KZ_API void er_set_egram(uint8_t* record, int16_t code);
KZ_API void re_set_rgram(uint8_t* record, int16_t code);

/* The same for the foreign GRAMINFO; then, when the level is above 4 and there is a text buffer,
 * appends `text`, the rest of the translation, to it: first "1" if the text is not empty and does
 * not begin with a digit. Nothing bounds that: after the text that it holds, the buffer needs room
 * for the length of `text` plus one character (the final zero is there already). A null text is
 * empty. */
KZ_API void re_set_egram(uint8_t* record, int16_t code, const char* text);

/* The summary of a verb, from the GRAMINFO at `gram`, which needs no alignment, unlike that of
 * every other function: it may be the one inside the record. er_set_vgram takes number and gender
 * from it in any case, re_set_vgram only while the fields are 0. Nothing is done when `gram` is
 * null. */
KZ_API void er_set_vgram(uint8_t* record, const void* gram);
KZ_API void re_set_vgram(uint8_t* record, const void* gram);

/* "V" for the verbal codes "E", "G", "V", "Z", "e", "g" and "v", any other code unchanged; 0 to
 * 255. */
KZ_API int xv_syn(int code);

/* Looks for an equivalent in a translation: the position after the first character of `key` where
 * `text` contains it. Otherwise the position of the first character outside of {} and [] that
 * begins the key, or is a Latin or Russian capital; null if there is none, if a bracket is not
 * closed, and for a null argument or an empty text. */
KZ_API const char* get_equ(const char* text, const char* key);

#ifdef __cplusplus
}
#endif

#endif /* KZ_GRAM_MAP_H */
