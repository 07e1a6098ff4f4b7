// Opening, bytes, positions, duplicates and locks of ZCFile.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>
#include <vector>

#include "tests/common/foundation/fixture.h"

namespace {

using Places = std::vector<std::int64_t>;

// Each member's number in the table of virtual functions, as the C++ ABI of this system encodes it
// in a pointer to the member. Two destructors come first.
template <typename... Members>
void expect_slots_from_2_on(Members... members) {
  std::uintptr_t expected = 2, code;
  for (const void* member : {static_cast<const void*>(&members)...}) {
    std::memcpy(&code, member, sizeof code);
    EXPECT_EQ((code - 1) / sizeof(void*), expected++);
  }
}

TEST(FileLayout, VirtualFunctionsStandInTheirSlots) {
  expect_slots_from_2_on(
      &ZCFile::GetPosition, &ZCFile::GetFileName, &ZCFile::GetFileTitle, &ZCFile::GetFilePath,
      &ZCFile::SetFilePath, &ZCFile::Open, &ZCFile::Duplicate, &ZCFile::Seek, &ZCFile::SetLength,
      &ZCFile::GetLength, &ZCFile::Read, &ZCFile::Write, &ZCFile::WriteString,
      static_cast<char* (ZCFile::*)(ZCString&)>(&ZCFile::ReadString),
      static_cast<char* (ZCFile::*)(char*, unsigned int)>(&ZCFile::ReadString), &ZCFile::LockRange,
      &ZCFile::UnlockRange, &ZCFile::Abort, &ZCFile::Flush, &ZCFile::Close);
}

TEST_F(FileTest, CreationFlagsDecideOverExistingAndMissingFiles) {
  const struct {
    unsigned flags;
    bool opens_missing;
    const char* left_of_existing;
  } cases[] = {{0x0002, false, "old"}, {0x2002, false, "old"}, {0x1002, true, ""},
               {0x3002, true, "old"},  {0x1000, true, ""},     {0x1001, true, ""},
               {0x9041, true, ""}};
  for (const auto& c : cases) {
    const std::string missing = file("missing");
    {
      ZCFile f;
      EXPECT_EQ(f.Open(missing.c_str(), c.flags), c.opens_missing) << c.flags;
      EXPECT_EQ(f != -1, c.opens_missing);
      EXPECT_EQ(text(f.GetFilePath()), missing);
    }
    EXPECT_EQ(std::filesystem::remove(missing), c.opens_missing);
    EXPECT_NE(ZCFile(write("existing", "old").c_str(), c.flags), -1);
    EXPECT_EQ(read("existing"), c.left_of_existing) << c.flags;
  }
}

TEST_F(FileTest, AccessFlagsDecideOverReadingAndWriting) {
  const std::string name = write("a", "abc");
  for (unsigned access = 0; access < 4; ++access) {
    const bool writes = access == 1 || access == 2;
    ZCFile f(name.c_str(), access);
    char byte = 'x';
    EXPECT_EQ(f.Read(&byte, 1), access != 1 ? 1U : 0U);
    EXPECT_EQ(f.Write("b", 1), writes ? 1U : 0U);
    EXPECT_EQ(f.WriteString("c"), writes);
    EXPECT_EQ(f.Read(&byte, 0), 0U);
  }
}

TEST_F(FileTest, DirectoriesPipesAndReadOnlyFilesForWritingAreNotOpened) {
  const std::string pipe = file("pipe"), name = write("read-only", "text");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600) + chmod(name.c_str(), 0444), 0);
  EXPECT_EQ(ZCFile(directory().c_str(), 0), -1);
  for (const unsigned flags : {0U, 1U, 2U, 0x3000U}) EXPECT_EQ(ZCFile(pipe.c_str(), flags), -1);
  for (const unsigned flags : {1U, 2U, 0x1000U, 0x1002U})
    EXPECT_EQ(ZCFile(name.c_str(), flags), -1);
  EXPECT_EQ(read("read-only"), "text");
  EXPECT_NE(ZCFile(name.c_str(), 0x3000), -1);
  EXPECT_EQ(ZCFile(static_cast<const char*>(nullptr), 0), -1);
  EXPECT_NE(ZCFile("/dev/null", 0x0002), -1);
}

TEST_F(FileTest, OnlyFilesThatOpenOpenedAreClosedByTheDestructor) {
  int opened;
  int wrapped;
  {
    ZCFile f(write("a", "line").c_str(), 0x40);
    EXPECT_EQ(fcntl(opened = f, F_GETFD) & FD_CLOEXEC, 0);
    ZCFile g(wrapped = dup(opened));
    ZCString line;
    EXPECT_NE(g.ReadString(line), nullptr);
    const ZCFile not_inherited(file("a").c_str(), 0xC0);
    EXPECT_NE(fcntl(not_inherited, F_GETFD) & FD_CLOEXEC, 0);
  }
  EXPECT_EQ(fcntl(opened, F_GETFD), -1);
  EXPECT_EQ(close(wrapped), 0);
}

TEST_F(FileTest, SeekMovesFromAllOriginsAndStaysOnFailure) {
  ZCFile f(write("a", "0123456789").c_str(), 0x2);
  EXPECT_EQ((Places{f.Seek(4, 0), f.Seek(-3, 1), f.Seek(-1, 2)}), (Places{4, 1, 9}));
  for (const auto& [offset, origin] : {std::pair{-1, 0U}, {-10, 1U}, {-11, 2U}, {0, 3U}})
    EXPECT_EQ(f.Seek(offset, origin), -1);
  EXPECT_EQ((Places{f.GetLength(), f.GetPosition()}), (Places{10, 9}));
  EXPECT_EQ((Places{f.Seek(5, 2), f.SeekToEnd()}), (Places{15, 10}));
  f.SeekToBegin();
  char bytes[5] = {};
  EXPECT_EQ(f.ReadHuge(bytes, 1), 1U);
  f.WriteHuge("ab", 2);
  f.SeekToBegin();
  EXPECT_EQ(f.ReadHuge(bytes, 4), 4U);
  EXPECT_STREQ(bytes, "0ab3");
}

TEST_F(FileTest, PositionsReachToFourGigabytes) {
  ZCFile f(write("sparse", "").c_str(), 0x2);
  f.SetLength(0xFFFFFFF0);
  EXPECT_EQ((Places{f.GetLength(), f.GetPosition()}), (Places{0xFFFFFFF0, 0xFFFFFFF0}));
  EXPECT_EQ((Places{f.Seek(-1, 1), f.Seek(0x10, 2)}), (Places{-0x11, -1}));
  EXPECT_EQ(f.GetPosition(), 0xFFFFFFEFU);
  f.SetLength(3);
  EXPECT_EQ((Places{f.GetLength(), f.GetPosition()}), (Places{3, 3}));
  ZCFile none;
  EXPECT_EQ((Places{none.Seek(0, 0), none.GetPosition()}), (Places{-1, 0xFFFFFFFF}));
  EXPECT_EQ(none.Duplicate(), nullptr);
}

// The field after the handle: whether the destructor closes the file.
bool closes_on_delete(const ZCFile& file) {
  std::int32_t value;
  std::memcpy(&value, reinterpret_cast<const char*>(&file) + sizeof(void*) + 4, sizeof value);
  return value != 0;
}

TEST_F(FileTest, CloseEmptiesThePathAndAbortKeepsCloseOnDelete) {
  const std::string name = write("a", "");
  ZCFile f(name.c_str(), 0);
  for (const bool aborts : {false, true}) {
    EXPECT_TRUE(closes_on_delete(f));
    aborts ? f.Abort() : f.Close();
    EXPECT_EQ(closes_on_delete(f), aborts);
    EXPECT_EQ(f, -1);
    EXPECT_EQ(text(f.GetFilePath()), "");
    ASSERT_EQ(f.Open(name.c_str(), 0), 1);
    f.SetFilePath("elsewhere/b.txt");
    EXPECT_EQ(text(f.GetFileName()), "b.txt");
  }
}

TEST_F(FileTest, DuplicateSharesThePositionAndOutlivesTheOriginal) {
  const std::string name = write("a", "0123456789");
  ZCFile f(name.c_str(), 0);
  const int handle = f;
  std::unique_ptr<ZCFile> copy(f.Duplicate());
  ASSERT_NE(copy, nullptr);
  f.Seek(5, 0);
  EXPECT_EQ(copy->GetPosition(), 5U);
  EXPECT_EQ(text(copy->GetFilePath()), "");
  EXPECT_NE(fcntl(*copy, F_GETFD) & FD_CLOEXEC, 0);
  f.Close();
  EXPECT_EQ(fcntl(handle, F_GETFD), -1);
  EXPECT_EQ(copy->IsFileExist(""), 1);
  EXPECT_EQ(ZCFile().IsFileExist(name.c_str()), 0) << "the duplicate keeps the file to itself";
  copy.reset();
  EXPECT_EQ(ZCFile().IsFileExist(name.c_str()), 1);
}

// True when another handle could lock a byte for itself (F_WRLCK) or for reading (F_RDLCK).
bool can_lock(int handle, std::int64_t byte, short type) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  lock.l_start = byte;
  lock.l_len = 1;
  EXPECT_EQ(fcntl(handle, F_OFD_GETLK, &lock), 0);
  return lock.l_type == F_UNLCK;
}

TEST_F(FileTest, LockRangeLocksExactlyItsBytes) {
  const std::string name = write("a", "");
  ZCFile owner(name.c_str(), 0x42), other(name.c_str(), 0x42), reader(name.c_str(), 0x40);
  owner.LockRange(0, 0);
  EXPECT_TRUE(can_lock(other, 0, F_WRLCK));
  owner.LockRange(10, 5);
  for (int byte = 0; byte < 20; ++byte)
    EXPECT_EQ(can_lock(other, byte, F_RDLCK), byte < 10 || byte >= 15);
  owner.UnlockRange(10, 5);
  EXPECT_TRUE(can_lock(other, 12, F_WRLCK));
  reader.LockRange(3, 1);
  EXPECT_TRUE(can_lock(other, 3, F_RDLCK));
  EXPECT_FALSE(can_lock(other, 3, F_WRLCK));
  // The highest range: it forbids no open.
  owner.LockRange(0xFFFFFFFF, 0xFFFFFFFF);
  EXPECT_NE(ZCFile(name.c_str(), 0x42), -1);
  EXPECT_FALSE(can_lock(other, 0x1FFFFFFFDLL, F_RDLCK));
  EXPECT_TRUE(can_lock(other, 0x1FFFFFFFELL, F_RDLCK));
}

}  // namespace
