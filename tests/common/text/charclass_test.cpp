// Character classes and case of the five families, selectors, punctuation.
#include "kz/charclass.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "tests/common/text/reference.h"
#include "tests/common/text/text_at_page_end.h"

namespace {

using namespace kz_test;

using Function = int16_t (*)(int);
using CaseFunction = int (*)(int);
using TextFunction = char* (*)(char*);

bool one_of(int c, std::string_view letters) {
  return letters.find(static_cast<char>(c)) != letters.npos;
}

std::string range(int first, int last) {
  std::string letters;
  for (int c = first; c <= last; ++c) letters += static_cast<char>(c);
  return letters;
}

const std::string digits = "0123456789", latin_upper = range('A', 'Z'),
                  latin_lower = range('a', 'z');
const std::string latin = latin_upper + latin_lower;
const std::string ru_ansi_upper = range(192, 223) + '\xA8',
                  ru_ansi_lower = range(224, 255) + '\xB8';
const std::string ru_oem_upper = range(128, 159) + '\xF0';
const std::string ru_oem_lower = range(160, 175) + range(224, 239) + '\xF1';
// Windows-1252 has more pairs than letters of the languages.
const std::string western_upper = range(192, 214) + range(216, 222) + "\x9F\x8A\x8C";
const std::string western_lower = range(224, 246) + range(248, 254) + "\xFF\x9A\x9C";

const struct Family {
  const char* name;
  Function upper, lower, alpha, alnum;
  std::string upper_letters, lower_letters;
  CaseFunction to_upper, to_lower;
  TextFunction text_to_upper, text_to_lower;
  std::string upper_partners, lower_partners;
} families[] = {
    {"ascii", _isupper, _islower, _isalpha, _isalnum, latin_upper, latin_lower, __toupper,
     __tolower, __strupr, __strlwr, latin_upper, latin_lower},
    {"ru ansi", isruansiupper, isruansilower, isruansialpha, isruansialnum, ru_ansi_upper,
     ru_ansi_lower, toruansiupper, toruansilower, strruansiupr, strruansilwr,
     latin_upper + ru_ansi_upper, latin_lower + ru_ansi_lower},
    {"ru oem", isruoemupper, isruoemlower, isruoemalpha, isruoemalnum, ru_oem_upper, ru_oem_lower,
     toruoemupper, toruoemlower, strruoemupr, strruoemlwr, ru_oem_upper, ru_oem_lower},
    {"ansi", isansiupper, isansilower, isansialpha, isansialnum,
     latin_upper + bytes(western_upper_1252), latin_lower + bytes(western_lower_1252), toansiupper,
     toansilower, stransiupr, stransilwr, latin_upper + western_upper, latin_lower + western_lower},
    {"oem", isoemupper, isoemlower, isoemalpha, isoemalnum, latin_upper + bytes(western_upper_850),
     latin_lower + bytes(western_lower_850), tooemupper, tooemlower, stroemupr, stroemlwr,
     latin_upper + bytes(western_upper_850), latin_lower + bytes(western_lower_850)}};

std::string all_but(std::string_view letters) {
  std::string others = range(0, 255);
  std::erase_if(others, [&](char c) { return one_of(c, letters); });
  return others;
}

const struct Class {
  const char* name;
  Function function;
  std::string characters;
} classes[] = {
    {"_isdigit", _isdigit, digits},
    {"_isxdigit", _isxdigit, digits + "abcdefABCDEF"},
    {"_isspace", _isspace, "\t\n\v\f\r "},
    {"_iscntrl", _iscntrl, range(0, 31) + '\x7F'},
    {"IsSourcePunct", IsSourcePunct, all_but(latin + digits + ru_ansi_upper + ru_ansi_lower)},
    {"IsSourceComma", IsSourceComma, bytes("2c82")},
    {"IsSourceDash", IsSourceDash, bytes("2d1e9697ad")},
    {"IsSourceApostrophe", IsSourceApostrophe, bytes("27609192b4")},
    {"IsSourceQmark", IsSourceQmark, bytes("22849394abbb")}};

void expect_class(const std::string& name, Function function, int c, bool wanted) {
  for (const int code : {c, c - 256, c + 512}) EXPECT_EQ(function(code), wanted) << name << code;
}

TEST(CharClass, EveryClassHoldsExactlyItsCharacters) {
  for (int c = 0; c < 256; ++c) {
    for (const Class& test : classes)
      expect_class(test.name, test.function, c, one_of(c, test.characters));
    for (const Family& family : families) {
      const bool upper = one_of(c, family.upper_letters), lower = one_of(c, family.lower_letters);
      expect_class(family.name, family.upper, c, upper);
      expect_class(family.name, family.lower, c, lower);
      expect_class(family.name, family.alpha, c, upper || lower);
      expect_class(family.name, family.alnum, c, upper || lower || one_of(c, digits));
    }
  }
}

TEST(CharCase, LettersHaveTheirPartnerAndTextsChangeInPlaceUpToTheirZero) {
  GuardedMemory memory(32768);
  const auto expect = [&memory](CaseFunction function, TextFunction change, std::string_view from,
                                std::string_view to) {
    for (int c = 0; c < 256; ++c) {
      const int wanted = partner(c, from, to);
      EXPECT_TRUE(function(c) == wanted && function(c - 256) == wanted) << c;
    }
    for (const std::size_t size : interesting_sizes()) {
      const std::string text = random_text(size, static_cast<unsigned>(size) + 7);
      std::string wanted = text;
      for (char& c : wanted) c = static_cast<char>(function(c));
      char* in_place = memory.text(text);
      ASSERT_EQ(change(in_place), in_place);
      ASSERT_STREQ(in_place, wanted.c_str()) << size;
    }
    EXPECT_EQ(change(nullptr), nullptr);
  };
  for (const Family& family : families) {
    SCOPED_TRACE(family.name);
    expect(family.to_upper, family.text_to_upper, family.lower_partners, family.upper_partners);
    expect(family.to_lower, family.text_to_lower, family.upper_partners, family.lower_partners);
  }
}

TEST(Selectors, ChooseTheFamilyByLanguageAndCodePage) {
  const auto& [ascii, ru_ansi_family, ru_oem_family, ansi, oem] = families;
  for (int c = -128; c < 256; ++c) {
    for (const char* language :
         {"RU", "ru", "RUEN", "rUde", "DE", "ENRU", "R", "", static_cast<const char*>(nullptr)}) {
      const bool russian =
          language != nullptr && std::strlen(language) > 1 && (language[0] | 32) == 'r';
      for (const int code_page : {-1, 0, 1, 2}) {
        const Family& family = code_page == 0   ? russian ? ru_oem_family : oem
                               : code_page == 1 ? russian ? ru_ansi_family : ansi
                                                : ascii;
        EXPECT_EQ(ischalpha(c, language, code_page), family.alpha(c));
        EXPECT_EQ(IsUCharAlpha(c, language, code_page), family.alpha(c));
        EXPECT_EQ(ischupper(c, language, code_page), family.upper(c));
        EXPECT_EQ(ischlower(c, language, code_page), family.lower(c));
      }
    }
  }
}

TEST(Punctuation, TypographicFormsCountInAnsiOnly) {
  const struct {
    int16_t (*function)(int, int);
    std::string characters;  // in every code page but 1
    Function in_ansi;
  } rows[] = {{iscomma, ",", IsSourceComma},
              {isdash, "-", IsSourceDash},
              {isapostrophe, "'`", IsSourceApostrophe},
              {isqmark, "\"", IsSourceQmark},
              {ischpunct, all_but(latin + digits + ru_oem_upper + ru_oem_lower), IsSourcePunct}};
  for (const auto& [function, characters, in_ansi] : rows) {
    for (int c = 0; c < 256; ++c) {
      for (const int code_page : {0, 2})
        EXPECT_EQ(function(c, code_page), one_of(c, characters)) << c;
      EXPECT_EQ(function(c, 1), in_ansi(c)) << c;
    }
  }
  EXPECT_EQ(kz_codr_get_internal_code(), 1);
}

}  // namespace
