// Replacement buffers: files, lines and limits, and replacement beside a slow model.
#include "kz/replace_buffer.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <filesystem>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "kz/file.h"
#include "tests/support/page.h"
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

class ReplaceBufferTest : public testing::Test, public kz::test::TempDir {
 protected:
  // A position in the text, and what was written to the output.
  std::string shown(const char* position) {
    const auto at = position - buffer_.GetBuffer();
    return position == nullptr ? "none" : std::to_string(at) + ' ' + out_.data();
  }
  std::string text() { return buffer_.GetBuffer(); }

  CFindBuffer buffer_{0};
  std::array<char, 16100> out_{};
};

TEST_F(ReplaceBufferTest, WordsAreFoundAndReplacedByTheirLines) {
  const std::string path = write("list.txt", U"кот=кошка\r\nпёс\nx=1=2\r\ne=\r\n \t\r\n"_1251);
  const auto replaced = [&](const char* word) { return shown(buffer_.Replace(word, out_.data())); };
  buffer_.SetModified(7);
  ASSERT_EQ(buffer_.Load(path.c_str()), 0);
  EXPECT_EQ(buffer_.GetModified(), 0);
  EXPECT_EQ(text(), U"\r\nкот=кошка\r\nпёс\nx=1=2\r\ne=\r\n"_1251);
  EXPECT_EQ(replaced(U"кот"_1251.data()), U"6 кошка"_1251);
  EXPECT_EQ(replaced("x"), "19 1=2");
  EXPECT_EQ(replaced("e"), "26 ");
  EXPECT_EQ(buffer_.GetCorrected(), 3);
  EXPECT_EQ(replaced("ko") + replaced(""), "nonenone");
  EXPECT_EQ(buffer_.Replace(nullptr, nullptr), nullptr);
  EXPECT_EQ(buffer_.GetCorrected(), 3);
  buffer_.SetCorrected(-8);
  replaced("x");
  EXPECT_EQ(buffer_.GetCorrected(), -7);

  ASSERT_EQ(buffer_.SetBuffer("ab\r\nabc=d\r\nlast"), 1);
  EXPECT_EQ(buffer_.Find("ab"), 1);
  EXPECT_EQ(buffer_.Find("abc") + buffer_.Find("last"), 0) << "not ended";
  const std::tuple<const char*, std::int16_t, int> found[] = {
      {"abc", 0, -1}, {"ab", 1, -1}, {"abc", 1, 6}, {"abc", 2, 6}, {"la", -1, 13}};
  for (const auto& [word, kind, at] : found)
    EXPECT_EQ(buffer_.Find(word, kind), at < 0 ? nullptr : buffer_.GetBuffer() + at)
        << word << kind;
  const std::string longest(250, 'w'), line = '\n' + longest + "w=";
  EXPECT_EQ(FindWordInBuffer(line.c_str(), longest.c_str(), 2), line.c_str() + 1);
  const std::tuple<const char*, const char*, std::int16_t> missing[] = {
      {line.c_str(), line.c_str() + 1, 2},
      {line.c_str(), nullptr, 0},
      {line.c_str(), "", 2},
      {nullptr, "ab", 0},
      {"ab\r\n", "ab", 2}};
  for (const auto& [buffer, word, kind] : missing)
    EXPECT_EQ(FindWordInBuffer(buffer, word, kind), nullptr);
}

TEST_F(ReplaceBufferTest, LinesAreReadAtPositionsAndOneByOne) {
  const auto first = [&] { return std::string(buffer_.First(out_.data()) ? out_.data() : "none"); };
  const auto next = [&] { return std::string(buffer_.Next(out_.data()) ? out_.data() : "none"); };
  using Texts = std::vector<std::string>;
  EXPECT_EQ((Texts{first(), next()}), (Texts{"none", "none"}));
  buffer_.SetBuffer("\r\na\r\n=b\r\n\r\nc=d=e");
  EXPECT_EQ(next(), "") << "behind the first line";
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ((Texts{first(), next(), next()}), (Texts{"a", "", ""}));
    buffer_.Concat("f");  // an iteration goes on
    EXPECT_EQ((Texts{next(), next(), out_.data(), next()}), (Texts{"c", "none", "", "none"}));
  }
  buffer_.Clear();
  EXPECT_EQ(first(), "none");

  std::strcpy(out_.data(), "old");
  for (const char* none : {"", "\n"}) EXPECT_EQ(buffer_.GetWordFor(none, out_.data()), nullptr);
  EXPECT_STREQ(buffer_.GetWordFor(nullptr, out_.data()), "old");
  EXPECT_STREQ(buffer_.GetWordFor("\nab=c\r", out_.data()), "ab");
  EXPECT_STREQ(buffer_.GetWordFor("\n\nab", out_.data()), "\nab");
  const char* const line = "ab\r\nc=d=e\r\n";
  EXPECT_EQ(buffer_.GetWordTo(line, out_.data()), line + 6);
  EXPECT_STREQ(out_.data(), "d=e");
  EXPECT_EQ(buffer_.GetWordTo(line, nullptr), line + 6);
  EXPECT_EQ(buffer_.GetWordTo("ab", out_.data()), nullptr);
  EXPECT_STREQ(out_.data(), "");
  EXPECT_EQ(buffer_.GetWordTo(nullptr, out_.data()), nullptr);
}

TEST_F(ReplaceBufferTest, BlocksGrowUpToTheLimitOfTheText) {
  const std::string half(8000, 'h'), most(7995, 'r');
  for (const int size : {1, 4, 100, 0, 65535}) {
    EXPECT_EQ(buffer_.Free(), 0);
    EXPECT_EQ(buffer_.Find("a"), 0);
    EXPECT_EQ(buffer_.Allocate(static_cast<std::uint16_t>(size)), 1);
    EXPECT_EQ(text(), "\r\n");
    EXPECT_EQ(buffer_.SetBuffer(std::string(16000, 'x').c_str()) + buffer_.SetBuffer(nullptr), 0);
    EXPECT_EQ(buffer_.GetModified(), 0);
    EXPECT_EQ(buffer_.SetBuffer(half.c_str()), 1);
    EXPECT_EQ(buffer_.GetModified(), 1);
    EXPECT_EQ(buffer_.Allocate(100), 1);
    EXPECT_EQ(text(), "\r\n" + half);
    // The text, the word, "=" and the replacement reach 16,000, or stay one below.
    EXPECT_EQ(buffer_.Add("w", (most + 'r').c_str()), 0);
    EXPECT_EQ(buffer_.Add("w", most.c_str()), 1);
    EXPECT_EQ(text(), "\r\n" + half + "w=" + most + "\r\n");
    EXPECT_EQ(buffer_.Add("x") + buffer_.Concat("x"), 0);
    EXPECT_EQ(buffer_.SetBuffer(std::string(15999, 'x').c_str()), 1);
    EXPECT_EQ(text().size(), 16001u);
    EXPECT_EQ(buffer_.SetBuffer(buffer_.GetBuffer() + 15000), 1) << "a text of the buffer itself";
    EXPECT_EQ(text(), "\r\n" + std::string(1001, 'x'));
  }
}

TEST_F(ReplaceBufferTest, AddAppendsWordsThatAreNotListed) {
  const std::string longest(254, 'x'), longest_text(511, 'c'), wide(300, 'w');
  for (const char* none : {static_cast<const char*>(nullptr), "", " \t\r\n"})
    EXPECT_EQ(buffer_.Add(none), 0);
  EXPECT_EQ(buffer_.Add(nullptr, "x"), 0);
  for (const char* none : {static_cast<const char*>(nullptr), ""})
    EXPECT_EQ(buffer_.Concat(none), 0);
  EXPECT_EQ(buffer_.Concat((longest_text + 'c').c_str()) + buffer_.Add((longest + 'x').c_str()), 0);
  for (int round = 0; round < 2; ++round) EXPECT_EQ(buffer_.Add(longest.c_str()), 1);
  EXPECT_EQ(buffer_.Add(longest.c_str(), "replaced"), 1);
  EXPECT_EQ(buffer_.Add("a", "b"), 1);
  EXPECT_EQ(buffer_.Add("a", nullptr), 1);
  EXPECT_EQ(buffer_.Concat(longest_text.c_str()), 1);
  EXPECT_EQ(text(), "\r\n" + longest + "\r\na=b\r\na=\r\n" + longest_text);
  EXPECT_EQ(buffer_.GetModified(), 0);
  EXPECT_EQ(buffer_.SetBuffer((wide + '=' + wide + "1\r\n").c_str()), 1);
  EXPECT_NE(buffer_.Replace(wide.c_str(), out_.data()), nullptr);
  EXPECT_EQ(out_.data(), wide + '1');
}

TEST_F(ReplaceBufferTest, FilesAreReadWhole) {
  const std::string path = file("list.txt");
  const auto load = [&](const std::string& contents) {
    return buffer_.Load(write("list.txt", contents).c_str());
  };
  EXPECT_EQ(LoadBuffer(nullptr, out_.data()), 196);
  EXPECT_EQ(LoadBuffer(path.c_str(), nullptr), 196);
  EXPECT_EQ(LoadBuffer(path.c_str(), out_.data()), 195);
  EXPECT_EQ(LoadBuffer(file("").c_str(), out_.data()), 195);
  out_.fill('?');
  EXPECT_EQ(LoadBuffer(write("list.txt", "a=b\r\n").c_str(), out_.data()), 0);
  EXPECT_EQ(std::string_view(out_.data(), 8), std::string_view("a=b\r\n\0\0?", 8));

  buffer_.SetModified(5);
  for (const std::string& refused :
       {std::string(16000, 'x'), std::string("a\r\n\0b\r\n", 7), std::string("a\r\n\0", 4)}) {
    buffer_.Add("old");
    EXPECT_EQ(load(refused), 202);
    EXPECT_EQ(text(), "\r\n");
  }
  buffer_.Add("old");
  EXPECT_EQ(buffer_.Load(file("none").c_str()), 195);
  EXPECT_EQ(buffer_.Load(nullptr), 196);
  EXPECT_EQ(buffer_.GetModified(), 5);
  for (const char* blank : {"", "\r\n", " \t\n\r\n"}) {
    EXPECT_EQ(text(), "\r\n");
    EXPECT_EQ(load(blank), 0);
  }
  // With a line end up to 15,999 characters: longer texts keep the one that they lack.
  for (const std::size_t length : {1, 15996, 15997, 15998, 15999}) {
    const std::string line(length, 'x');
    const std::string held = "\r\n" + line + (length <= 15997 ? "\r\n" : "");
    ASSERT_EQ(load(line), 0);
    EXPECT_EQ(text(), held);
    ASSERT_EQ(buffer_.Save(path.c_str()), 0);
    ASSERT_EQ(buffer_.Load(path.c_str()), 0);
    EXPECT_EQ(text(), held);
  }
}

TEST_F(ReplaceBufferTest, FilesAreWrittenInOneStep) {
  const std::string path = file("list.txt");
  EXPECT_EQ(SaveBuffer(nullptr, ""), 196);
  EXPECT_EQ(SaveBuffer(path.c_str(), nullptr), 196);
  EXPECT_EQ(SaveBuffer(file("").c_str(), "a"), 195);
  EXPECT_EQ(SaveBuffer(file("none/list.txt").c_str(), "a"), 195);
  EXPECT_EQ(buffer_.Save(path.c_str()), 196);
  EXPECT_FALSE(std::filesystem::exists(path));

  buffer_.SetBuffer("\r\n \r\na=b\r\n");
  EXPECT_EQ(buffer_.Save(path.c_str()), 0);
  EXPECT_EQ(read("list.txt"), "a=b\r\n");
  EXPECT_EQ(buffer_.GetModified(), 0);
  buffer_.SetBuffer("new");
  {
    const ZCFile other(path.c_str(), 0x8020);
    EXPECT_EQ(buffer_.Save(path.c_str()), 195);
  }
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
  EXPECT_EQ(buffer_.Save(path.c_str()), 195);
  EXPECT_EQ(buffer_.GetModified(), 1);
  EXPECT_EQ(read("list.txt"), "a=b\r\n");
  std::filesystem::permissions(path, std::filesystem::perms(0666));
  std::filesystem::create_symlink("list.txt", file("link"));
  EXPECT_EQ(buffer_.Save(file("link").c_str()), 0);
  EXPECT_EQ(read("list.txt"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(file("link")));

  std::filesystem::permissions(directory(), std::filesystem::perms(0555));
  const kz::test::Unprivileged rights;  // in place where the directory takes no new file
  EXPECT_EQ(SaveBuffer(path.c_str(), "in place"), 0);
  EXPECT_EQ(read("list.txt"), "in place");
}

TEST_F(ReplaceBufferTest, ChangedTextFollowsTheLinesInTheirOrder) {
  for (const std::string& line : kz::test::examples("tables.md", "replace")) {
    const std::vector<std::string> fields = kz::test::fields_of(line);
    buffer_.SetBuffer((std::regex_replace(fields[0], std::regex(", "), "\r\n") + "\r\n").c_str());
    EXPECT_EQ(change(buffer_, fields[1]), fields[2]) << line;
  }
  buffer_.SetBuffer("a\rb=\nc\r\n");
  EXPECT_EQ(change(buffer_, "abc"), "\ncc") << "a carriage return ends a line";
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
