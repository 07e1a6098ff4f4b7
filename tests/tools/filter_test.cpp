// The filters of texts, as they are run: convert, translit, layout, replace.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <nlohmann/json.hpp>
#include <random>
#include <thread>

#include "kz/codepage.h"
#include "kz/replace_buffer.h"
#include "kz/translit.h"
#include "kzlexicon/code_page.h"
#include "tests/tools/kzdic_run.h"

namespace {

using kz::lexicon::CodePage;
using nlohmann::json;
using std::string_literals::operator""s;
using ::testing::HasSubstr;

class FilterTest : public ::testing::Test {
 protected:
  // `pair` is "FROM TO", perhaps with more options.
  Outcome convert(const std::string& pair, const std::string& input) const {
    const std::size_t blank = pair.find(' ');
    return place.kzdic("convert --from " + pair.substr(0, blank) + " --to" + pair.substr(blank),
                       input);
  }
  std::string out(const std::string& arguments, const std::string& input) const {
    return place.kzdic(arguments, input).out;
  }
  static void expect_refused(const Outcome& outcome, int status, const std::string& lines,
                             const std::string& message) {
    EXPECT_EQ(outcome.status, status);
    EXPECT_EQ(outcome.out, lines);
    EXPECT_THAT(outcome.err, HasSubstr(message));
  }

  Workplace place;
};

// What a function of libkzcommon makes of a text.
std::string made(const std::string& source, const std::function<char*(const char*, char*)>& of) {
  std::string result(source.size() * 6 + 1, '\0');
  result.resize(static_cast<std::size_t>(of(source.c_str(), result.data()) - result.data()));
  return result;
}

TEST_F(FilterTest, ConvertsEveryByteOfEveryPair) {
  const std::pair<CodePage, std::string> pages[] = {{CodePage::kRussian, "windows-1251"},
                                                    {CodePage::kWestern, "windows-1252"},
                                                    {CodePage::kCp866, "cp866"},
                                                    {CodePage::kCp850, "cp850"},
                                                    {CodePage::kKoi8R, "koi8-r"},
                                                    {CodePage::kIso8859_5, "iso-8859-5"},
                                                    {CodePage::kMacCyrillic, "mac-cyrillic"}};
  for (const auto& [from, name] : pages) {
    std::string bytes = "\0"s;
    std::vector<std::string> characters = {bytes};
    for (int byte = 1; byte < 256; ++byte) {
      const std::string character = decode_utf8(std::string(1, static_cast<char>(byte)), from);
      if (character == "\uFFFD") continue;
      bytes += static_cast<char>(byte);
      characters.push_back(character);
    }
    for (const auto& [to, to_name] : pages) {
      std::string expected;
      for (const std::string& character : characters) {
        try {
          expected += character[0] == 0 ? character : encode_utf8(character, to);
        } catch (const kz::lexicon::Unmappable&) {
          expected += "__";
        }
      }
      EXPECT_EQ(convert(name + ' ' + to_name + " --replace __", bytes).out, expected)
          << name << " to " << to_name;
    }
    EXPECT_EQ(convert("html " + name, convert(name + " html", bytes).out).out, bytes);
  }
  expect_refused(convert("windows-1251 utf-8", "a\nb\x98\n"), 4, "a\n",
                 ":2: byte 2 is no character");
}

TEST_F(FilterTest, ConvertsNarrowlyAsTheLibraryDoes) {
  const std::pair<const char*, char* (*)(const char*, char*)> pairs[] = {
      {"cp1251 866", strruansitooem},      {"IBM866 Windows-1251", strruoemtoansi},
      {"win1252 CP850", stransitooem},     {"850 1252", stroemtoansi},
      {"1251 koi8-r", stransitokoi8},      {"KOI8 1251", strkoi8toansi},
      {"866 koi8r", stroemtokoi8},         {"koi8r 866", strkoi8tooem},
      {"1251 ISO_8859-5", stransitoiso},   {"iso8859-5 1251", strisotoansi},
      {"866 cyrillic", stroemtoiso},       {"cyrillic 866", strisotooem},
      {"866 x-mac-cyrillic", stroemtomac}, {"MacCyrillic 866", strmactooem},
      {"1251 html", stransitohtml},        {"HTML 1251", strhtmltoansi}};
  std::string bytes;
  for (int byte = 1; byte < 256; ++byte) bytes += static_cast<char>(byte);
  bytes += "&#196;&#65;\n";
  for (const auto& [pair, function] : pairs) {
    const std::string half = made(bytes, function);
    EXPECT_EQ(convert(pair + " --narrow"s, bytes + '\0' + bytes).out, half + '\0' + half) << pair;
  }
  expect_refused(convert("cp866 cp850 --narrow", ""), 2, "", "koi8-r to cp866");
  EXPECT_EQ(json::parse(convert("cp866 1251 --narrow --json", "\x8D\xA5\xE2 \xC9\r\n").out),
            json({{"line", 1}, {"input", "Нет ╔"}, {"output", "Нет +"}, {"bytes", "cde5f2202b"}}));
}

TEST_F(FilterTest, ConvertReportsCharactersWithoutAPlace) {
  const std::string text = "мир\nда ≤ → №\r\nконец";
  const std::string place_of_arrow = ":2: column 6: the character '→' (U+2192)";
  expect_refused(convert("utf-8 koi8-r", text), 5, "\xCD\xC9\xD2\n", place_of_arrow);
  const Outcome check = convert("utf-8 koi8-r --check", text);
  expect_refused(check, 1, "", place_of_arrow);
  expect_refused(check, 1, "", ":2: column 8: the character '№' (U+2116)");
  EXPECT_EQ(convert("utf-8 html --check", text).status, 0);

  const Outcome seen = convert("utf-8 windows-1251 --check --json", "№\n≤\n");
  EXPECT_EQ(seen.status, 1);
  EXPECT_EQ(seen.err, "");
  EXPECT_EQ(json::parse(seen.out.substr(seen.out.find('\n')))["missing"],
            json({{{"column", 1}, {"character", "≤"}, {"code_point", "U+2264"}}}));
  expect_refused(convert("utf-8 koi8-r --replace a№", text), 2, "",
                 "'№' (U+2116) is not in KOI8-R");
}

TEST_F(FilterTest, LineEndsZerosAndLinesOfAnyLengthAreKept) {
  std::string text;
  for (std::size_t line = 0; line < 3000; ++line) {
    text += "Ёж" + std::string(line * 37 % 101, 'x') + '\0' + "→\r\n";
  }
  text += std::string(300'000, 'y') + "я\n\n\r\nконец";
  const std::string html = convert("utf-8 html", text).out;
  EXPECT_TRUE(html != text);
  EXPECT_TRUE(convert("html utf-8", html).out == text);
  place.write("none", "");
  const std::string other = "→\0\r\n\n€"s + std::string(70'000, '-');
  for (const char* command : {"layout --to latin --look-alike", "replace none",
                              "translit --to russian", "translit --to russian --smart"}) {
    EXPECT_TRUE(out(command, other) == other) << command;
  }
  EXPECT_EQ(convert("html utf-8 --json", "&#1078;\r\n&#x416;\r").out,
            "{\"line\":1,\"input\":\"&#1078;\",\"output\":\"ж\",\"missing\":[]}\n"
            "{\"line\":2,\"input\":\"&#x416;\\r\",\"output\":\"Ж\\r\",\"missing\":[]}\n");
  // A byte-order mark is passed over where the text is UTF-8.
  EXPECT_EQ(convert("utf-8 koi8-r", "\xEF\xBB\xBFмир").out, "\xCD\xC9\xD2");
  EXPECT_EQ(convert("cp1251 utf-8", "\xEF\xBB\xBF").out, "п»ї");
  expect_refused(place.kzdic("layout --to latin", "фы\n\nф\xD0\n"), 4, "as\n\n",
                 ":3: byte 3 is not UTF-8");
}

// Words of these characters, in a line that is answered in pieces.
std::string long_line(const std::vector<std::string>& pieces, unsigned seed) {
  std::mt19937 random(seed);
  std::string line;
  while (line.size() < 1'300'000) line += pieces[random() % pieces.size()];
  return line;
}

TEST_F(FilterTest, ALongLineIsAnsweredAsTheLibraryDoes) {
  const std::string html = long_line({"&#196;", "&#65;", "&", "&#", "a", ";"}, 1);
  EXPECT_TRUE(convert("html cp1251 --narrow", html).out == made(html, strhtmltoansi));
  const std::string mixed = long_line({"&#1078;", "Ж", "→", "x", "&"}, 2);
  EXPECT_TRUE(convert("html utf-8", convert("utf-8 html", mixed).out).out ==
              convert("html utf-8", mixed).out);
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"a", "b", "C", "e", "h", "t", "o", "s", "i", "u", "gh"},
        {"so ld ", "the ", "make ", "notes, ", "Age e", "ght"}}) {
    const std::string text = long_line(words, 3);
    EXPECT_TRUE(convert("utf-8 cp1251", out("translit --to russian --smart", text)).out ==
                made(text, [](const char* source, char* to) {
                  return strtransliterateenrusmart(source, to, 1);
                }));
  }
  for (const char* buffer : {"ab=xyz\r\nb\r\nba=Q\r\naab=\r\n", "c=dd\r\nab\r\n"}) {
    CFindBuffer loaded(0);
    ASSERT_EQ(loaded.Load(place.write("words", buffer).c_str()), 0);
    const std::string text = long_line({"a", "b"}, 4);
    EXPECT_TRUE(out("replace words", text) == made(text, [&](const char* source, char* to) {
                  return ChangeWord(&loaded, source, to), to + std::strlen(to);
                }));
  }
}

TEST_F(FilterTest, NothingIsWrittenOfALongLineThatCannotBeAnswered) {
  const std::string line = long_line({"Ж"}, 1);
  const std::string column = ":2: column " + std::to_string(line.size() / 2 + 1) + ": ";
  expect_refused(convert("utf-8 cp866", "a\n" + line + "→\nb\n"), 5, "a\n", column);
  const Outcome checked = convert("utf-8 cp866 --check", "a\n" + line + "→\n→\n");
  expect_refused(checked, 1, "", column);
  EXPECT_EQ(std::count(checked.err.begin(), checked.err.end(), '\n'), 2);
  expect_refused(place.kzdic("layout --to latin", "ф\n" + line + "\xD0\nф\n"), 4, "a\n",
                 ":2: byte " + std::to_string(line.size() + 1));
}

#ifndef __SANITIZE_ADDRESS__
TEST_F(FilterTest, ALongLineIsHeldOnce) {
  constexpr std::size_t kSize = 30'000'000;
  place.write("line", std::string(kSize, 'a'));
  place.write("words", "b=c\r\na=dd\r\n");
  place.write("word", "a*Nб\n");
  ASSERT_EQ(place.kzdic("build word -o o.dic --language ENRU").status, 0);
  const std::pair<std::string, int> commands[] = {{"convert --from utf-8 --to html", 0},
                                                  {"translit --to russian --smart", 0},
                                                  {"translit --to latin", 0},
                                                  {"layout --to russian", 0},
                                                  {"replace words", 0},
                                                  {"lookup o.dic - <", 1},
                                                  {"build --language ENRU -o /dev/null", 4}};
  for (const auto& [command, expected] : commands) {
    const std::string run =
        "cd " + place.file("") + " && exec " KZDIC_PATH " " + command + " line > /dev/null 2>&1";
    const pid_t child = fork();
    if (child == 0) {
      execl("/bin/sh", "sh", "-c", run.c_str(), nullptr);
      _exit(127);
    }
    int status = -1;
    struct rusage usage {};
    ASSERT_EQ(wait4(child, &status, 0, &usage), child);
    EXPECT_EQ(WEXITSTATUS(status), expected) << command;
    EXPECT_LT(usage.ru_maxrss * 1024L, 2L * kSize) << command;
  }
}
#endif

TEST_F(FilterTest, ALineOfAPipeIsAnsweredAtOnce) {
  const std::string command = KZDIC_PATH " layout --to latin >'" + place.file("answer") + "'";
  std::FILE* const pipe = popen(command.c_str(), "w");
  ASSERT_NE(pipe, nullptr);
  std::fputs("руддщ\nне", pipe);
  std::fflush(pipe);
  for (int i = 0; i < 1000 && place.read("answer").empty(); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  EXPECT_EQ(place.read("answer"), "hello\n");
  EXPECT_EQ(pclose(pipe), 0);
  EXPECT_EQ(place.read("answer"), "hello\nyt");
}

TEST_F(FilterTest, AlphabetsConvertLettersAndLeaveTheRest) {
  const struct {
    const char *command, *input, *output;
  } cases[] = {{"translit --to latin", "Щи, ёж [naïve] →", "SCHi, yozh [naïve] →"},
               {"translit --to latin --capitals", "Щи, ёж [a] →", "SCHI, YOZH (a) →"},
               {"translit --to russian", "cafe à Été; ñ щи Bar", "сафе а Ете; ñ щи Bар"},
               {"translit --to russian --language DE", "Öl é BAS", "Ол é BАС"},
               {"translit --to russian --smart", "the Washington →\nthe\n", " Уошингтон →\n\n"},
               {"translit --to russian --smart --small", "FAX", "факс"},
               {"layout --to latin", "Руддщ → ё", "Hello → `"},
               {"layout --to russian", "ghbdtn € <", "привет € Б"},
               {"layout --to latin --look-alike", "сор ж", "cop ж"},
               {"layout --to russian --look-alike", "cop z", "сор z"},
               {"layout --to greek", "", ""},
               {"translit --to latin --smart", "", ""}};
  for (const auto& [command, input, output] : cases) {
    const Outcome outcome = place.kzdic(command, input);
    EXPECT_EQ(outcome.out, output);
    EXPECT_EQ(outcome.status, *input == 0 ? 2 : 0) << command;
  }
  place.write("text", "руддщ\n");
  EXPECT_EQ(out("layout --to latin --json text -", "→ф"),
            "{\"file\":\"text\",\"line\":1,\"input\":\"руддщ\",\"output\":\"hello\"}\n"
            "{\"file\":\"(standard input)\",\"line\":1,\"input\":\"→ф\",\"output\":\"→a\"}\n");
}

TEST_F(FilterTest, ReplaceAppliesTheBufferAndRefusesBadOnes) {
  const std::string buffer = "кот=кошка\r\nab\r\nb=Y\r\nмного=" + std::string(15'000, '!');
  place.write("words", encode_utf8(buffer, CodePage::kRussian));
  EXPECT_EQ(out("replace words", "→ кот→ab котлета abb\nab"), "→ кошка→ кошкалета Y\n");
  EXPECT_EQ(out("replace words", "много\nмного много").size(), 45'002U);
  const std::string text(4'000'000, 'x');
  EXPECT_TRUE(out("replace words", text + "ab" + text) == text + text);

  place.write("unix", "a=b\nc=d\n");
  place.write("page", "a=\x98\r\n");
  place.write("long", std::string(16'000, 'a'));
  place.write("zero", "a=b\r\n\0"s);
  const std::pair<const char*, int> refused[] = {{"unix", 4}, {"page", 4},   {"long", 4},
                                                 {"zero", 4}, {"absent", 3}, {".", 3}};
  for (const auto& [name, status] : refused) {
    expect_refused(place.kzdic("replace "s + name, "a\n"), status, "", "kzdic: "s + name);
  }
}

}  // namespace
