// The text step of the mapping within a buffer of known size.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "grammar/map_bounded.h"
#include "kz/gram_map.h"

namespace {

TEST(RestOfTranslationWithin, IsAppendedWholeOrNotAtAll) {
  for (const char* rest : {"abc", "2abcd", ""}) {
    const std::string wanted = std::string("xy") + (*rest == 'a' ? "1" : "") + rest;
    for (std::size_t room = 1; room <= wanted.size() + 2; ++room) {
      std::uint8_t record[WORD_RECORD_SIZE] = {};
      const WordRecordView view(record);
      std::vector<char> buffer(room);
      std::memcpy(buffer.data(), "xy", std::min<std::size_t>(room, 3));
      view.set_text_buffer(buffer.data());
      view.level() = 5;
      GRAMINFO gram{};
      gram.word[1] = GRAM_PLURAL;
      view.set_foreign_gram(gram);

      EXPECT_EQ(kz::re_set_egram_within(record, 'I', rest, room), room > wanted.size());
      EXPECT_EQ(view.number(), 1);
      if (room > 2) {
        EXPECT_STREQ(buffer.data(), room > wanted.size() ? wanted.c_str() : "xy");
      }
    }
  }
}

}  // namespace
