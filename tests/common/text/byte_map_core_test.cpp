// Every vector code that this processor runs translates as the table says.
#include "text/byte_map.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/common/text/reference.h"
#include "tests/common/text/text_at_page_end.h"
#include "text/byte_map_vector.h"
#include "text/case_maps.h"
#include "text/conversions.h"

namespace kz {
namespace {

// A map that moves every code that may move.
consteval ByteMap scrambled() {
  ByteMap map = identity_map();
  for (std::size_t c = 64; c < 256; ++c) map[c] = static_cast<unsigned char>(c * 167 + 31);
  return map;
}

constexpr Translation scramble{scrambled()};

TEST(VectorCode, TranslatesEveryLengthInPlaceWithoutReachingOutside) {
  kz_test::GuardedMemory memory(32768);
  for (const VectorCode code : {VectorCode::none, VectorCode::avx2, VectorCode::avx512}) {
    if (code > best_vector_code()) continue;
    for (const Translation* translation :
         {&scramble, &kRuAnsiToOem, &kOemToAnsi, &kRuAnsiCase.upper, &kAnsiCase.lower}) {
      for (const std::size_t size : kz_test::interesting_sizes()) {
        const std::string text = kz_test::random_text(size, static_cast<unsigned>(size));
        char* bytes = text.copy(memory.last(size), size) == size ? memory.last(size) : nullptr;
        const std::size_t done = translate_vectors(code, bytes, bytes, size, *translation);
        ASSERT_LE(done, size);
        for (std::size_t i = 0; i < size; ++i) {
          const auto wanted = i < done ? static_cast<char>((*translation)[text[i]]) : text[i];
          ASSERT_EQ(bytes[i], wanted) << static_cast<int>(code) << ' ' << size << ' ' << i;
        }
      }
    }
  }
}

TEST(Translate, GoesOnBehindZeroBytes) {
  std::string text = std::string(100, 'a') + '\0' + "b";
  translate(text.data(), text.data(), text.size(), kAsciiCase.upper);
  EXPECT_EQ(text, std::string(100, 'A') + '\0' + "B");
}

}  // namespace
}  // namespace kz
