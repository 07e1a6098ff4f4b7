// What programs have compiled in of the exported classes and records, as 32-bit builds have it.
//
// A class keeps its fields at these offsets; what the library adds of its own comes after the last
// of them. In 64-bit builds the same fields come in the same order. This file makes no code: it is
// compiled without access control, so that private fields can be asked for too.
#include <cstddef>
#include <cstdint>

#include "kz/kzcommon.h"

// --- The same in every build ---

// The header of dictionary files.
static_assert(sizeof(DicHeader) == 154);
static_assert(offsetof(DicHeader, Signature) == 0 && offsetof(DicHeader, Label) == 48);
static_assert(offsetof(DicHeader, Language) == 56 && offsetof(DicHeader, Type) == 61);
static_assert(offsetof(DicHeader, Title) == 63 && offsetof(DicHeader, Reserved1) == 103);
static_assert(offsetof(DicHeader, Password) == 104 && offsetof(DicHeader, Property) == 112);
static_assert(offsetof(DicHeader, FormatVersion) == 113 && offsetof(DicHeader, IndexDepth) == 115);
static_assert(offsetof(DicHeader, AlphabetSize) == 117 && offsetof(DicHeader, IndexOffset) == 119);
static_assert(offsetof(DicHeader, DataOffset) == 123 && offsetof(DicHeader, FileSize) == 127);
static_assert(offsetof(DicHeader, TimeStamp) == 131 && offsetof(DicHeader, Reserved2) == 135);
static_assert(offsetof(DicHeader, Checksum) == 139 && offsetof(DicHeader, Packing) == 141);
static_assert(offsetof(DicHeader, SharedOffset) == 142 && offsetof(DicHeader, IndexCount) == 146);
static_assert(offsetof(DicHeader, SharedSize) == 150);

// The word record of the translation modules.
static_assert(WORD_RECORD_LEVEL == 15 && WORD_RECORD_CODE == 16);
static_assert(WORD_RECORD_ADJECTIVE_MARK == 21 && WORD_RECORD_WORD == 52);
static_assert(WORD_RECORD_SECONDARY_CODE == 134 && WORD_RECORD_CONTEXT_CODE == 136);
static_assert(WORD_RECORD_FOREIGN_CODE == 137 && WORD_RECORD_RUSSIAN_CODE == 138);
static_assert(WORD_RECORD_FOREIGN_GRAM == 139 && WORD_RECORD_RUSSIAN_GRAM == 167);
static_assert(WORD_RECORD_SEMANTICS == 195 && WORD_RECORD_NUMBER == 199);
static_assert(WORD_RECORD_TENSE == 200 && WORD_RECORD_PERSON == 201 && WORD_RECORD_ASPECT == 202);
static_assert(WORD_RECORD_CASE == 203 && WORD_RECORD_GENDER == 204);
static_assert(WORD_RECORD_VERB_FLAGS == 205 && WORD_RECORD_SECOND_CASE == 206);
static_assert(WORD_RECORD_V_FLAG == 207 && WORD_RECORD_H_FLAG == 208);
static_assert(WORD_RECORD_LATIN_AREA == 209 && WORD_RECORD_PARADIGM_NUMBER == 218);
static_assert(WORD_RECORD_TEXT_BUFFER == 269);

static_assert(sizeof(ZCStringData) == 16);
static_assert(offsetof(ZCStringData, references) == 0 && offsetof(ZCStringData, language) == 4);
static_assert(offsetof(ZCStringData, length) == 8 && offsetof(ZCStringData, allocated) == 12);

static_assert(sizeof(ZCFileStatus) == 280);
static_assert(offsetof(ZCFileStatus, creation_time) == 0);
static_assert(offsetof(ZCFileStatus, modification_time) == 4);
static_assert(offsetof(ZCFileStatus, access_time) == 8 && offsetof(ZCFileStatus, size) == 12);
static_assert(offsetof(ZCFileStatus, attribute) == 16 && offsetof(ZCFileStatus, full_name) == 17);

static_assert(sizeof(ZCTime) == 4);
static_assert(offsetof(ZCTime, time_) == 0);

static_assert(sizeof(ZCTimeSpan) == 4);
static_assert(offsetof(ZCTimeSpan, seconds_) == 0);

static_assert(sizeof(SYSTEMTIME) == 16);
static_assert(offsetof(SYSTEMTIME, wYear) == 0 && offsetof(SYSTEMTIME, wMonth) == 2);
static_assert(offsetof(SYSTEMTIME, wDayOfWeek) == 4 && offsetof(SYSTEMTIME, wDay) == 6);
static_assert(offsetof(SYSTEMTIME, wHour) == 8 && offsetof(SYSTEMTIME, wMinute) == 10);
static_assert(offsetof(SYSTEMTIME, wSecond) == 12 && offsetof(SYSTEMTIME, wMilliseconds) == 14);

static_assert(sizeof(FILETIME) == 8);
static_assert(offsetof(FILETIME, dwLowDateTime) == 0 && offsetof(FILETIME, dwHighDateTime) == 4);

static_assert(sizeof(GRAMINFO) == 28);
static_assert(offsetof(GRAMINFO, word) == 0);

static_assert(sizeof(SEMANTICS) == 4);
static_assert(offsetof(SEMANTICS, word) == 0);

static_assert(sizeof(CGenId) == 256);
static_assert(offsetof(CGenId, pools_of_id) == 0);

// --- Classes and records with pointers ---

#if UINTPTR_MAX == UINT32_MAX

#pragma GCC diagnostic ignored "-Winvalid-offsetof"  // of classes with virtual functions

// Foundation.

static_assert(sizeof(ZCString) == 4);
static_assert(offsetof(ZCString, text_) == 0);

static_assert(sizeof(ZCFile) == 16);
static_assert(offsetof(ZCFile, handle_) == 4 && offsetof(ZCFile, close_on_delete_) == 8);
static_assert(offsetof(ZCFile, path_) == 12);

static_assert(sizeof(ZCByteArray) == 16);
static_assert(offsetof(ZCByteArray, data_) == 0 && offsetof(ZCByteArray, size_) == 4);
static_assert(offsetof(ZCByteArray, allocated_) == 8 && offsetof(ZCByteArray, growBy_) == 12);

static_assert(sizeof(ZCWordArray) == 16);
static_assert(offsetof(ZCWordArray, data_) == 0 && offsetof(ZCWordArray, size_) == 4);
static_assert(offsetof(ZCWordArray, allocated_) == 8 && offsetof(ZCWordArray, growBy_) == 12);

static_assert(sizeof(ZCDWordArray) == 16);
static_assert(offsetof(ZCDWordArray, data_) == 0 && offsetof(ZCDWordArray, size_) == 4);
static_assert(offsetof(ZCDWordArray, allocated_) == 8 && offsetof(ZCDWordArray, growBy_) == 12);

static_assert(sizeof(ZCUIntArray) == 16);
static_assert(offsetof(ZCUIntArray, data_) == 0 && offsetof(ZCUIntArray, size_) == 4);
static_assert(offsetof(ZCUIntArray, allocated_) == 8 && offsetof(ZCUIntArray, growBy_) == 12);

static_assert(sizeof(ZCPtrArray) == 16);
static_assert(offsetof(ZCPtrArray, data_) == 0 && offsetof(ZCPtrArray, size_) == 4);
static_assert(offsetof(ZCPtrArray, allocated_) == 8 && offsetof(ZCPtrArray, growBy_) == 12);

static_assert(sizeof(ZCStringArray) == 16);
static_assert(offsetof(ZCStringArray, data_) == 0 && offsetof(ZCStringArray, size_) == 4);
static_assert(offsetof(ZCStringArray, allocated_) == 8 && offsetof(ZCStringArray, growBy_) == 12);

static_assert(sizeof(ZCObject) == 4);

static_assert(sizeof(ZCObArray) == 20);
static_assert(offsetof(ZCObArray, data_) == 4 && offsetof(ZCObArray, size_) == 8);
static_assert(offsetof(ZCObArray, allocated_) == 12 && offsetof(ZCObArray, growBy_) == 16);

static_assert(sizeof(ZCMapStringToOb) == 28);
static_assert(offsetof(ZCMapStringToOb, hashTable_) == 4);
static_assert(offsetof(ZCMapStringToOb, tableSize_) == 8);
static_assert(offsetof(ZCMapStringToOb, count_) == 12);
static_assert(offsetof(ZCMapStringToOb, freeList_) == 16);
static_assert(offsetof(ZCMapStringToOb, blocks_) == 20);
static_assert(offsetof(ZCMapStringToOb, blockSize_) == 24);

// Dictionaries.

static_assert(sizeof(CDicIndex) == 84);
static_assert(offsetof(CDicIndex, access_mode_) == 4 && offsetof(CDicIndex, access_letter_) == 6);
static_assert(offsetof(CDicIndex, format_version_) == 8);
static_assert(offsetof(CDicIndex, offset_table_) == 12 && offsetof(CDicIndex, block_cache_) == 16);
static_assert(offsetof(CDicIndex, language_) == 20 && offsetof(CDicIndex, type_) == 25);
static_assert(offsetof(CDicIndex, alphabet_size_) == 28 && offsetof(CDicIndex, depth_) == 30);
static_assert(offsetof(CDicIndex, prefix_) == 32 && offsetof(CDicIndex, slots_) == 38);
static_assert(offsetof(CDicIndex, found_position_) == 44 && offsetof(CDicIndex, block_size_) == 48);
static_assert(offsetof(CDicIndex, index_offset_) == 52 && offsetof(CDicIndex, first_record_) == 56);
static_assert(offsetof(CDicIndex, changed_) == 58 && offsetof(CDicIndex, key_records_) == 60);
static_assert(offsetof(CDicIndex, found_record_) == 64 && offsetof(CDicIndex, record_count_) == 68);
static_assert(offsetof(CDicIndex, record_capacity_) == 72);
static_assert(offsetof(CDicIndex, table_size_) == 76 && offsetof(CDicIndex, cache_size_) == 80);

static_assert(sizeof(CDic) == 2620);
static_assert(offsetof(CDic, id_) == 4 && offsetof(CDic, path_) == 8);
static_assert(offsetof(CDic, mode_) == 12 && offsetof(CDic, property_) == 13);
static_assert(offsetof(CDic, format_version_) == 14 && offsetof(CDic, creation_time_) == 16);
static_assert(offsetof(CDic, modification_time_) == 20 && offsetof(CDic, language_) == 24);
static_assert(offsetof(CDic, type_) == 29 && offsetof(CDic, depth_) == 32);
static_assert(offsetof(CDic, alphabet_size_) == 34 && offsetof(CDic, remaining_) == 36);
static_assert(offsetof(CDic, index_offset_) == 40 && offsetof(CDic, data_offset_) == 44);
static_assert(offsetof(CDic, file_) == 48 && offsetof(CDic, chunk_size_) == 64);
static_assert(offsetof(CDic, position_) == 68 && offsetof(CDic, packing_) == 72);
static_assert(offsetof(CDic, record_start_) == 76 && offsetof(CDic, record_end_) == 80);
static_assert(offsetof(CDic, cursor_) == 84 && offsetof(CDic, entry_) == 88);
static_assert(offsetof(CDic, work_record_) == 2138 && offsetof(CDic, entry_length_) == 2398);
static_assert(offsetof(CDic, search_buffer_) == 2400 && offsetof(CDic, current_block_) == 2404);
static_assert(offsetof(CDic, shared_block_) == 2408 && offsetof(CDic, shared_offset_) == 2412);
static_assert(offsetof(CDic, shared_size_) == 2416 && offsetof(CDic, index_) == 2420);
static_assert(offsetof(CDic, search_key_) == 2504 && offsetof(CDic, search_mode_) == 2588);
static_assert(offsetof(CDic, key_length_) == 2590 && offsetof(CDic, in_memory_) == 2592);
static_assert(offsetof(CDic, reserved_) == 2596 && offsetof(CDic, entry_limit_) == 2600);
static_assert(offsetof(CDic, level_) == 2602 && offsetof(CDic, password_) == 2604);
static_assert(offsetof(CDic, entry_object_) == 2612);

static_assert(sizeof(CDicEntryIterator) == 196);
static_assert(offsetof(CDicEntryIterator, state_) == 4);
static_assert(offsetof(CDicEntryIterator, dictionary_) == 8);
static_assert(offsetof(CDicEntryIterator, dictionary_copy_) == 12);
static_assert(offsetof(CDicEntryIterator, from_) == 16 && offsetof(CDicEntryIterator, to_) == 96);
static_assert(offsetof(CDicEntryIterator, filter_) == 176);
static_assert(offsetof(CDicEntryIterator, include_) == 180);
static_assert(offsetof(CDicEntryIterator, start_letter_) == 182);
static_assert(offsetof(CDicEntryIterator, end_letter_) == 183);
static_assert(offsetof(CDicEntryIterator, start_base_) == 184);
static_assert(offsetof(CDicEntryIterator, end_base_) == 185);
static_assert(offsetof(CDicEntryIterator, counter_) == 188);
static_assert(offsetof(CDicEntryIterator, record_) == 192);

static_assert(sizeof(CDicSysEntryIterator) == 200);
static_assert(offsetof(CDicSysEntryIterator, found_) == 196);

static_assert(sizeof(CDicEntryMeaning) == 48);
static_assert(offsetof(CDicEntryMeaning, Language) == 4 && offsetof(CDicEntryMeaning, Kind) == 9);
static_assert(offsetof(CDicEntryMeaning, Tag) == 12 && offsetof(CDicEntryMeaning, Mark) == 16);
static_assert(offsetof(CDicEntryMeaning, Definition) == 20);
static_assert(offsetof(CDicEntryMeaning, Synonyms) == 24 && offsetof(CDicEntryMeaning, Text) == 40);
static_assert(offsetof(CDicEntryMeaning, Work) == 44);

static_assert(sizeof(CDicEntry) == 100);
static_assert(offsetof(CDicEntry, Decoding) == 4 && offsetof(CDicEntry, Language) == 6);
static_assert(offsetof(CDicEntry, Kind) == 11 && offsetof(CDicEntry, FullEntry) == 12);
static_assert(offsetof(CDicEntry, InWord) == 16 && offsetof(CDicEntry, SrcWord) == 20);
static_assert(offsetof(CDicEntry, PartText) == 24 && offsetof(CDicEntry, Part) == 28);
static_assert(offsetof(CDicEntry, Attr) == 32 && offsetof(CDicEntry, AttrView) == 36);
static_assert(offsetof(CDicEntry, Entry) == 40 && offsetof(CDicEntry, SrcRef) == 44);
static_assert(offsetof(CDicEntry, Meanings) == 48 && offsetof(CDicEntry, Tag) == 68);
static_assert(offsetof(CDicEntry, Mark) == 72 && offsetof(CDicEntry, Definition) == 76);
static_assert(offsetof(CDicEntry, Text) == 80 && offsetof(CDicEntry, Result) == 84);
static_assert(offsetof(CDicEntry, SynLabels) == 88 && offsetof(CDicEntry, SynRefs) == 92);

static_assert(sizeof(KzWordRecord) == 12);
static_assert(offsetof(KzWordRecord, inflection) == 0);
static_assert(offsetof(KzWordRecord, extended_code) == 4);

static_assert(sizeof(CDicArray) == 16);
static_assert(offsetof(CDicArray, loaded) == 4 && offsetof(CDicArray, path) == 8);
static_assert(offsetof(CDicArray, mode) == 12);

static_assert(sizeof(CDicSys) == 424);
static_assert(offsetof(CDicSys, buffer_flag) == 4 && offsetof(CDicSys, language) == 5);
static_assert(offsetof(CDicSys, operation_code) == 10 && offsetof(CDicSys, g_buffer) == 12);
static_assert(offsetof(CDicSys, e_buffer) == 16 && offsetof(CDicSys, chunk_buffer) == 20);
static_assert(offsetof(CDicSys, directory) == 24 && offsetof(CDicSys, queue.current_list) == 28);
static_assert(offsetof(CDicSys, queue.current_index) == 30);
static_assert(offsetof(CDicSys, queue.list_dictionary) == 32);
static_assert(offsetof(CDicSys, queue.current_dictionary) == 56);
static_assert(offsetof(CDicSys, queue.current_array) == 60);
static_assert(offsetof(CDicSys, queue.list_table) == 64 && offsetof(CDicSys, queue.lists) == 88);
static_assert(offsetof(CDicSys, queue.list_index) == 208);
static_assert(offsetof(CDicSys, current_array) == 220 && offsetof(CDicSys, directions) == 224);
static_assert(offsetof(CDicSys, spell_chain) == 344 && offsetof(CDicSys, thesaurus_chain) == 384);

// Grammar.

static_assert(sizeof(CGramInfo) == 36);
static_assert(offsetof(CGramInfo, gram_) == 4 && offsetof(CGramInfo, semantics_) == 32);

static_assert(sizeof(CWordGram) == 40);
static_assert(offsetof(CWordGram, word_) == 36);

// Morphology.

static_assert(sizeof(CGrSrcWordObj) == 120);
static_assert(offsetof(CGrSrcWordObj, attributes) == 4 && offsetof(CGrSrcWordObj, count) == 36);
static_assert(offsetof(CGrSrcWordObj, ending) == 37 && offsetof(CGrSrcWordObj, length) == 117);

static_assert(sizeof(CGrSrcWordFlex) == 128);
static_assert(offsetof(CGrSrcWordFlex, entries_) == 4 && offsetof(CGrSrcWordFlex, longest_) == 32);
static_assert(offsetof(CGrSrcWordFlex, last_) == 96);
static_assert(offsetof(CGrSrcWordFlex, declared_count_) == 100);
static_assert(offsetof(CGrSrcWordFlex, line_count_) == 104);
static_assert(offsetof(CGrSrcWordFlex, last_length_) == 108);
static_assert(offsetof(CGrSrcWordFlex, path_) == 112);
static_assert(offsetof(CGrSrcWordFlex, load_flag_) == 116);
static_assert(offsetof(CGrSrcWordFlex, position_) == 120);

static_assert(sizeof(CGenSteno) == 72);
static_assert(offsetof(CGenSteno, length_) == 4 && offsetof(CGenSteno, previous_) == 6);

// Utilities.

static_assert(sizeof(CFindBuffer) == 28);
static_assert(offsetof(CFindBuffer, mode_) == 4 && offsetof(CFindBuffer, modified_) == 6);
static_assert(offsetof(CFindBuffer, corrected_) == 8 && offsetof(CFindBuffer, size_) == 10);
static_assert(offsetof(CFindBuffer, cursor_) == 12 && offsetof(CFindBuffer, text_) == 16);
static_assert(offsetof(CFindBuffer, block_) == 20);

static_assert(sizeof(CListItem) == 12);
static_assert(offsetof(CListItem, word_) == 4 && offsetof(CListItem, replacement_) == 8);

static_assert(sizeof(CListFile) == 28);
static_assert(offsetof(CListFile, items_) == 4 && offsetof(CListFile, current_) == 24);

static_assert(sizeof(CStrLex) == 32);
static_assert(offsetof(CStrLex, last_begin_) == 4 && offsetof(CStrLex, position_) == 8);
static_assert(offsetof(CStrLex, last_length_) == 12 && offsetof(CStrLex, picture_) == 16);
static_assert(offsetof(CStrLex, number_) == 20 && offsetof(CStrLex, text_) == 24);
static_assert(offsetof(CStrLex, token_) == 28);

static_assert(sizeof(CStrLine) == 16);
static_assert(offsetof(CStrLine, text_) == 4 && offsetof(CStrLine, end_) == 8);

static_assert(sizeof(KZQUEOBJ) == 20);
static_assert(offsetof(KZQUEOBJ, next) == 0 && offsetof(KZQUEOBJ, next_back) == 4);
static_assert(offsetof(KZQUEOBJ, id) == 8 && offsetof(KZQUEOBJ, did) == 10);
static_assert(offsetof(KZQUEOBJ, sequence) == 12 && offsetof(KZQUEOBJ, priority) == 14);
static_assert(offsetof(KZQUEOBJ, data) == 16);

static_assert(sizeof(KZQUE) == 8);
static_assert(offsetof(KZQUE, head) == 0 && offsetof(KZQUE, tail) == 4);

#endif
