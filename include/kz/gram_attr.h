/* Compact attributes of source words, and paradigm values.
 *
 * Dictionaries and inflection tables keep eight bytes per word instead of a GRAMINFO: the indices
 * of three attribute names (GetAttrNameStr in kz/gram_codec.h) and a paradigm. SetGrSrcAttr unpacks
 * them and expands the class names into part of speech and grammar. A paradigm travels as one
 * value, its number in the low 16 bits and its base in the high 16 bits.
 *
 *   uint32_t attributes[2] = {2, 12};  // class "NMa", paradigm 12
 *   GRAMINFO gram = {{0}};
 *   SetGrSrcAttr(&gram, attributes);
 *   printf("%c\n", (int)(gram.word[2] >> GRAM_CODE_SHIFT & 0xFF));  // Output: N
 *   if (gram.word[1] & GRAM_MASCULINE) puts("masculine");  // Output: masculine
 */
#ifndef KZ_GRAM_ATTR_H
#define KZ_GRAM_ATTR_H

#include <stdint.h>

#include "kz/export.h"
#include "kz/gram_record.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Unpacks the two words of a compact attribute record, then expands the classes:
 *
 *   attributes[0]  bits 0-7: kind-0 index; 8-13: kind-1 index, signed; 14-15: value for word 0 of
 *                  the GRAMINFO; 16-23: kind-2 index, the paradigm base
 *   attributes[1]  bits 0-15: paradigm number; 16-23: paradigm letter
 *
 * Does nothing when an argument is null. */
KZ_API void SetGrSrcAttr(GRAMINFO* gram, const uint32_t* attributes);

/* Expands the kind-0 and then the kind-1 class that the record holds: sets the part-of-speech code,
 * the cases and the person that the class says, and adds its bits. An index without a class changes
 * nothing. Does nothing for null. */
KZ_API void SetGrSrcAttr1(GRAMINFO* gram);

/* The paradigm value of a number and a base; 0xFFFFFFFF, no paradigm, for the number -1. */
KZ_API uint32_t MakeParadigm(int16_t number, int16_t base);

/* The parts of a paradigm value: the number, -1 for no paradigm, and the base. */
KZ_API int16_t GetParaNum(uint32_t paradigm);
KZ_API uint16_t GetParaBase(uint32_t paradigm);

#ifdef __cplusplus
}
#endif

#endif /* KZ_GRAM_ATTR_H */
