/* The 154-byte header at the start of every dictionary file.
 *
 * DicHeaderOpen reads and checks a header without opening the dictionary, DicHeaderSetProperties
 * rewrites its title, label, property byte and password in place. The password field is
 * scrambled; the DicPw functions write, read and compare it. The checksum field is only ever
 * compared, by kz_dict_chk_csd: whoever writes a header stores it.
 *
 *   DicHeader header;
 *   if (DicHeaderOpen("baseenru.dic", &header, 0) == DIC_OK)
 *     printf("%.40s\n", header.Title);  // Output: KZ sample dictionary, English-Russian
 */
#ifndef KZ_DIC_HEADER_H
#define KZ_DIC_HEADER_H

#include <stddef.h>
#include <stdint.h>

#include "kz/dic_error.h"
#include "kz/export.h"

/* The signature of the current format; four zero bytes follow it in the 48-byte field. */
#define DIC_SIGNATURE "KZ Dictionary 3.00 (C) 1997-1998 Corvane    "

#ifdef __cplusplus
extern "C" {
#endif

/* The header as it is in the file, without gaps. Integers are little-endian. Texts are padded
 * with zero bytes; Label and Title are not terminated when they fill their field. */
typedef struct __attribute__((packed)) DicHeader {
  char Signature[48];     /* DIC_SIGNATURE and four zero bytes */
  char Label[8];          /* short text, not interpreted */
  char Language[5];       /* "ENRU", "RU", ...: a pair, source first, or one language; or empty */
  char Type[2];           /* 'C', 'S', 'T', 'H' or 'G', and a zero byte */
  char Title[40];         /* title text */
  uint8_t Reserved1;      /* not interpreted */
  uint8_t Password[8];    /* scrambled; all zero for the empty password */
  uint8_t Property;       /* not interpreted */
  uint16_t FormatVersion; /* above 538: packed records and the shared-text block are allowed */
  int16_t IndexDepth;     /* 2, 3 or 5, see kz/dic_index.h */
  int16_t AlphabetSize;   /* 26, 32 or 43, see kz/dic_index.h */
  int32_t IndexOffset;    /* position of the letter index, which is the end of the records */
  uint32_t DataOffset;    /* position of the first record */
  uint32_t FileSize;      /* the file is at least this long */
  int32_t TimeStamp;      /* seconds on the scale of ZCTime::GetTime */
  uint32_t Reserved2;     /* not interpreted */
  uint16_t Checksum;      /* compared by kz_dict_chk_csd */
  uint8_t Packing;        /* bit 0: packed records; bit 1: a shared-text block */
  uint32_t SharedOffset;  /* position of the shared-text block */
  int32_t IndexCount;     /* number of key records when IndexDepth is 5 */
  uint32_t SharedSize;    /* size of the shared-text block in bytes, 0 without one */
} DicHeader;

/* Reads the header of the file `path` into `header` and checks it: 154 bytes, the current
 * signature, FileSize not above the file's length, IndexOffset 0 or from 154 to that length.
 * Without a header buffer it only tests that the file can be opened. Stores in `time`, when given
 * and the header is valid, the file's modification time, or TimeStamp when the file system does
 * not tell. Returns DIC_OK, DIC_ERR_FILE or DIC_ERR_FORMAT, also left in the error variable; the
 * buffer keeps whatever was read. Files of older generations give DIC_ERR_FORMAT here, although
 * DicOpen accepts them. */
KZ_API uint16_t DicHeaderOpen(const char* path, DicHeader* header, int32_t* time);

/* Rewrites the header of the file `path`, which must pass DicHeaderOpen: `title` is cut to 40
 * characters, `label` to 8, the low byte of `property` becomes Property unless it is 0 as a
 * whole, `password` is scrambled. Null texts and property 0 leave their fields alone; Checksum is
 * left alone too. Returns DIC_OK, the code of DicHeaderOpen (nothing is written then), or
 * DIC_ERR_FILE when the file cannot be opened for writing or the write is cut short; also left in
 * the error variable. */
KZ_API uint16_t DicHeaderSetProperties(const char* path, const char* title, const char* label,
                                       uint16_t property, const char* password);

/* The checksum of a header: the sum of its first 152 bytes, modulo 65536. Since these include the
 * Checksum field itself, a writer picks values that agree. 0 for a null header. */
KZ_API uint16_t kz_dict_set_csd(const DicHeader* header);

/* 1 when that sum equals the Checksum field, else 0. */
KZ_API int kz_dict_chk_csd(const DicHeader* header);

/* Scrambles `password` into an 8-byte field: at most 8 characters, the rest zero. Does nothing
 * when either pointer is null. */
KZ_API void DicPwSet(uint8_t* field, const char* password);

/* Unscrambles an 8-byte field into `out`, which has room for 8 bytes and gets no terminating zero
 * of its own. Returns `out`, or null when either pointer is null. */
KZ_API char* DicPwGet(const uint8_t* field, char* out);

/* 1 when the unscrambled field equals the 8 bytes of `candidate` (a text padded with zero bytes),
 * else 0; 0 also when either pointer is null. */
KZ_API int DicPwCmp(const uint8_t* field, const char* candidate);

#ifdef __cplusplus
}
#endif

#endif /* KZ_DIC_HEADER_H */
