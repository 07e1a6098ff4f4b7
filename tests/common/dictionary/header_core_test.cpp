// Acceptance and upgrade of headers as a dictionary open sees them.
#include <gtest/gtest.h>

#include <string>

#include "dictionary/header.h"
#include "tests/common/dictionary/scratch_file.h"

using namespace kz::test;

namespace {

constexpr std::uint64_t kFileLength = 1000;

std::optional<kz::Header> accept(Bytes& bytes, std::uint64_t length = kFileLength) {
  return kz::accept_header(kz::HeaderBytes(bytes.data(), kz::kHeaderSize), length);
}

TEST(AcceptHeader, DecodesTheCurrentLayout) {
  Bytes bytes = sample_header();
  put_text(bytes, 56, "ENRUxCx");  // texts that the file does not terminate
  const auto header = accept(bytes);
  ASSERT_TRUE(header);
  EXPECT_STREQ(header->language.data(), "ENRU");
  EXPECT_STREQ(header->type.data(), "C");
  EXPECT_EQ(header->password[1], 0x82);
  EXPECT_EQ(header->property, 0x52);
  EXPECT_EQ(header->format_version, 0x0310);
  EXPECT_EQ(header->index_depth, 3);
  EXPECT_EQ(header->alphabet_size, 26);
  EXPECT_EQ(header->index_offset, 500);
  EXPECT_EQ(header->data_offset, 0x9Au);
  EXPECT_EQ(header->file_size, 1000u);
  EXPECT_EQ(static_cast<std::uint32_t>(header->time_stamp), 0x81020304u);
  EXPECT_EQ(header->reserved2, 0xA1A2A3A4u);
  EXPECT_EQ(header->checksum, 0xB1B2);
  EXPECT_EQ(header->packing, 3);
  EXPECT_EQ(header->shared_offset, 0xC1C2C3C4u);
  EXPECT_EQ(header->index_count, 0x71727374);
  EXPECT_EQ(header->shared_size, 0xD1D2D3D4u);
}

TEST(UpgradeHeader, MovesEveryFieldOfTheFirstGeneration) {
  Bytes bytes = first_generation_header();
  const auto header = accept(bytes, 900);
  ASSERT_TRUE(header);
  Bytes expected(154, 0);
  put_text(expected, 0, "KZ Dictionary 3.00 (C) 1997-1998 Corvane    ");
  put_text(expected, 48, "OLDLABELENRU");
  put_text(expected, 61, "C");
  put_text(expected, 63, "Old title");
  put(expected, {{103, 1, 0x61},
                 {112, 1, 0x62},
                 {113, 2, 256},
                 {115, 2, 2},
                 {117, 2, 26},
                 {119, 4, 600},
                 {123, 4, 124},
                 {127, 4, 900},
                 {131, 4, 0x12345678},
                 {135, 4, 0x9ABCDEF0}});
  EXPECT_EQ(bytes, expected);
  EXPECT_EQ(header->data_offset, 124u);
}

TEST(UpgradeHeader, TellsLanguageAndTypeFromTheTwoLetters) {
  const struct {
    std::string letters;
    const char *language, *type;
  } cases[] = {{"ER", "ENRU", "C"},
               {"RE", "RUEN", "C"},
               {std::string("E\0", 2), "EN", "G"},
               {std::string("R\0", 2), "RU", "G"},
               {"EE", "", ""},
               {"er", "", ""},
               {std::string("\0E", 2), "", ""}};
  for (const auto& c : cases) {
    Bytes bytes = first_generation_header();
    put_text(bytes, 48, c.letters);
    const auto header = accept(bytes);
    ASSERT_TRUE(header);
    EXPECT_STREQ(header->language.data(), c.language);
    EXPECT_STREQ(header->type.data(), c.type);
  }
}

TEST(AcceptHeader, RefusesDamagedSignaturesOtherVersionsAndSizes) {
  // Padding is no part of a signature; the second generation stays as it is.
  const std::pair<Bytes, std::size_t> generations[] = {
      {sample_header(), 44}, {second_generation_header(), 44}, {first_generation_header(), 40}};
  for (const auto& [header, signature] : generations) {
    Bytes sound = header;
    EXPECT_TRUE(accept(sound));
    EXPECT_EQ(sound == header, signature == 44);
    for (std::size_t i = 0; i < 48; ++i) {
      Bytes bytes = header;
      if (header[0] == 'Q' && i >= 44) break;  // the label
      bytes[i] = static_cast<std::uint8_t>(bytes[i] ^ (i % 2 == 0 ? 0x20 : 1));
      EXPECT_EQ(accept(bytes).has_value(), i >= signature) << i;
    }
  }
  const struct {
    Number field;
    std::uint64_t length;
  } bad[] = {{{100, 2, 0}, 1000},      {{100, 2, 255}, 1000}, {{100, 2, 257}, 1000},
             {{100, 2, 0x8100}, 1000}, {{106, 4, 124}, 1000}, {{98, 1, 0}, 899}};
  for (const auto& [field, length] : bad) {
    Bytes bytes = first_generation_header();
    put(bytes, {field});
    EXPECT_FALSE(accept(bytes, length)) << field.at << ' ' << field.value;
  }
}

}  // namespace
