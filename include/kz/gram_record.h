/* The grammar of one word: the records GRAMINFO and SEMANTICS and the classes that hold them.
 *
 * A GRAMINFO is seven words of bits: gender, number, cases, tense, aspect, paradigm, part of speech
 * and many class flags; a SEMANTICS is 32 flags. Tag strings (kz/gram_codec.h) and compact
 * attributes (kz/gram_attr.h) fill them. The library gives a meaning to the fields named here; it
 * carries, reads and writes the flags without one. docs/grammar.md lists every bit with its tag. In
 * C++:
 *
 *   CWordGram table;
 *   char code = 'N';
 *   char area[2];
 *   StrToGram("MS#12", &code, table.GetGramInfo(), table.GetSemantics(), 'N', area);
 *   printf("%d\n", table.GetGender());  // masculine
 *   // Output: 1
 */
#ifndef KZ_GRAM_RECORD_H
#define KZ_GRAM_RECORD_H

#include <stdint.h>

#include "kz/export.h"
#ifdef __cplusplus
#include "kz/object.h"
#include "kz/string.h"
#endif

/* A cleared record is all zeros. Bit 0 is the lowest bit of a word.
 *
 *   word 0  bits 1-2: two-bit value of the compact attributes; the rest flags and the host's bits
 *   word 1  gender, number, tense, aspect (enum GramWord1); bits 16-21: case set
 *   word 2  bits 0-5: second case set; 8-15: part-of-speech code, a Windows-1251 character; 16-23,
 *           24-31: indices of the kind-0 and kind-1 attribute name, signed bytes
 *   word 3  the paradigm. Bits 0-7: base, a signed byte, none if 0 or 255; 8-23: number, none if
 *           65535; 24-31: letter, none if 0
 *   word 4  flags (enum GramWord4); bits 8-13: third case set
 *   word 5  flags (enum GramWord5); bits 16-17: person, 0 for none
 *   word 6  bits 0-7: a small Cyrillic letter or 0; 19-23: a number of 0 to 31; flags */
typedef struct GRAMINFO {
  uint32_t word[7];
} GRAMINFO;

/* Semantic flags; 0 for none. */
typedef struct SEMANTICS {
  uint32_t word;
} SEMANTICS;

/* Both are aligned as uint32_t wherever a function takes a GRAMINFO* or SEMANTICS*: those of
 * kz/gram_codec.h and kz/gram_attr.h and the setters of CGramInfo. The records inside a word record
 * (kz/gram_map.h) are not: copy one to a variable, as WordRecordView does, before it is passed on.
 * er_set_vgram and re_set_vgram alone, which take a const void*, read it at any address. */

/* Bits of word 1. */
enum GramWord1 {
  GRAM_MASCULINE = 1 << 0,
  GRAM_FEMININE = 1 << 1,
  GRAM_NEUTER = 1 << 2,
  GRAM_SINGULAR = 1 << 3,
  GRAM_PLURAL = 1 << 4,
  GRAM_NO_PLURAL = 1 << 5,
  GRAM_NO_SINGULAR = 1 << 6,
  GRAM_ANIMATE = 1 << 7,
  GRAM_TRANSITIVE = 1 << 8,
  GRAM_PERFECTIVE_MARK = 1 << 9, /* tells the aspect whatever the aspect bits say */
  GRAM_PAST = 1 << 10,
  GRAM_IMPERATIVE = 1 << 12,
  GRAM_PRESENT = 1 << 13,
  GRAM_FUTURE = 1 << 14,
  GRAM_CASES = 63 << 16,         /* the case set: GRAM_NOMINATIVE ... shifted by GRAM_CASES_SHIFT */
  GRAM_REFLEXIVE_MARK = 1 << 22, /* a reflexive pronoun; also a reflexive use of a verb */
  GRAM_PERFECTIVE = 1 << 26,
  GRAM_IMPERFECTIVE = 1 << 27,
  GRAM_REFLEXIVE = 1 << 28
};

/* Bits of words 4 and 5. */
enum GramWord4 {
  GRAM_NEVER_PERFECTIVE = 1 << 17,
  GRAM_INTRANSITIVE = 1 << 18,
  GRAM_PASSIVE = 1 << 20
};
enum GramWord5 { GRAM_PERSON = 3 << 16 };

/* Where the fields of several bits begin. */
enum {
  GRAM_CASES_SHIFT = 16,           /* word 1 */
  GRAM_SECOND_CASES_SHIFT = 0,     /* word 2 */
  GRAM_CODE_SHIFT = 8,             /* word 2 */
  GRAM_PARADIGM_NUMBER_SHIFT = 8,  /* word 3 */
  GRAM_PARADIGM_LETTER_SHIFT = 24, /* word 3 */
  GRAM_THIRD_CASES_SHIFT = 8,      /* word 4 */
  GRAM_PERSON_SHIFT = 16           /* word 5 */
};

/* The cases of a case set. */
enum GramCase {
  GRAM_NOMINATIVE = 1,
  GRAM_GENITIVE = 2,
  GRAM_DATIVE = 4,
  GRAM_ACCUSATIVE = 8,
  GRAM_INSTRUMENTAL = 16,
  GRAM_PREPOSITIONAL = 32
};

#ifdef __cplusplus
/* The two records of a word. A null record given to a setter changes nothing. */
class KZ_API CGramInfo : public ZCObject {
 public:
  /* Both records cleared. */
  CGramInfo();
  CGramInfo(const CGramInfo&) = default;
  CGramInfo& operator=(const CGramInfo&) = default;
  ~CGramInfo() override;

  /* Make all zeros: both records, the GRAMINFO, the SEMANTICS. */
  void ClearAllGramInfo();
  void ClearGramInfo();
  void ClearSemantics();

  /* Copy the given record into the held one. */
  void SetGramInfo(const GRAMINFO* gram);
  void SetSemantics(const SEMANTICS* semantics);

  /* The held records themselves, valid as long as the object. */
  GRAMINFO& G();
  SEMANTICS& S();
  GRAMINFO* GetGramInfo();
  SEMANTICS* GetSemantics();

  /* Set the whole paradigm. The first takes a paradigm value: the number in its low 16 bits, the
   * base in the 8 bits above. */
  void SetParadigmInfo(uint32_t paradigm, char letter);
  void SetParadigmInfo(int16_t number, int16_t base, char letter);
  /* The paradigm value of the record, its base as a signed number; 0xFFFFFFFF for number 65535. */
  uint32_t MakeParadigm() const;

  /* 2 if both singular and plural, 1 if plural or without a singular, else 0. */
  int16_t GetNumber() const;
  /* 0 makes it singular, 1 plural, 2 both, as far as the word has such forms: no singular is set on
   * a word without singular, no plural on one without plural. Other values change nothing. */
  void SetNumber(int16_t number);
  /* Adds a gender: 0 neuter, 1 masculine, 2 feminine, 3 masculine and feminine. Clears none. */
  void SetGender(int16_t gender);
  /* 1 masculine, 2 feminine, 3 both, 0 neuter or none; GetGender1 calls both genders 1. */
  int16_t GetGender() const;
  int16_t GetGender1() const;
  /* The part-of-speech code, 0 for none; a Cyrillic one is negative where char is signed. */
  char GetSyn() const;
  /* 1 to 3, 0 for none. */
  int16_t GetPerson() const;
  /* The case set, and the third case set (word 4). */
  char GetCase() const;
  char GetCase2() const;
  /* 1 or 0. */
  int16_t GetTensePast() const;
  int16_t GetTensePresent() const;
  int16_t GetTenseFuture() const;
  /* 1 or 0: perfective and not imperfective, or with the perfective mark; never with the
   * never-perfective flag. */
  int16_t IsPerfective() const;
  /* 1 or 0: either reflexive bit. */
  int16_t IsReflexive() const;

 private:
  GRAMINFO gram_;
  SEMANTICS semantics_;
};

/* The two records and the word, in Windows-1251 or Windows-1252 as its host keeps it. */
class KZ_API CWordGram : public CGramInfo {
 public:
  CWordGram();
  CWordGram(const CWordGram&) = default;
  CWordGram& operator=(const CWordGram&) = default;
  /* Empties the word first. */
  ~CWordGram() override;

  /* The held word itself, valid as long as the object. */
  ZCString& GetWord();
  /* Assign the word; null empties it. */
  void SetWord(const ZCString& word);
  void SetWord(const char* word);

 private:
  ZCString word_;
};
#endif

#endif /* KZ_GRAM_RECORD_H */
