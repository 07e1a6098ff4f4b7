// The filters of texts, as they are run: convert, translit, layout, replace.
#include <gtest/gtest.h>
#include <iconv.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <random>
#include <thread>

#include "kz/codepage.h"
#include "kz/replace_buffer.h"
#include "kz/translit.h"
#include "tests/tools/kzdic_run.h"

namespace {

using nlohmann::json;
using std::string_literals::operator""s;
using Arguments = std::vector<std::string>;

Arguments operator+(Arguments left, const Arguments& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

Outcome convert(const Workplace& place, const std::string& from, const std::string& to,
                const std::string& input, const Arguments& more = {}) {
  return place.kzdic(Arguments{"convert", "--from", from, "--to", to} + more, input);
}

const std::map<std::string, std::string> kSystemNames = {{"windows-1251", "CP1251"},
                                                         {"windows-1252", "CP1252"},
                                                         {"cp866", "CP866"},
                                                         {"cp850", "CP850"},
                                                         {"koi8-r", "KOI8-R"},
                                                         {"iso-8859-5", "ISO-8859-5"},
                                                         {"mac-cyrillic", "MAC-CYRILLIC"}};

std::optional<std::string> system_convert(std::string text, const std::string& from,
                                          const std::string& to) {
  const iconv_t converter = iconv_open(to.c_str(), from.c_str());
  std::string result(16, '\0');
  char* in = text.data();
  char* out = result.data();
  std::size_t in_left = text.size();
  std::size_t out_left = result.size();
  const std::size_t lost = iconv(converter, &in, &in_left, &out, &out_left);
  iconv_close(converter);
  if (lost != 0) return std::nullopt;
  return result.substr(0, result.size() - out_left);
}

// The system has the currency sign at 255 of Mac Cyrillic; the euro sign has taken its place.
std::optional<std::string> decoded(char byte, const std::string& page) {
  if (page == "mac-cyrillic" && byte == '\xFF') return "€";
  return system_convert({byte}, kSystemNames.at(page), "UTF-8");
}
std::optional<std::string> encoded(const std::string& character, const std::string& page) {
  if (page == "mac-cyrillic" && character == "€") return "\xFF";
  if (page == "mac-cyrillic" && character == "¤") return std::nullopt;
  return system_convert(character, "UTF-8", kSystemNames.at(page));
}

TEST(Convert, AgreesWithTheSystemOnAllBytesOfAllPairs) {
  const Workplace place;
  for (const auto& from : kSystemNames) {
    std::string bytes;
    std::vector<std::string> characters;
    for (int byte = 0; byte < 256; ++byte) {
      const auto character = decoded(static_cast<char>(byte), from.first);
      if (!character) {
        const std::string input = {'a', '\n', 'b', static_cast<char>(byte), '\n'};
        const Outcome refused = convert(place, from.first, "utf-8", input);
        EXPECT_EQ(refused.status, 4) << from.first << byte;
        EXPECT_EQ(refused.out, "a\n");
        EXPECT_NE(refused.err.find(":2: byte 2 is no character"), std::string::npos);
        continue;
      }
      bytes += static_cast<char>(byte);
      characters.push_back(*character);
    }
    for (const auto& to : kSystemNames) {
      std::string expected;
      for (const std::string& c : characters) expected += encoded(c, to.first).value_or("??");
      EXPECT_EQ(convert(place, from.first, to.first, bytes, {"--replace", "??"}).out, expected)
          << from.first << " to " << to.first;
    }
    const std::string html = convert(place, from.first, "html", bytes).out;
    EXPECT_EQ(convert(place, "html", from.first, html).out, bytes);
  }
}

TEST(Convert, NarrowlyDoesWhatTheLibraryDoes) {
  const Workplace place;
  std::string bytes;
  for (int byte = 1; byte < 256; ++byte) bytes += static_cast<char>(byte);
  bytes += "&#196;&#65;\n";
  const auto expect = [&](const char* from, const char* to, char* (*function)(const char*, char*)) {
    std::string half(bytes.size() * 6 + 1, '\0');
    half.resize(static_cast<std::size_t>(function(bytes.c_str(), half.data()) - half.data()));
    const std::string input = bytes + '\0' + bytes;
    EXPECT_EQ(convert(place, from, to, input, {"--narrow"}).out, half + '\0' + half) << from << to;
  };
  expect("cp1251", "866", strruansitooem);
  expect("IBM866", "Windows-1251", strruoemtoansi);
  expect("win1252", "CP850", stransitooem);
  expect("850", "1252", stroemtoansi);
  expect("1251", "koi8-r", stransitokoi8);
  expect("KOI8", "1251", strkoi8toansi);
  expect("866", "koi8r", stroemtokoi8);
  expect("koi8r", "866", strkoi8tooem);
  expect("1251", "ISO_8859-5", stransitoiso);
  expect("iso8859-5", "1251", strisotoansi);
  expect("866", "cyrillic", stroemtoiso);
  expect("cyrillic", "866", strisotooem);
  expect("866", "x-mac-cyrillic", stroemtomac);
  expect("MacCyrillic", "866", strmactooem);
  expect("1251", "html", stransitohtml);
  expect("HTML", "1251", strhtmltoansi);

  const Outcome refused = convert(place, "cp866", "cp850", "", {"--narrow"});
  EXPECT_EQ(refused.status, 2);
  EXPECT_NE(refused.err.find("koi8-r to cp866"), std::string::npos);
  const Outcome seen =
      convert(place, "cp866", "1251", "\x8D\xA5\xE2 \xC9\r\n", {"--narrow", "--json"});
  EXPECT_EQ(json::parse(seen.out),
            json({{"line", 1}, {"input", "Нет ╔"}, {"output", "Нет +"}, {"bytes", "cde5f2202b"}}));
}

TEST(Convert, ReportsCharactersWithoutAPlace) {
  const Workplace place;
  const std::string text = "мир\nда ≤ → №\r\nконец";
  const Outcome failed = convert(place, "utf-8", "koi8-r", text);
  EXPECT_EQ(failed.status, 5);
  EXPECT_EQ(failed.out, "\xCD\xC9\xD2\n");
  EXPECT_NE(failed.err.find(":2: column 6: the character '→' (U+2192)"), std::string::npos);

  const Outcome check = convert(place, "utf-8", "koi8-r", text, {"--check"});
  EXPECT_EQ(check.status, 1);
  EXPECT_EQ(check.out, "");
  EXPECT_NE(check.err.find(":2: column 6: the character '→' (U+2192)"), std::string::npos);
  EXPECT_NE(check.err.find(":2: column 8: the character '№' (U+2116)"), std::string::npos);
  EXPECT_EQ(convert(place, "utf-8", "html", text, {"--check"}).status, 0);

  const Outcome seen = convert(place, "utf-8", "windows-1251", "№\n≤\n", {"--check", "--json"});
  EXPECT_EQ(seen.status, 1);
  EXPECT_EQ(seen.err, "");
  EXPECT_EQ(json::parse(seen.out.substr(seen.out.find('\n')))["missing"],
            json({{{"column", 1}, {"character", "≤"}, {"code_point", "U+2264"}}}));
  const Outcome replaced = convert(place, "utf-8", "koi8-r", text, {"--replace", "a№"});
  EXPECT_EQ(replaced.status, 2);
  EXPECT_NE(replaced.err.find("'№' (U+2116) is not in KOI8-R"), std::string::npos);
}

TEST(Filter, KeepsLineEndsZerosAndLinesOfAnyLength) {
  const Workplace place;
  std::string text;
  for (int line = 0; line < 3000; ++line) {
    text += "Ёж" + std::string(static_cast<std::size_t>(line * 37 % 101), 'x') + '\0' + "→\r\n";
  }
  text += std::string(300'000, 'y') + "я\n\n\r\nконец";
  EXPECT_TRUE(convert(place, "utf-8", "html", text).out != text);
  EXPECT_TRUE(convert(place, "html", "utf-8", convert(place, "utf-8", "html", text).out).out ==
              text);
  place.write("none", "");
  for (const Arguments& command : {Arguments{"layout", "--to", "latin", "--look-alike"},
                                   {"replace", "none"},
                                   {"translit", "--to", "russian"},
                                   {"translit", "--to", "russian", "--smart"}}) {
    const Outcome answer = place.kzdic(command, "→\0\r\n\n€"s + std::string(70'000, '-'));
    EXPECT_TRUE(answer.out == "→\0\r\n\n€"s + std::string(70'000, '-')) << command[0];
  }
  EXPECT_EQ(convert(place, "html", "utf-8", "&#1078;\r\n&#x416;\r", {"--json"}).out,
            "{\"line\":1,\"input\":\"&#1078;\",\"output\":\"ж\",\"missing\":[]}\n"
            "{\"line\":2,\"input\":\"&#x416;\\r\",\"output\":\"Ж\\r\",\"missing\":[]}\n");
  // A byte-order mark is passed over where the text is UTF-8.
  EXPECT_EQ(convert(place, "utf-8", "koi8-r", "\xEF\xBB\xBFмир").out, "\xCD\xC9\xD2");
  EXPECT_EQ(convert(place, "cp1251", "utf-8", "\xEF\xBB\xBF").out, "п»ї");
  const Outcome bad = place.kzdic({"layout", "--to", "latin"}, "фы\n\nф\xD0\n");
  EXPECT_EQ(bad.status, 4);
  EXPECT_EQ(bad.out, "as\n\n");
  EXPECT_NE(bad.err.find(":3: byte 3 is not UTF-8"), std::string::npos);
}

// Words of these characters, in a line that is answered in pieces.
std::string long_line(const std::vector<std::string>& pieces, unsigned seed) {
  std::mt19937 random(seed);
  std::string line;
  while (line.size() < 1'300'000) line += pieces[random() % pieces.size()];
  return line;
}

TEST(Filter, AnswersALongLineAsTheLibraryDoes) {
  const Workplace place;
  const auto made = [](const std::string& source, const auto& function) {
    std::string result(source.size() * 3 + 1, '\0');
    result.resize(
        static_cast<std::size_t>(function(source.c_str(), result.data()) - result.data()));
    return result;
  };
  const std::string html = long_line({"&#196;", "&#65;", "&", "&#", "a", ";"}, 1);
  EXPECT_TRUE(convert(place, "html", "cp1251", html, {"--narrow"}).out ==
              made(html, strhtmltoansi));
  const std::string mixed = long_line({"&#1078;", "Ж", "→", "x", "&"}, 2);
  EXPECT_TRUE(convert(place, "html", "utf-8", convert(place, "utf-8", "html", mixed).out).out ==
              convert(place, "html", "utf-8", mixed).out);
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"a", "b", "C", "e", "h", "t", "o", "s", "i", "u", "gh"},
        {"so ld ", "the ", "make ", "notes, ", "Age e", "ght"}}) {
    const std::string text = long_line(words, 3);
    EXPECT_TRUE(convert(place, "utf-8", "cp1251",
                        place.kzdic({"translit", "--to", "russian", "--smart"}, text).out)
                    .out == made(text, [](const char* source, char* out) {
                  return strtransliterateenrusmart(source, out, 1);
                }));
  }
  for (const std::string buffer : {"ab=xyz\r\nb\r\nba=Q\r\naab=\r\n", "c=dd\r\nab\r\n"}) {
    place.write("words", buffer);
    CFindBuffer loaded(0);
    ASSERT_EQ(loaded.Load(place.path("words").c_str()), 0);
    const std::string text = long_line({"a", "b"}, 4);
    EXPECT_TRUE(place.kzdic({"replace", "words"}, text).out ==
                made(text, [&](const char* source, char* out) {
                  return ChangeWord(&loaded, source, out), out + std::strlen(out);
                }));
  }
}

TEST(Filter, WritesNothingOfALongLineThatCannotBeAnswered) {
  const Workplace place;
  const std::string line = long_line({"Ж"}, 1);
  const std::string column = ":2: column " + std::to_string(line.size() / 2 + 1) + ": ";
  const Outcome lacking = convert(place, "utf-8", "cp866", "a\n" + line + "→\nb\n");
  EXPECT_EQ(lacking.status, 5);
  EXPECT_EQ(lacking.out, "a\n");
  EXPECT_NE(lacking.err.find(column), std::string::npos) << lacking.err;
  const Outcome checked = convert(place, "utf-8", "cp866", "a\n" + line + "→\n→\n", {"--check"});
  EXPECT_NE(checked.err.find(column), std::string::npos);
  EXPECT_EQ(std::count(checked.err.begin(), checked.err.end(), '\n'), 2);
  const Outcome bad = place.kzdic({"layout", "--to", "latin"}, "ф\n" + line + "\xD0\nф\n");
  EXPECT_EQ(bad.status, 4);
  EXPECT_EQ(bad.out, "a\n");
  EXPECT_NE(bad.err.find(":2: byte " + std::to_string(line.size() + 1)), std::string::npos);
}

#ifndef __SANITIZE_ADDRESS__
TEST(Filter, HoldsALongLineOnce) {
  const Workplace place;
  constexpr std::size_t kSize = 20'000'000;
  place.write("line", std::string(kSize, 'a'));
  place.write("words", "b=c\r\na=dd\r\n");
  for (const std::string command :
       {"convert --from utf-8 --to html", "translit --to russian --smart", "translit --to latin",
        "layout --to russian", "replace words"}) {
    const std::string run =
        "cd " + place.path("") + " && exec " KZDIC_PATH " " + command + " line > /dev/null";
    const pid_t child = fork();
    if (child == 0) {
      execl("/bin/sh", "sh", "-c", run.c_str(), nullptr);
      _exit(127);
    }
    int status = -1;
    struct rusage usage {};
    ASSERT_EQ(wait4(child, &status, 0, &usage), child);
    EXPECT_EQ(status, 0);
    EXPECT_LT(usage.ru_maxrss * 1024L, 2L * kSize) << command;
  }
}
#endif

TEST(Filter, AnswersALineOfAPipeAtOnce) {
  const Workplace place;
  const std::string command = KZDIC_PATH " layout --to latin >'" + place.path("answer") + "'";
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

TEST(Alphabets, ConvertLettersAndLeaveTheRest) {
  const Workplace place;
  const struct {
    Arguments command;
    std::string input, output;
  } cases[] = {
      {{"translit", "--to", "latin"}, "Щи, ёж [naïve] →", "SCHi, yozh [naïve] →"},
      {{"translit", "--to", "latin", "--capitals"}, "Щи, ёж [a] →", "SCHI, YOZH (a) →"},
      {{"translit", "--to", "russian"}, "cafe à Été; ñ щи Bar", "сафе а Ете; ñ щи Bар"},
      {{"translit", "--to", "russian", "--language", "DE"}, "Öl é BAS", "Ол é BАС"},
      {{"translit", "--to", "russian", "--smart"}, "the Washington →\nthe\n", " Уошингтон →\n\n"},
      {{"translit", "--to", "russian", "--smart", "--small"}, "FAX", "факс"},
      {{"layout", "--to", "latin"}, "Руддщ → ё", "Hello → `"},
      {{"layout", "--to", "russian"}, "ghbdtn € <", "привет € Б"},
      {{"layout", "--to", "latin", "--look-alike"}, "сор ж", "cop ж"},
      {{"layout", "--to", "russian", "--look-alike"}, "cop z", "сор z"},
  };
  for (const auto& [command, input, output] : cases) {
    EXPECT_EQ(place.kzdic(command, input).out, output) << input;
  }
  place.write("text", "руддщ\n");
  const Outcome seen = place.kzdic({"layout", "--to", "latin", "--json", "text", "-"}, "→ф");
  EXPECT_EQ(seen.out,
            "{\"file\":\"text\",\"line\":1,\"input\":\"руддщ\",\"output\":\"hello\"}\n"
            "{\"file\":\"(standard input)\",\"line\":1,\"input\":\"→ф\",\"output\":\"→a\"}\n");
  EXPECT_EQ(place.kzdic({"layout", "--to", "greek"}).status, 2);
  EXPECT_EQ(place.kzdic({"translit", "--to", "latin", "--smart"}).status, 2);
}

TEST(Replace, AppliesTheBufferAndRefusesBadOnes) {
  const Workplace place;
  const auto make = [&](const std::string& name, const std::string& utf8) {
    place.write(name, convert(place, "utf-8", "windows-1251", utf8).out);
  };
  make("words", "кот=кошка\r\nab\r\nb=Y\r\nмного=" + std::string(15'000, '!'));
  EXPECT_EQ(place.kzdic({"replace", "words"}, "→ кот→ab котлета abb\nab").out,
            "→ кошка→ кошкалета Y\n");
  const Outcome grown = place.kzdic({"replace", "words"}, "много\nмного много");
  EXPECT_EQ(grown.out.size(), 45'002U);
  const std::string text(4'000'000, 'x');
  EXPECT_TRUE(place.kzdic({"replace", "words"}, text + "ab" + text).out == text + text);

  make("unix", "a=b\nc=d\n");
  place.write("page", "a=\x98\r\n");
  place.write("long", std::string(16'000, 'a'));
  place.write("zero", std::string("a=b\r\n\0", 6));
  const std::pair<const char*, int> refused[] = {{"unix", 4}, {"page", 4},   {"long", 4},
                                                 {"zero", 4}, {"absent", 3}, {".", 3}};
  for (const auto& [name, status] : refused) {
    const Outcome outcome = place.kzdic({"replace", name}, "a\n");
    EXPECT_EQ(outcome.status, status) << name;
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.starts_with(std::string("kzdic: ") + name)) << outcome.err;
  }
}

}  // namespace
