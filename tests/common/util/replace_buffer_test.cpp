// Replacement buffers: files, lines and limits, and replacement beside a slow model.
#include "kz/replace_buffer.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "kz/file.h"
#include "tests/support/temp_dir.h"
#include "tests/support/unprivileged.h"
#include "text/literal.h"

using kz::operator""_1251;

namespace {

// A listed word, its replacement, and which of the two kinds of line it is.
struct Line {
  std::string word;
  std::string replacement;
  bool replaces;
};

std::string slow_change(const std::vector<Line>& lines, const std::string& source) {
  std::string result;
  std::size_t at = 0;
  while (at < source.size()) {
    bool again = true;
    while (again) {
      again = false;
      for (const Line& line : lines) {
        if (line.word.empty() || source.compare(at, line.word.size(), line.word) != 0) continue;
        at += line.word.size();
        if (!line.replaces) continue;
        result += line.replacement;
        again = true;
        break;
      }
    }
    if (at < source.size()) result += source[at++];
  }
  return result;
}

std::string change(CFindBuffer& buffer, const std::string& source) {
  std::vector<char> output(source.size() * 64 + 1);
  EXPECT_EQ(ChangeWord(&buffer, source.c_str(), output.data()), output.data());
  return output.data();
}

class ReplaceBufferTest : public testing::Test {
 protected:
  std::string write(const std::string& name, std::string_view contents) const {
    return dir_.write(name, contents);
  }
  std::string read(const std::string& name) const { return dir_.read(name); }

  kz::test::TempDir dir_;
  CFindBuffer buffer_{0};
  std::array<char, 16100> out_{};
};

TEST_F(ReplaceBufferTest, WordsAreFoundAndReplacedByTheirLines) {
  const std::string path = write("list.txt", U"кот=кошка\r\nпёс\nx=1=2\r\ne=\r\n \t\r\n"_1251);
  buffer_.SetModified(7);
  ASSERT_EQ(buffer_.Load(path.c_str()), 0);
  EXPECT_EQ(buffer_.GetModified(), 0);
  EXPECT_EQ(buffer_.GetBuffer(), U"\r\nкот=кошка\r\nпёс\nx=1=2\r\ne=\r\n"_1251);

  const char* position = buffer_.Replace(U"кот"_1251.data(), out_.data());
  EXPECT_EQ(out_.data(), U"кошка"_1251);
  EXPECT_EQ(position, buffer_.GetBuffer() + 6);
  EXPECT_STREQ((buffer_.Replace("x", out_.data()), out_.data()), "1=2");
  EXPECT_EQ(buffer_.Replace("e", out_.data()),
            buffer_.GetBuffer() + strlen(buffer_.GetBuffer()) - 2);
  EXPECT_STREQ(out_.data(), "");
  EXPECT_EQ(buffer_.GetCorrected(), 3);
  EXPECT_EQ(buffer_.Replace("ko", out_.data()), nullptr);
  EXPECT_EQ(buffer_.Replace("", out_.data()), nullptr);
  EXPECT_EQ(buffer_.Replace(nullptr, nullptr), nullptr);
  EXPECT_EQ(buffer_.GetCorrected(), 3);
  buffer_.SetCorrected(-8);
  buffer_.Replace("x", out_.data());
  EXPECT_EQ(buffer_.GetCorrected(), -7);

  ASSERT_EQ(buffer_.SetBuffer("ab\r\nabc=d\r\nlast"), 1);
  const char* text = buffer_.GetBuffer();
  EXPECT_EQ(buffer_.Find("ab"), 1);
  EXPECT_EQ(buffer_.Find("abc"), 0);
  EXPECT_EQ(buffer_.Find("last"), 0);  // not ended
  EXPECT_EQ(buffer_.Find("abc", 0), nullptr);
  EXPECT_EQ(buffer_.Find("ab", 1), nullptr);
  EXPECT_EQ(buffer_.Find("abc", 1), text + 6);
  EXPECT_EQ(buffer_.Find("abc", 2), text + 6);
  EXPECT_EQ(buffer_.Find("la", -1), text + 13);
  EXPECT_EQ(FindWordInBuffer(text, nullptr, 0), nullptr);
  EXPECT_EQ(FindWordInBuffer(text, "", 2), nullptr);
  EXPECT_EQ(FindWordInBuffer(nullptr, "ab", 0), nullptr);
  EXPECT_EQ(FindWordInBuffer("ab\r\n", "ab", 2), nullptr);  // no line feed in front
  const std::string longest(250, 'w');
  const std::string line = '\n' + longest + "w=";
  EXPECT_EQ(FindWordInBuffer(line.c_str(), longest.c_str(), 2), line.c_str() + 1);
  EXPECT_EQ(FindWordInBuffer(line.c_str(), (longest + 'w').c_str(), 2), nullptr);
}

TEST_F(ReplaceBufferTest, LinesAreReadAtPositionsAndOneByOne) {
  EXPECT_EQ(buffer_.First(out_.data()), nullptr);
  EXPECT_EQ(buffer_.Next(out_.data()), nullptr);
  buffer_.SetBuffer("\r\na\r\n=b\r\n\r\nc=d=e");
  EXPECT_EQ(buffer_.Next(out_.data()), out_.data());  // behind the first line
  EXPECT_STREQ(out_.data(), "");
  for (int round = 0; round < 2; ++round) {
    EXPECT_STREQ(buffer_.First(out_.data()), "a");
    EXPECT_STREQ(buffer_.Next(out_.data()), "");
    EXPECT_STREQ(buffer_.Next(out_.data()), "");
    buffer_.Concat("f");  // an iteration goes on
    EXPECT_STREQ(buffer_.Next(out_.data()), "c");
    EXPECT_EQ(buffer_.Next(out_.data()), nullptr);
    EXPECT_STREQ(out_.data(), "");
    EXPECT_EQ(buffer_.Next(out_.data()), nullptr);
  }
  buffer_.Clear();
  EXPECT_EQ(buffer_.First(out_.data()), nullptr);

  std::strcpy(out_.data(), "old");
  EXPECT_EQ(buffer_.GetWordFor("", out_.data()), nullptr);
  EXPECT_EQ(buffer_.GetWordFor("\n", out_.data()), nullptr);
  EXPECT_STREQ(buffer_.GetWordFor(nullptr, out_.data()), "old");
  EXPECT_STREQ(buffer_.GetWordFor("\nab=c\r", out_.data()), "ab");
  EXPECT_STREQ(buffer_.GetWordFor("\n\nab", out_.data()), "\nab");
  const char* const text = "ab\r\nc=d=e\r\n";
  EXPECT_EQ(buffer_.GetWordTo(text, out_.data()), text + 6);
  EXPECT_STREQ(out_.data(), "d=e");
  EXPECT_EQ(buffer_.GetWordTo(text, nullptr), text + 6);
  EXPECT_EQ(buffer_.GetWordTo("ab", out_.data()), nullptr);
  EXPECT_STREQ(out_.data(), "");
  EXPECT_EQ(buffer_.GetWordTo(nullptr, out_.data()), nullptr);
}

TEST_F(ReplaceBufferTest, BlocksGrowUpToTheLimitOfTheText) {
  const auto text = [&] { return std::string(buffer_.GetBuffer()); };
  for (const std::uint16_t size : std::array<std::uint16_t, 5>{1, 4, 100, 0, 65535}) {
    EXPECT_EQ(buffer_.Free(), 0);
    EXPECT_EQ(buffer_.Find("a"), 0);
    EXPECT_EQ(buffer_.Allocate(size), 1);
    EXPECT_EQ(text(), "\r\n");
    const std::string half(8000, 'h');
    EXPECT_EQ(buffer_.SetBuffer(std::string(16000, 'x').c_str()), 0);
    EXPECT_EQ(buffer_.SetBuffer(nullptr), 0);
    EXPECT_EQ(buffer_.GetModified(), 0);
    EXPECT_EQ(buffer_.SetBuffer(half.c_str()), 1);
    EXPECT_EQ(buffer_.GetModified(), 1);
    EXPECT_EQ(buffer_.Allocate(100), 1);
    EXPECT_EQ(text(), "\r\n" + half);
    // The text, the word, "=" and the replacement reach 16,000, or stay one below.
    EXPECT_EQ(buffer_.Add("w", std::string(7996, 'r').c_str()), 0);
    EXPECT_EQ(buffer_.Add("w", std::string(7995, 'r').c_str()), 1);
    EXPECT_EQ(text(), "\r\n" + half + "w=" + std::string(7995, 'r') + "\r\n");
    EXPECT_EQ(buffer_.Add("x"), 0);
    EXPECT_EQ(buffer_.Concat("x"), 0);

    EXPECT_EQ(buffer_.SetBuffer(std::string(15999, 'x').c_str()), 1);
    EXPECT_EQ(text().size(), 16001u);
    // A text of the buffer itself.
    EXPECT_EQ(buffer_.SetBuffer(buffer_.GetBuffer() + 15000), 1);
    EXPECT_EQ(text(), "\r\n" + std::string(1001, 'x'));
  }
}

TEST_F(ReplaceBufferTest, AddAppendsWordsThatAreNotListed) {
  EXPECT_EQ(buffer_.Add(nullptr), 0);
  EXPECT_EQ(buffer_.Add(""), 0);
  EXPECT_EQ(buffer_.Add(" \t\r\n"), 0);
  EXPECT_EQ(buffer_.Add(nullptr, "x"), 0);
  EXPECT_EQ(buffer_.Concat(nullptr), 0);
  EXPECT_EQ(buffer_.Concat(""), 0);
  EXPECT_EQ(buffer_.Concat(std::string(512, 'x').c_str()), 0);
  EXPECT_EQ(buffer_.Add(std::string(255, 'x').c_str()), 0);
  const std::string longest(254, 'x');
  EXPECT_EQ(buffer_.Add(longest.c_str()), 1);
  EXPECT_EQ(buffer_.Add(longest.c_str()), 1);
  EXPECT_EQ(buffer_.Add(longest.c_str(), "replaced"), 1);
  EXPECT_EQ(buffer_.Add("a", "b"), 1);
  EXPECT_EQ(buffer_.Add("a", nullptr), 1);
  EXPECT_EQ(buffer_.Concat(std::string(511, 'c').c_str()), 1);
  EXPECT_EQ(buffer_.GetBuffer(), "\r\n" + longest + "\r\na=b\r\na=\r\n" + std::string(511, 'c'));
  EXPECT_EQ(buffer_.GetModified(), 0);
  const std::string wide(300, 'w');
  EXPECT_EQ(buffer_.SetBuffer((wide + '=' + wide + "1\r\n").c_str()), 1);
  EXPECT_NE(buffer_.Replace(wide.c_str(), out_.data()), nullptr);
  EXPECT_EQ(out_.data(), wide + '1');
}

TEST_F(ReplaceBufferTest, FilesAreReadWhole) {
  const std::string path = dir_.file("list.txt");
  EXPECT_EQ(LoadBuffer(nullptr, out_.data()), 196);
  EXPECT_EQ(LoadBuffer(path.c_str(), nullptr), 196);
  EXPECT_EQ(LoadBuffer(path.c_str(), out_.data()), 195);
  EXPECT_EQ(LoadBuffer(dir_.file("").c_str(), out_.data()), 195);
  out_.fill('?');
  write("list.txt", "a=b\r\n");
  EXPECT_EQ(LoadBuffer(path.c_str(), out_.data()), 0);
  EXPECT_EQ(std::string_view(out_.data(), 8), std::string_view("a=b\r\n\0\0?", 8));

  const auto load = [&](const std::string& contents) {
    return buffer_.Load(write("list.txt", contents).c_str());
  };
  buffer_.SetModified(5);
  buffer_.Add("old");
  for (const std::string& refused :
       {std::string(16000, 'x'), std::string("a\r\n\0b\r\n", 7), std::string("a\r\n\0", 4)}) {
    EXPECT_EQ(load(refused), 202);
    EXPECT_STREQ(buffer_.GetBuffer(), "\r\n");
  }
  buffer_.Add("old");
  EXPECT_EQ(buffer_.Load(dir_.file("none").c_str()), 195);
  EXPECT_STREQ(buffer_.GetBuffer(), "\r\n");
  EXPECT_EQ(buffer_.Load(nullptr), 196);
  EXPECT_EQ(buffer_.GetModified(), 5);
  for (const char* blank : {"", "\r\n", " \t\n\r\n"}) {
    EXPECT_EQ(load(blank), 0);
    EXPECT_STREQ(buffer_.GetBuffer(), "\r\n");
  }

  // With a line end up to 15,999 characters: longer texts keep the one that they lack.
  for (const std::size_t length : {1, 15996, 15997, 15998, 15999}) {
    const std::string line(length, 'x');
    ASSERT_EQ(load(line), 0);
    const std::string text = buffer_.GetBuffer();
    EXPECT_EQ(text, "\r\n" + line + (length <= 15997 ? "\r\n" : ""));
    ASSERT_EQ(buffer_.Save(path.c_str()), 0);
    ASSERT_EQ(buffer_.Load(path.c_str()), 0);
    EXPECT_EQ(buffer_.GetBuffer(), text);
  }
}

TEST_F(ReplaceBufferTest, FilesAreWrittenInOneStep) {
  const std::string path = dir_.file("list.txt");
  EXPECT_EQ(SaveBuffer(nullptr, ""), 196);
  EXPECT_EQ(SaveBuffer(path.c_str(), nullptr), 196);
  EXPECT_EQ(SaveBuffer(dir_.file("").c_str(), "a"), 195);
  EXPECT_EQ(SaveBuffer(dir_.file("none/list.txt").c_str(), "a"), 195);
  EXPECT_EQ(buffer_.Save(path.c_str()), 196);
  EXPECT_FALSE(std::filesystem::exists(path));

  buffer_.SetBuffer("\r\n \r\na=b\r\n");
  EXPECT_EQ(buffer_.Save(path.c_str()), 0);
  EXPECT_EQ(read("list.txt"), "a=b\r\n");
  EXPECT_EQ(buffer_.GetModified(), 0);

  buffer_.SetBuffer("new");
  ZCFile other(path.c_str(), 0x8020);
  EXPECT_EQ(buffer_.Save(path.c_str()), 195);
  other.Close();
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
  EXPECT_EQ(buffer_.Save(path.c_str()), 195);
  EXPECT_EQ(buffer_.GetModified(), 1);
  EXPECT_EQ(read("list.txt"), "a=b\r\n");
  std::filesystem::permissions(path, std::filesystem::perms(0640));

  std::filesystem::create_symlink("list.txt", dir_.file("link"));
  EXPECT_EQ(buffer_.Save(dir_.file("link").c_str()), 0);
  EXPECT_EQ(read("list.txt"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(dir_.file("link")));
  EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0640));

  {  // in place where the directory takes no new file
    std::filesystem::permissions(path, std::filesystem::perms(0666));
    std::filesystem::permissions(dir_.file(""), std::filesystem::perms(0555));
    const kz::test::Unprivileged rights;
    EXPECT_EQ(SaveBuffer(path.c_str(), "in place"), 0);
    EXPECT_EQ(read("list.txt"), "in place");
  }
  std::filesystem::permissions(dir_.file(""), std::filesystem::perms(0755));

  std::filesystem::remove(path);  // also a link to a file that is yet to be made
  std::filesystem::create_symlink(dir_.file("link"), dir_.file("second"));
  EXPECT_EQ(buffer_.Save(dir_.file("second").c_str()), 0);
  EXPECT_EQ(read("list.txt"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(dir_.file("link")));
  std::filesystem::remove(dir_.file("second"));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir_.file("")), {}), 2);
}

TEST_F(ReplaceBufferTest, ChangedTextFollowsTheLinesInTheirOrder) {
  struct {
    std::string buffer, source, result;
  } const cases[] = {
      {"ab=X", "cabd", "cXd"},
      {"ab\r\nb=Y", "ab", ""},
      {"ab", "ababX", "abX"},               // behind a dropped word one character is copied
      {"ab\r\nc=Z\r\nab=Y", "abcab", "Z"},  // then the lines start anew, and drop
      {"a=1\r\nab=2", "ab", "1b"},
      {"ab=2\r\na=1", "aab", "12"},
      {"a=aa", "aba", "aabaa"},
      {"=X\r\n\r\na=", "bab", "bb"},
      {"a\rb=\nc", "abc", "\ncc"},  // a carriage return ends a line
      {"", "abc", "abc"},
  };
  for (const auto& c : cases) {
    buffer_.SetBuffer((c.buffer + "\r\n").c_str());
    EXPECT_EQ(change(buffer_, c.source), c.result) << c.buffer;
  }
  CFindBuffer empty(0);
  EXPECT_EQ(change(empty, "abc"), "abc");
  EXPECT_STREQ(ChangeWord(nullptr, "abc", out_.data()), "abc");
  EXPECT_STREQ(ChangeWord(&empty, nullptr, out_.data()), "");
  EXPECT_EQ(ChangeWord(&empty, "abc", nullptr), nullptr);
}

TEST_F(ReplaceBufferTest, ChangedTextAgreesWithASlowModel) {
  std::mt19937 random(1);
  const auto letters = [&random](std::size_t most) {
    std::string text(random() % (most + 1), 'a');
    for (char& c : text) c = U"abЯ"_1251[random() % 8 / 3];
    return text;
  };
  for (int round = 0; round < 3000; ++round) {
    std::vector<Line> lines(random() % 12);
    buffer_.Clear();
    for (Line& line : lines) {
      line = {letters(1 + static_cast<std::size_t>(round) % 5), letters(3), random() % 2 != 0};
      buffer_.Concat((line.word + (line.replaces ? '=' + line.replacement : "") + "\r\n").c_str());
    }
    for (int k = 0; k < 4; ++k) {
      const std::string source = letters(30);
      ASSERT_EQ(change(buffer_, source), slow_change(lines, source)) << buffer_.GetBuffer();
    }
    if (lines.empty() || lines[0].word.empty()) continue;
    buffer_.GetBuffer()[2] = lines[0].word[0] = 'b';  // the compiled words follow
    ASSERT_EQ(change(buffer_, "ababaab"), slow_change(lines, "ababaab"));
  }
}

}  // namespace
