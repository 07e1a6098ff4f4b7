// Exit statuses of kzdic and what it says of its failures.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/tools/kzdic_run.h"

namespace {

using ::testing::HasSubstr;

class StatusTest : public ::testing::Test {
 protected:
  StatusTest() {
    const std::pair<const char*, const char*> files[] = {
        {"s.txt", "cat*Nкот\n"},
        {"title.txt", "*: title One\n*: language ENRU\nbee*Nпчела\n"},
        {"same.txt", "*: title Two\n*: language DERU\nelf*Nэльф\n"},
        {"empty.txt", "* nothing\n"},
        {"digits.txt", "24*Nа\n"},
        {"db.index", "?\tA\tE\n"},
        {"db.dict", "?\n 1"},
        {"bad.dict", "ab\xFF\n"},
        {"bad.index", "ab\tA\tE\n"}};
    for (const auto& [name, text] : files) place.write(name, text);
    EXPECT_EQ(place.kzdic("build s.txt -o en.dic --language ENRU").status, 0);
  }

  void expect(const std::string& arguments, int status, const char* message) const {
    const Outcome outcome = place.kzdic(arguments);
    SCOPED_TRACE(arguments + '\n' + outcome.err);
    EXPECT_EQ(outcome.status, status);
    EXPECT_THAT(outcome.err, HasSubstr(message));
    if (status == 2) {
      EXPECT_TRUE(outcome.err.starts_with("kzdic: "));
      EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1);
    }
    EXPECT_FALSE(place.exists("o.dic"));
  }

  Workplace place;
};

TEST_F(StatusTest, IsThatOfTheCause) {
  const struct {
    std::string arguments;
    int status;
    const char* message;
  } cases[] = {
      {"", 2, "there are build, import, "},
      {"frob", 2, "no command 'frob' (there are build, import, "},
      {"grammar", 2, "no grammar command is given (there are decode, encode, name)"},
      {"--frob", 2, "unknown option --frob"},
      {"lookup en.dic cat --frob", 2, "--frob (see kzdic lookup --help)"},
      {"lookup en.dic", 2, "no word"},
      {"lookup en.dic cat --next -1", 2, "--next"},
      {"lookup en.dic cat --next 4294967297", 2, "--next"},
      {"lookup --raw --json en.dic cat", 2, "--raw"},
      {"lookup --grammar --raw en.dic cat", 2, "--raw"},
      {"lookup --set . cat", 2, "no direction"},
      {"lookup --set . --direction ENFR cat", 2, "no such direction"},
      {"lookup --set . --config '-CEN en.dic:0' cat", 2, "no such direction"},
      {"lookup --direction ENRU cat", 2, "--set"},
      {"grammar encode N colour=red", 2, "gender=masculine,feminine,neuter; number="},
      {"import --from dictd db -o o.dic --language EN", 2, "EN not in"},
      {"build s.txt", 2, "--output"},
      {"build s.txt -o o.dic", 2, "no language"},
      {"build s.txt -o o.dic --language ENFR", 2, "ENFR"},
      {"build title.txt -o o.dic --depth 4", 2, "--depth"},
      {"build title.txt -o o.dic --title " + std::string(41, 't'), 2, "longer than 40"},
      {"build title.txt -o o.dic --timestamp -1", 2, "--timestamp"},
      {"build title.txt -o o.dic --timestamp 2147483648", 2, "--timestamp"},
      {"build none.txt -o o.dic", 3, "none.txt"},
      {"build title.txt -o none/o.dic", 3, "none/o.dic"},
      {"lookup none.dic cat", 3, "none.dic"},
      {"lookup --set none --direction ENRU cat", 3, "none/: not a directory"},
      {"lookup --set . --direction ENRU cat", 3, "no dictionary of ENRU"},
      {"import --from dictd none -o o.dic", 3, "none.index"},
      {"info none.dic", 3, "none.dic"},
      {"info s.txt", 4, "s.txt: offset 0"},
      {"lookup s.txt cat", 4, "s.txt"},
      {"lookup en.dic cat c\xFF", 4, "byte 2 is not UTF-8"},
      {"grammar decode N \xFF", 4, "not UTF-8"},
      {"grammar name 0 \xFF", 4, "byte 1 is not UTF-8"},
      {"dump en.dic --from \xFF", 4, "not UTF-8"},
      {"import --from dictd db -o o.dic --language ENRU", 4, "no entry"},
      {"import --from dictd bad -o o.dic --language ENRU", 4, "offset 2"},
      {"build empty.txt -o o.dic --language ENRU", 4, "no entries"},
      {"build digits.txt -o o.dic --language ENRU", 4, "begins with a letter"},
      {"build title.txt same.txt -o o.dic", 4, "same.txt:1: title"},
      {"build title.txt -o o.dic --title ≤", 5, "U+2264"},
      {"grammar decode N ß", 5, "U+00DF"},
  };
  for (const auto& [arguments, status, message] : cases) expect(arguments, status, message);

  const std::pair<std::string, const char*> directives[] = {
      {"colour red", "d.txt:2: unknown directive 'colour'"},
      {"language ENFR", "d.txt:2: no such language: ENFR"},
      {"language", "d.txt:2: no such language"},
      {"type Q", "d.txt:2: no such type: Q"},
      {"label 123456789", "d.txt:2: the label is longer than 8"},
      {"title \xFF", "d.txt:2: the title is not UTF-8"}};
  for (const auto& [directive, message] : directives) {
    place.write("d.txt", "cat*Nкот\n*: " + directive + "\n");
    const std::string language = directive.starts_with("lang") ? "" : " --language ENRU";
    expect("build d.txt -o o.dic" + language, 4, message);
  }
}

TEST_F(StatusTest, StandardInputThatIsADirectoryCannotBeRead) {
  for (const char* command : {"lookup en.dic -", "build - -o o.dic --language ENRU",
                              "grammar encode -", "layout --to latin"}) {
    expect(std::string(command) + " < .", 3, "(standard input): cannot read");
  }
}

}  // namespace
