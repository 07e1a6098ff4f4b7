// A reader of dictionary files that shares no code with the library: slow and obvious.
#ifndef KZ_TESTS_TOOLS_DICTIONARY_READER_H
#define KZ_TESTS_TOOLS_DICTIONARY_READER_H

#include <cstddef>
#include <string>
#include <vector>

struct ReadRecord {
  std::size_t position;  // of its line feed or count byte
  std::size_t count;     // characters taken over; 0 in plain files
  std::string stored;    // the text of the record
  std::string entry;     // the same with its shared text
};

struct ReadDictionary {
  int depth = 0;
  std::size_t letters = 0;
  bool packed = false;
  std::string shared;
  std::size_t data_offset = 0;
  std::size_t index_offset = 0;
  std::vector<ReadRecord> records;
  std::vector<std::size_t> cells;  // positions, npos for an empty cell (depth 2 and 3)
  std::vector<std::pair<unsigned, std::size_t>> keys;  // depth 5

  // The bounds of the block that a look-up of the word reads; equal when it has none.
  std::pair<std::size_t, std::size_t> block(const std::string& word) const;
};

ReadDictionary read_dictionary(const std::string& bytes);

#endif  // KZ_TESTS_TOOLS_DICTIONARY_READER_H
