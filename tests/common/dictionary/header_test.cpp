// Headers of closed dictionaries: reading, refusing, rewriting, passwords, checksum.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "kz/dic_header.h"
#include "kz/file.h"
#include "tests/common/dictionary/scratch_file.h"

using namespace kz::test;

namespace {

constexpr std::size_t kFileLength = 1000;

std::uint16_t open_result(const Bytes& file_bytes) {
  const ScratchFile file(file_bytes);
  DicHeader header;
  const std::uint16_t result = DicHeaderOpen(file.path(), &header, nullptr);
  EXPECT_EQ(kz_dict_dic_errno(), result);
  return result;
}

TEST(DicHeaderOpen, GivesTheHeaderAsItStandsInTheFileAndItsTime) {
  const Bytes bytes = padded(sample_header(), kFileLength);
  const ScratchFile file(bytes);
  ZCFileStatus status;
  ASSERT_TRUE(ZCFile().GetStatus(file.path(), status));
  DicHeader header;
  std::int32_t time = 0;
  ASSERT_EQ(DicHeaderOpen(file.path(), &header, &time), DIC_OK);
  ASSERT_EQ(sizeof header, 154u);
  EXPECT_EQ(std::memcmp(&header, bytes.data(), sizeof header), 0);
  EXPECT_EQ(time, status.modification_time.GetTime());
}

TEST(DicHeaderOpen, RefusesDamagedSignaturesOtherGenerationsAndCutHeaders) {
  const Bytes good = padded(sample_header(), kFileLength);
  for (const std::size_t i : {0, 20, 43, 44, 47}) {
    Bytes damaged = good;
    damaged[i] ^= 1;
    EXPECT_EQ(open_result(damaged), DIC_ERR_FORMAT) << i;
  }
  EXPECT_EQ(open_result(padded(first_generation_header(), kFileLength)), DIC_ERR_FORMAT);
  EXPECT_EQ(open_result(padded(second_generation_header(), kFileLength)), DIC_ERR_FORMAT);
  Bytes small = sample_header();
  put(small, {{119, 4, 0}, {127, 4, 0}});
  EXPECT_EQ(open_result(small), DIC_OK);
  small.pop_back();
  EXPECT_EQ(open_result(small), DIC_ERR_FORMAT);
  EXPECT_EQ(open_result({}), DIC_ERR_FORMAT);
}

TEST(DicHeaderOpen, ChecksSizesAgainstTheFile) {
  const struct {
    std::uint32_t index_offset, file_size;
    std::uint16_t result;
  } cases[] = {
      {0, 1000, DIC_OK},           {154, 0, DIC_OK},
      {1000, 1000, DIC_OK},        {1, 1000, DIC_ERR_FORMAT},
      {153, 1000, DIC_ERR_FORMAT}, {1001, 0, DIC_ERR_FORMAT},
      {500, 999, DIC_OK},          {0xFFFFFFFF, 1000, DIC_ERR_FORMAT},
      {500, 1001, DIC_ERR_FORMAT}, {500, 0x80000000, DIC_ERR_FORMAT},
  };
  for (const auto& c : cases) {
    Bytes bytes = padded(sample_header(), kFileLength);
    put(bytes, {{119, 4, c.index_offset}, {127, 4, c.file_size}});
    EXPECT_EQ(open_result(bytes), c.result) << c.index_offset << " " << c.file_size;
  }
}

TEST(DicHeaderOpen, WithoutABufferOnlyTestsThatTheFileOpens) {
  const ScratchFile no_dictionary(Bytes{'x'}), missing;
  std::int32_t time = 7;
  EXPECT_EQ(DicHeaderOpen(no_dictionary.path(), nullptr, &time), DIC_OK);
  EXPECT_EQ(time, 7);
  DicHeader header;
  EXPECT_EQ(DicHeaderOpen(missing.path(), &header, nullptr), DIC_ERR_FILE);
  EXPECT_EQ(kz_dict_dic_errno(), DIC_ERR_FILE);
  EXPECT_EQ(kz_dict_errno(), ENOENT);
  EXPECT_EQ(DicHeaderOpen(nullptr, &header, nullptr), DIC_ERR_FILE);
}

TEST(DicHeaderSetProperties, ChangesOnlyTheGivenFields) {
  const Bytes before = padded(sample_header(), kFileLength);
  const ScratchFile file(before);

  ASSERT_EQ(DicHeaderSetProperties(file.path(), nullptr, nullptr, 0, nullptr), DIC_OK);
  EXPECT_EQ(file.read(), before);

  const std::string title(50, 't');
  ASSERT_EQ(DicHeaderSetProperties(file.path(), title.c_str(), "new", 0x1234, "pw"), DIC_OK);
  Bytes expected = before;
  put_text(expected, 63, std::string(40, 't'));
  put_text(expected, 48, std::string("new\0\0\0\0\0", 8));
  expected[112] = 0x34;
  DicPwSet(&expected[104], "pw");
  EXPECT_EQ(file.read(), expected);

  ASSERT_EQ(DicHeaderSetProperties(file.path(), "", "123456789", 0x100, ""), DIC_OK);
  put_text(expected, 63, std::string(40, '\0'));
  put_text(expected, 48, "12345678");
  put_text(expected, 104, std::string(8, '\0'));
  expected[112] = 0;
  EXPECT_EQ(file.read(), expected);
}

TEST(DicHeaderSetProperties, LeavesWhatItCannotRewriteAlone) {
  Bytes damaged = padded(sample_header(), kFileLength);
  damaged[0] = 'x';
  const ScratchFile file(damaged);
  EXPECT_EQ(DicHeaderSetProperties(file.path(), "title", "label", 1, "pw"), DIC_ERR_FORMAT);
  EXPECT_EQ(file.read(), damaged);

  // Somebody reads the file and lets nobody write.
  const Bytes good = padded(sample_header(), kFileLength);
  file.write(good);
  ZCFile reader;
  ASSERT_TRUE(reader.Open(file.path(), 0x8020));
  EXPECT_EQ(DicHeaderSetProperties(file.path(), "title", "label", 1, "pw"), DIC_ERR_FILE);
  EXPECT_EQ(kz_dict_dic_errno(), DIC_ERR_FILE);
  EXPECT_NE(kz_dict_errno(), 0);
  EXPECT_EQ(file.read(), good);
}

TEST(DicPassword, IsShiftedByTheKeyAndItsPlace) {
  for (const std::string password : {"", "a", "secret", "8letters", "more than eight"}) {
    const std::string kept = password.substr(0, 8);
    std::uint8_t field[8];
    std::memset(field, 0xEE, sizeof field);
    DicPwSet(field, password.c_str());
    char padded_password[8] = {};
    kept.copy(padded_password, 8);
    for (unsigned i = 0; i < 8; ++i) {
      const unsigned shifted = static_cast<unsigned char>(padded_password[i]) + 0x7E + i;
      EXPECT_EQ(field[i], i < kept.size() ? shifted & 0xFF : 0u) << password << i;
    }
    char out[9] = "????????";
    EXPECT_EQ(DicPwGet(field, out), out);
    EXPECT_EQ(std::memcmp(out, padded_password, 8), 0);
    EXPECT_EQ(out[8], 0);
    EXPECT_EQ(DicPwCmp(field, padded_password), 1);
    padded_password[7] ^= 1;
    EXPECT_EQ(DicPwCmp(field, padded_password), 0);
  }
  std::uint8_t field[8];
  DicPwSet(field, "a\x81zz");  // 0x81 + the key + 1 is 256
  EXPECT_EQ(field[1], 0);
  char out[8];
  DicPwGet(field, out);
  EXPECT_EQ(std::string(out, 3), std::string("a\0", 2) + static_cast<char>(field[2]));
}

TEST(DicChecksum, SumsAllBytesButTheLastTwo) {
  DicHeader header;
  const auto sum_of = [&](const Bytes& bytes) {
    std::memcpy(&header, bytes.data(), sizeof header);
    return kz_dict_set_csd(&header);
  };
  Bytes bytes(154, 0xFF);
  EXPECT_EQ(sum_of(bytes), 152 * 255);
  bytes[151] = bytes[152] = bytes[153] = 0;
  EXPECT_EQ(sum_of(bytes), 151 * 255);
  // The field is summed too, so a writer looks for a value that agrees with itself.
  bytes.assign(154, 0);
  bytes[0] = 0xFF;
  bytes[139] = bytes[140] = 0x01;
  EXPECT_EQ(sum_of(bytes), 0x101);
  EXPECT_EQ(kz_dict_chk_csd(&header), 1);
  bytes[0] = 0;
  sum_of(bytes);
  EXPECT_EQ(kz_dict_chk_csd(&header), 0);
}

}  // namespace
