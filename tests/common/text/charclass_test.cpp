// Character classes and case of the five families, selectors, punctuation.
#include "kz/charclass.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "tests/common/text/reference.h"
#include "tests/common/text/text_at_page_end.h"

namespace {

using namespace kz_test;

bool in(int c, int first, int last) { return c >= first && c <= last; }
bool one_of(int c, std::string_view hex) { return std::ranges::count(codes(hex), c) != 0; }

bool digit(int c) { return in(c, '0', '9'); }
bool latin_upper(int c) { return in(c, 'A', 'Z'); }
bool latin_lower(int c) { return in(c, 'a', 'z'); }
bool latin(int c) { return latin_upper(c) || latin_lower(c); }
bool ru_ansi_upper(int c) { return in(c, 192, 223) || c == 168; }
bool ru_ansi_lower(int c) { return in(c, 224, 255) || c == 184; }
bool ru_ansi(int c) { return ru_ansi_upper(c) || ru_ansi_lower(c); }
bool ru_oem_upper(int c) { return in(c, 128, 159) || c == 240; }
bool ru_oem_lower(int c) { return in(c, 160, 175) || in(c, 224, 239) || c == 241; }
bool ru_oem(int c) { return in(c, 128, 175) || in(c, 224, 241); }
bool ansi_upper(int c) { return latin_upper(c) || one_of(c, western_upper_1252); }
bool ansi_lower(int c) { return latin_lower(c) || one_of(c, western_lower_1252); }
bool oem_upper(int c) { return latin_upper(c) || one_of(c, western_upper_850); }
bool oem_lower(int c) { return latin_lower(c) || one_of(c, western_lower_850); }

using ClassTest = int16_t (*)(int);
using Rule = bool (*)(int);

const struct Family {
  const char* name;
  ClassTest upper, lower, alpha, alnum;
  Rule is_upper, is_lower;
} families[] = {
    {"ascii", _isupper, _islower, _isalpha, _isalnum, latin_upper, latin_lower},
    {"ru ansi", isruansiupper, isruansilower, isruansialpha, isruansialnum, ru_ansi_upper,
     ru_ansi_lower},
    {"ru oem", isruoemupper, isruoemlower, isruoemalpha, isruoemalnum, ru_oem_upper, ru_oem_lower},
    {"ansi", isansiupper, isansilower, isansialpha, isansialnum, ansi_upper, ansi_lower},
    {"oem", isoemupper, isoemlower, isoemalpha, isoemalnum, oem_upper, oem_lower},
};

const struct Class {
  const char* name;
  ClassTest function;
  Rule rule;
} classes[] = {
    {"_isdigit", _isdigit, digit},
    {"_isxdigit", _isxdigit, [](int c) { return digit(c) || in(c, 'a', 'f') || in(c, 'A', 'F'); }},
    {"_isspace", _isspace, [](int c) { return in(c, 9, 13) || c == 32; }},
    {"_iscntrl", _iscntrl, [](int c) { return c < 32 || c == 127; }},
    {"IsSourcePunct", IsSourcePunct, [](int c) { return !latin(c) && !digit(c) && !ru_ansi(c); }},
    {"IsSourceComma", IsSourceComma, [](int c) { return one_of(c, "2c82"); }},
    {"IsSourceDash", IsSourceDash, [](int c) { return one_of(c, "2d1e9697ad"); }},
    {"IsSourceApostrophe", IsSourceApostrophe, [](int c) { return one_of(c, "27609192b4"); }},
    {"IsSourceQmark", IsSourceQmark, [](int c) { return one_of(c, "22849394abbb"); }},
};

void expect_class(const std::string& name, ClassTest function, int c, bool wanted) {
  for (const int code : {c, c - 256, c + 512}) EXPECT_EQ(function(code), wanted) << name << code;
}

TEST(CharClass, EveryClassHoldsExactlyItsCharacters) {
  for (int c = 0; c < 256; ++c) {
    for (const Class& test : classes) expect_class(test.name, test.function, c, test.rule(c));
    for (const Family& family : families) {
      const bool upper = family.is_upper(c), lower = family.is_lower(c);
      expect_class(family.name, family.upper, c, upper);
      expect_class(family.name, family.lower, c, lower);
      expect_class(family.name, family.alpha, c, upper || lower);
      expect_class(family.name, family.alnum, c, upper || lower || digit(c));
    }
  }
}

int latin_to_upper(int c) { return latin_lower(c) ? c - 32 : c; }
int latin_to_lower(int c) { return latin_upper(c) ? c + 32 : c; }

// The partner of c in a list of letters, c itself when the list lacks it.
int partner(int c, std::string_view from, std::string_view to) {
  const std::vector<int> letters = codes(from);
  const auto found = std::ranges::find(letters, c);
  return found == letters.end() ? c : codes(to)[static_cast<std::size_t>(found - letters.begin())];
}

struct CaseFunction {
  const char* name;
  int (*function)(int);
  char* (*text)(char*);
  int (*rule)(int);
};

const CaseFunction case_functions[] = {
    {"__toupper", __toupper, __strupr, latin_to_upper},
    {"__tolower", __tolower, __strlwr, latin_to_lower},
    {"toruansiupper", toruansiupper, strruansiupr,
     [](int c) {
       if (c == 184) return 168;
       return in(c, 224, 255) ? c - 32 : latin_to_upper(c);
     }},
    {"toruansilower", toruansilower, strruansilwr,
     [](int c) {
       if (c == 168) return 184;
       return in(c, 192, 223) ? c + 32 : latin_to_lower(c);
     }},
    {"toruoemupper", toruoemupper, strruoemupr,
     [](int c) {
       if (c == 241) return 240;
       return in(c, 160, 175) ? c - 32 : in(c, 224, 239) ? c - 80 : c;
     }},
    {"toruoemlower", toruoemlower, strruoemlwr,
     [](int c) {
       if (c == 240) return 241;
       return in(c, 128, 143) ? c + 32 : in(c, 144, 159) ? c + 80 : c;
     }},
    {"toansiupper", toansiupper, stransiupr,
     [](int c) {
       if (in(c, 224, 254) && c != 247) return c - 32;
       return c == 255 ? 159 : c == 154 ? 138 : c == 156 ? 140 : latin_to_upper(c);
     }},
    {"toansilower", toansilower, stransilwr,
     [](int c) {
       if (in(c, 192, 222) && c != 215) return c + 32;
       return c == 159 ? 255 : c == 138 ? 154 : c == 140 ? 156 : latin_to_lower(c);
     }},
    {"tooemupper", tooemupper, stroemupr,
     [](int c) { return partner(latin_to_upper(c), western_lower_850, western_upper_850); }},
    {"tooemlower", tooemlower, stroemlwr,
     [](int c) { return partner(latin_to_lower(c), western_upper_850, western_lower_850); }},
};

TEST(CharCase, EveryCodeIsMappedByTheRule) {
  for (const CaseFunction& test : case_functions) {
    for (int c = 0; c < 256; ++c) {
      EXPECT_EQ(test.function(c), test.rule(c)) << test.name << ' ' << c;
      EXPECT_EQ(test.function(c - 256), test.rule(c)) << test.name << ' ' << c - 256;
    }
  }
}

TEST(CharCase, TextsOfAnyLengthChangeInPlaceUpToTheirZero) {
  GuardedMemory memory(32768);
  for (const CaseFunction& test : case_functions) {
    for (const std::size_t size : interesting_sizes()) {
      const std::string text = random_text(size, static_cast<unsigned>(size) + 7);
      std::string wanted = text;
      for (char& c : wanted) c = static_cast<char>(test.function(c));
      char* in_place = memory.text(text);
      ASSERT_EQ(test.text(in_place), in_place);
      ASSERT_STREQ(in_place, wanted.c_str()) << test.name << ' ' << size;
    }
    EXPECT_EQ(test.text(nullptr), nullptr) << test.name;
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
  for (int c = 0; c < 256; ++c) {
    for (const int code_page : {0, 2}) {
      EXPECT_EQ(iscomma(c, code_page), c == ',') << c;
      EXPECT_EQ(isdash(c, code_page), c == '-') << c;
      EXPECT_EQ(isapostrophe(c, code_page), c == '\'' || c == '`') << c;
      EXPECT_EQ(isqmark(c, code_page), c == '"') << c;
      EXPECT_EQ(ischpunct(c, code_page), !latin(c) && !digit(c) && !ru_oem(c)) << c;
    }
    EXPECT_EQ(iscomma(c, 1), IsSourceComma(c)) << c;
    EXPECT_EQ(isdash(c, 1), IsSourceDash(c)) << c;
    EXPECT_EQ(isapostrophe(c, 1), IsSourceApostrophe(c)) << c;
    EXPECT_EQ(isqmark(c, 1), IsSourceQmark(c)) << c;
    EXPECT_EQ(ischpunct(c, 1), IsSourcePunct(c)) << c;
  }
  EXPECT_EQ(kz_codr_get_internal_code(), 1);
}

}  // namespace
