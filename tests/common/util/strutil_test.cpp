// Copies, endings, numbers, messages and the title line against slow references.
#include "kz/strutil.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <regex>
#include <string>
#include <vector>

#include "kz/file.h"
#include "kz/platform.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;

// What `call` writes to a buffer of `room` bytes that holds `initial`; nothing after it may
// change.
template <class Call>
std::string written(std::size_t room, const std::string& initial, Call call) {
  std::string buffer(room + 8, '#');
  std::copy_n(initial.c_str(), initial.size() + 1, buffer.begin());
  call(buffer.data());
  EXPECT_EQ(buffer.substr(room), "########");
  return buffer.c_str();
}

// The same for a copying function; its result is the end of what it wrote.
template <class Copy>
std::string copied(std::size_t length, Copy copy) {
  return written(length + 1, "", [&](char* to) {
    const char* const end = copy(to);
    EXPECT_EQ(end, to + std::strlen(to));
  });
}

std::string replaced(const std::string& text, const char* part, const char* by) {
  return std::regex_replace(text, std::regex(part), by);
}

// All texts of up to 6 characters of a small alphabet.
std::vector<std::string> small_texts(const std::string& alphabet) {
  std::vector<std::string> texts{""};
  for (std::size_t i = 0; texts[i].size() < 6; ++i) {
    for (const char c : alphabet) texts.push_back(texts[i] + c);
  }
  return texts;
}

TEST(Copies, NormaliseLineEndsAndBlanks) {
  for (const std::string& text : small_texts("\r\na ")) {
    const char* const source = text.c_str();
    const auto expect = [&](const std::string& expected, auto copy) {
      ASSERT_EQ(copied(expected.size(), [&](char* to) { return copy(to, source); }), expected);
    };
    expect(replaced(text, "\r\n", "\n"), strcpy_rn);
    expect(replaced(text, "\r\n", "\r"), strcpy_rr);
    expect(replaced(text, "\r\n", " "), strcpydelcrlf);

    expect(replaced(text, "[ \r\n]+", " "), strcpyleft1);
    const std::string ends = replaced(replaced(text, "\r", ""), "\n", "\r\n");
    ASSERT_EQ(copied(ends.size(), [&](char* to) { return strcat_crn(to, source); }), ends);
    ASSERT_EQ(written(ends.size() + 3, "x\r",
                      [&](char* to) { EXPECT_EQ(strcatrn(to, source), to + 2 + ends.size()); }),
              "x\r" + ends);
  }
}

TEST(Copies, DropCharactersOfEveryCode) {
  std::string all(255, ' ');
  for (int c = 1; c < 256; ++c) all[static_cast<std::size_t>(c - 1)] = static_cast<char>(c);
  for (int c = 1; c < 256; ++c) {
    std::string expected = all;
    std::erase(expected, static_cast<char>(c));
    for (const int argument : {c, int{static_cast<signed char>(c)}, c + 256}) {
      const auto code = static_cast<int16_t>(argument);
      ASSERT_EQ(copied(254, [&](char* to) { return strcpydel(to, all.c_str(), code); }), expected);
    }
    std::erase(expected, '\xFF');
    const char set[] = {static_cast<char>(c), '\xFF', '\0'};
    ASSERT_EQ(copied(expected.size(), [&](char* to) { return strcpydelm(to, all.c_str(), set); }),
              expected);
  }
  for (const unsigned int count : {0U, 1U, 4U, 255U, 256U, ~0U}) {
    const std::string part = all.substr(0, count);
    EXPECT_EQ(written(part.size() + 1, "",
                      [&](char* to) { EXPECT_EQ(strncpy0(to, all.c_str(), count), to); }),
              part);
  }
  const std::string spaces = all.substr(8, 5);
  EXPECT_EQ(copied(1, [&](char* to) { return strcpyleft1(to, spaces.c_str()); }), " ");
  EXPECT_EQ(copied(255, [&](char* to) { return strcpydelm(to, all.c_str(), nullptr); }), all);
  EXPECT_EQ(copied(0, [&](char* to) { return strcpydel(to, nullptr, 'a'); }), "");
}

TEST(InPlace, PrefixGoesInFrontUpTo515Characters) {
  for (const std::size_t size : {0, 1, 200, 515}) {
    const std::string prefix(size, 'p'), text(515 - size, 't');
    const auto insert = [&](char* to) { EXPECT_EQ(insfst(to, prefix.c_str()), to); };
    EXPECT_EQ(written(516, text, insert), prefix + text);
    EXPECT_EQ(written(517, text + 't', insert), text + 't');
  }
  char word[20] = "word";
  EXPECT_STREQ(insfst(word, word + 2), "rdword");
}

TEST(InPlace, TrimRightCutsAtTheFirstWhiteSpaceWithinTheLength) {
  for (const std::string& text : small_texts("a \t")) {
    ASSERT_EQ(written(text.size() + 1, text, [](char* t) { EXPECT_EQ(trimleft(t), t); }),
              text.substr(std::min(text.find_first_not_of(" \t"), text.size())));
    for (int length = -2; length <= 8; ++length) {
      const std::size_t within =
          length == -1 ? text.size() : static_cast<std::size_t>(std::max(length, 0));
      std::string buffer = text + '\0' + "###", expected = buffer;
      for (std::size_t i = 0; i < std::min(within, text.size()); ++i)
        if (text[i] != 'a') expected[i] = '\0';
      trimright(buffer.data(), static_cast<int16_t>(length));
      ASSERT_EQ(buffer, expected) << length;
    }
  }
}

TEST(Endings, AreFoundAtTheGivenLength) {
  const char* const tables = U"столами, столы"_1251.data();
  EXPECT_EQ(isflex(tables, 7, U"ами"_1251.data()), 3);
  EXPECT_EQ(isflex(tables, 7, U"столами"_1251.data()), 7);
  EXPECT_EQ(isiflex("TABLE", 5, "ble"), 3);
  EXPECT_EQ(isiflex("`[@{", 4, "@[`{") + isiflex(tables, 7, U"АМИ"_1251.data()), 0);
  EXPECT_EQ(isflex("TABLE", 5, "ble") + isflex(tables, 7, U"АМИ"_1251.data()), 0);
  EXPECT_EQ(isflex(tables, 2, U"стол"_1251.data()) + isflex(tables, -1, ""), 0);
}

// Collects the messages that are shown while it lives.
class Messages {
 public:
  Messages() { kz_platform_set_message_box(show, this); }
  ~Messages() { kz_platform_set_message_box(nullptr, nullptr); }
  std::vector<std::string> texts, captions;
  unsigned int last_style = 0;

 private:
  static int show(const char* text, const char* caption, unsigned int style, void* context) {
    auto* messages = static_cast<Messages*>(context);
    messages->texts.emplace_back(text);
    messages->captions.emplace_back(caption);
    messages->last_style = style;
    return 6;
  }
};

TEST(Numbers, ReadAsScanfDoesAndReportEveryWrongDigit) {
  const struct {
    const char* text;
    std::int32_t number;
    const char* wrong;  // digits
  } cases[] = {{"42", 42, ""},
               {"-42", -42, "-"},
               {" +7", 7, ""},
               {"1x2-", 1, "x-"},
               {"12 x", 12, ""},
               {"x", 0, "x"},
               {"", 0, ""},
               {"65536", 65536, ""},
               {"-70000\t$", -70000, "-"},
               {"4294967297", 1, ""},
               {"$1G", 1, "G"},
               {"$fFfF", 65535, ""},
               {"$0x1f", 31, "x"},
               {"$1x2", 1, "x"},
               {"$ 1f", 31, ""},
               {"$-1", -1, "-"},
               {"$", 0, ""},
               // Twelve characters count.
               {"123456789012345", -1097262572, ""},
               {"$123456789abcdef", 0x456789AB, ""}};
  for (const auto& [text, number, wrong] : cases) {
    std::vector<std::string> complaints;
    for (const char c : std::string(wrong)) {
      complaints.push_back(std::string("Error: Invalid ") +
                           (text[0] == '$' ? "hexadecimal" : "decimal") + " digit " + c + ".");
    }
    Messages messages;
    EXPECT_EQ(convert_number(text), static_cast<std::int16_t>(number)) << text;
    EXPECT_EQ(messages.texts, complaints) << text;
    EXPECT_EQ(convert_lnumber(text), number) << text;
    EXPECT_EQ(messages.texts.size(), 2 * complaints.size()) << text;
  }
}

TEST(Numbers, HexToByteNeedsTwoDigits) {
  const std::string digits = "0123456789abcdef0123456789ABCDEF";
  for (int a = 1; a < 256; ++a) {
    for (int b = 0; b < 256; ++b) {
      const char text[] = {static_cast<char>(a), static_cast<char>(b), '7', '\0'};
      const std::size_t high = digits.find(text[0]), low = digits.find(text[1]);
      const bool both = high != digits.npos && low != digits.npos;
      ASSERT_EQ(hex_to_byte(text), both ? high % 16 * 16 + low % 16 : 0) << text;
    }
  }
  EXPECT_EQ(hex_to_byte(""), 0);
}

TEST(Messages, AreShownWithTheTitleOfTheLanguage) {
  Messages messages;
  EXPECT_EQ(MsgBox("text", 0x24, 0), 6);
  EXPECT_EQ(messages.last_style, 0x24U);
  MsgBox(U"текст"_1251.data(), 0, 1049);
  EXPECT_EQ(messages.texts, (std::vector<std::string>{"text", std::string(U"текст"_1251)}));
  EXPECT_EQ(messages.captions,
            (std::vector<std::string>{"Message", std::string(U"Сообщение"_1251)}));
}

std::string local_time_text() {
  const std::time_t now = std::time(nullptr);
  char text[30];
  return {text, std::strftime(text, sizeof text, "%b %d %H:%M:%S %Y\n", std::localtime(&now))};
}

TEST(TitleLine, HoldsTheNamesAndTheTime) {
  // Names neither leave their 51 characters nor cover the time.
  const std::string long_path = "a." + std::string(100, 'x'),
                    long_name = "A." + std::string(49, 'X');
  const struct {
    const char *first, *second, *names;
  } cases[] = {
      {"c:\\work\\list.txt", "d:\\out\\x.y.dic", "LIST.TXT X.Y.DIC"},
      {long_path.c_str(), nullptr, long_name.c_str()},
      {long_path.c_str(), long_path.c_str(), long_name.c_str()},
      {"verylongname.txt", nullptr, "VERYLONG.TXT"},
      {"\\verylongname.txt", "d:\\verylongname", "VERYLON.TXT VERYLON"},
      {"c:table.dic", "noextension", ":TABLE.DIC NOEXTENS"},
      {".profile", "\\.profile", ".PROFILE .PROFILE"},
      {"", "b", " B"},
      {nullptr, "", ""},
      {"a.b\\c", "a.", "C A."},
      {"/home/user.name/list.txt", "d:e/f", "LIST.TXT F"},
      {"a\\b/verylongname.txt", "a/b\\.c", "VERYLON.TXT .C"},
  };
  for (const auto& [first, second, names] : cases) {
    std::string before, line;
    do {
      before = local_time_text();
      line = written(73, "", [&](char* to) { EXPECT_EQ(init_header(to, first, second), to + 72); });
    } while (before != local_time_text());
    EXPECT_EQ(line, names + std::string(72 - 21 - std::strlen(names), ' ') + before);
  }
}

TEST(Memory, BlocksAreZeroedAndTextsCopied) {
  void* const used = std::memset(kz_misc_malloc(3000), '#', 3000);
  kz_misc_free(used);  // the next block is likely to be this one
  auto* block = static_cast<char*>(kz_misc_calloc(30, 100));
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(std::count(block, block + 3000, '\0'), 3000);
  kz_misc_free(block);
  char text[] = "text";
  char* const copy = kz_misc_strdup(text);
  text[0] = 'n';
  EXPECT_STREQ(copy, "text");
  kz_misc_free(copy);
  EXPECT_EQ(kz_misc_strdup(nullptr), nullptr);
  errno = 0;
  EXPECT_EQ(ZCFile::Remove("/no/such/file"), 0);
  EXPECT_EQ(kz_misc_errno(), ENOENT);
}

}  // namespace
