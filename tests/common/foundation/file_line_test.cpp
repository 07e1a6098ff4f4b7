// The line readers of ZCFile against a reader that takes byte by byte.
#include <unistd.h>

#include <cstring>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <thread>

#include "tests/common/foundation/fixture.h"

namespace {

// One line of `data` from `position` on, which moves after it; nothing at the end. With a limit,
// the byte read when so many characters are stored ends the line whatever it is.
std::optional<std::string> next_line(const std::string& data, std::size_t& position,
                                     std::size_t limit = std::string::npos) {
  if (position == data.size()) return std::nullopt;
  std::string line;
  while (position < data.size()) {
    const char ch = data[position++];
    if (line.size() >= limit || ch == '\n') break;
    line += ch;
  }
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

std::string random_text(std::mt19937& random, std::size_t size) {
  static constexpr char characters[] = {'\n', '\r', '\0', 'a', 'b', 'c', 'd', '\xFF'};
  // A line feed every few bytes or every few thousand.
  std::geometric_distribution<int> run(1.0 / static_cast<double>(1U << random() % 13));
  std::string text;
  while (text.size() < size) {
    const auto length = static_cast<std::size_t>(run(random));
    for (std::size_t i = 0; i < length; ++i) text += characters[1 + random() % 7];
    if (random() % 4 == 0) text += '\r';
    text += '\n';
  }
  text.resize(size);
  return text;
}

std::optional<std::string> read_line(ZCFile& file) {
  ZCString line("left over");
  const char* const result = file.ReadString(line);
  EXPECT_EQ(result, result != nullptr ? static_cast<const char*>(line) : nullptr);
  EXPECT_EQ(line[line.GetLength()], '\0');
  if (result != nullptr) return text(line);
  EXPECT_EQ(line.GetLength(), 0);
  return std::nullopt;
}

// Checks as well that nothing after the line is touched; a line feed may be there.
std::optional<std::string> read_line(ZCFile& file, unsigned limit, std::size_t expected_size) {
  std::string buffer(limit + 3, '#');
  if (file.ReadString(buffer.data(), limit) == nullptr) return std::nullopt;
  EXPECT_EQ(buffer.find_first_not_of('#', expected_size + 2), std::string::npos);
  EXPECT_EQ(buffer.back(), '#');
  EXPECT_EQ(buffer[expected_size], '\0');
  return buffer.substr(0, expected_size);
}

using LineTest = FileTest;

// Reads a whole file by both readers in random turns, from `first` and `second` in random turns.
void compare(ZCFile& first, ZCFile& second, const std::string& data, bool seekable,
             std::mt19937& random) {
  std::optional<std::string> expected = "";
  for (std::size_t position = 0; expected;) {
    ZCFile& f = random() % 2 == 0 ? first : second;
    if (random() % 2 == 0) {
      expected = next_line(data, position);
      ASSERT_EQ(read_line(f), expected) << "line up to " << position;
    } else {
      const auto limit = static_cast<unsigned>(random() % (random() % 3 == 0 ? 4 : 3000));
      expected = next_line(data, position, limit);
      ASSERT_EQ(read_line(f, limit, expected.value_or("").size()), expected) << position;
    }
    ASSERT_TRUE(!seekable || f.GetPosition() == position) << position;
  }
}

TEST_F(LineTest, ReadersAgreeWithByteByByteReadingOnFilesAndDuplicates) {
  std::mt19937 random(1);
  for (int round = 0; round < 200; ++round) {
    const std::string data = random_text(random, random() % 9000);
    ZCFile f(write("lines", data).c_str(), 0);
    const std::unique_ptr<ZCFile> duplicate(f.Duplicate());
    compare(f, *duplicate, data, true, random);
  }
}

TEST_F(LineTest, ReadersTakeNothingBehindTheLineFromAPipe) {
  std::mt19937 random(2);
  for (int round = 0; round < 20; ++round) {
    const std::string data = random_text(random, random() % 9000);
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    std::thread writer([&] {
      EXPECT_EQ(::write(ends[1], data.data(), data.size()), static_cast<ssize_t>(data.size()));
      close(ends[1]);
    });
    ZCFile f(ends[0]);
    compare(f, f, data, false, random);
    writer.join();
    close(ends[0]);
  }
}

TEST_F(LineTest, LinesAroundTheStepsOfTheReservedRoom) {
  for (const int size : {1, 127, 128, 129, 255, 256, 1023, 1024, 1025, 5000}) {
    for (const char* const end : {"", "\n", "\r\n"}) {
      const std::string line(static_cast<std::size_t>(size), 'x');
      const int stored = size + (*end == '\r' ? 1 : 0);
      ZCString read;
      ASSERT_NE(ZCFile(write("line", line + end).c_str(), 0).ReadString(read), nullptr);
      EXPECT_EQ(text(read), line);
      EXPECT_EQ(read.GetAllocLength(), (stored + 127) / 128 * 128) << stored;
    }
  }
}

TEST_F(LineTest, LineThatFitsIsReadWithItsEndAndALongerOneLosesACharacter) {
  ZCFile f(write("a", "abc\nde\nabcd\n\nxyz").c_str(), 0);
  for (const char* const expected : {"abc", "de", "abc", "", "", "xyz"})
    EXPECT_EQ(read_line(f, 3, std::strlen(expected)), expected);
}

}  // namespace
