// A slow second mapping: the rules written out one by one over the bytes of the word record.
#ifndef KZ_TESTS_GRAMMAR_MAP_REFERENCE_H
#define KZ_TESTS_GRAMMAR_MAP_REFERENCE_H

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>
#include <string_view>

#include "kz/gram_codec.h"
#include "text/literal.h"

namespace kz_test {

using kz::operator""_1251;

// All bit fields are read byte by byte, as a little-endian machine keeps them.
struct SlowMap {
  std::uint8_t* r;
  std::uint8_t &current = r[16], &mark = r[21], &secondary = r[134], &context = r[136];
  std::uint8_t &number = r[199], &tense = r[200], &person = r[201], &aspect = r[202];
  std::uint8_t &cases = r[203], &gender = r[204], &flags = r[205], &cases2 = r[206];
  std::uint8_t &v = r[207], &h = r[208];
  std::uint8_t *foreign = r + 139, *russian = r + 167;
  const std::uint8_t* g = nullptr;  // the grammar that the rule reads
  unsigned char code = 0;

  explicit SlowMap(std::uint8_t* record) : r(record) {}

  static bool bit_of(const std::uint8_t* gram, int word, int bit) {
    return (gram[word * 4 + bit / 8] >> bit % 8 & 1) != 0;
  }
  bool bit(int word, int number_of_bit) const { return bit_of(g, word, number_of_bit); }
  std::uint8_t bits(int word, int first, int count) const {
    int value = 0;
    for (int i = 0; i < count; ++i) value |= bit(word, first + i) << i;
    return static_cast<std::uint8_t>(value);
  }
  bool is(std::string_view codes) const {
    return codes.find(static_cast<char>(code)) != std::string_view::npos;
  }
  bool singular() const { return bit(1, 3); }
  bool plural() const { return bit(1, 4); }
  bool no_plural() const { return bit(1, 5); }
  bool no_singular() const { return bit(1, 6); }
  std::uint8_t g_gender() const { return static_cast<std::uint8_t>(bit(1, 0) + 2 * bit(1, 1)); }
  std::uint8_t g_person() const { return bits(5, 16, 2); }
  std::uint8_t g_cases() const { return bits(1, 16, 6); }
  void paradigm() {
    r[218] = bits(3, 8, 8);
    r[219] = bits(3, 16, 8);
    r[220] = r[221] = 0;
  }
  bool word_is(std::string_view wanted) const {
    std::string word(reinterpret_cast<const char*>(r + 52));
    for (char& c : word) {
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    }
    return word == wanted;
  }

  void er_vgram() {
    if (bit(5, 31)) h = 1;
    if (plural()) number = 1;
    if (!plural() && singular()) number = 0;
    gender = g_gender();
    if (person == 0 && g_person() != 0) person = g_person();
    if (g_cases() != 0) cases = g_cases();
    if (bit(1, 9)) aspect = 1;
    if (bit(1, 11)) v = 1;
    if (bit(1, 22)) flags |= 1;
    if (bit(1, 12)) flags |= 4;
    if (bit(1, 10) && tense == 0) tense = 1;
    if (bit(1, 14)) tense = 2;
  }
  void re_vgram() {
    if (bit(5, 31)) h = 1;
    if (number == 0) number = singular() && plural() ? 2 : plural() ? 1 : 0;
    if (gender == 0) gender = g_gender();
    if (person == 0) person = g_person();
    if (bit(1, 9)) aspect = 1;
    if (bit(1, 11)) v = 1;
    if (bit(1, 22)) flags |= 1;
    if (bit(1, 12)) flags |= 4;
    if (bit(1, 15)) flags |= 2;
    if (bit(1, 10)) tense = 1;
    if (bit(1, 14)) tense = 2;
  }

  void noun_number() {
    if (singular() && plural())
      number = 2;
    else if (plural() || no_singular())
      number = 1;
    else if (singular() || no_plural())
      number = 0;
  }
  void er_rgram(unsigned char c) {
    g = russian, code = c;
    if (is("#Nn")) noun_number(), gender = g_gender(), person = 3, paradigm();
    if (is("AaEFV")) {
      if (bit(5, 31)) h = 1;
      if (plural())
        number = 1;
      else if (singular())
        number = 0;
    }
    if (is("EFV")) {
      if (g_cases() != 0)
        cases = g_cases();
      else if (bits(2, 0, 6) != 0)
        cases = bits(2, 0, 6);
      if (cases2 == 0) cases2 = bits(2, 0, 6);
      if (bit(1, 9)) aspect = 1;
      if (bit(1, 11)) v = 1;
      if (bit(4, 19)) v = 0, aspect = 0;
      if (bit(1, 12)) flags |= 4;
      if (bit(1, 10)) tense = 1;
      if (bit(1, 14)) tense = 2;
      if (bit(1, 26) && !bit(1, 27)) aspect = 1;
      if (bit(1, 27) && !bit(1, 26)) aspect = 0;
      if (bit(4, 20)) v = 0;
      if (bit(1, 28) && bit(1, 29) && bit(1, 9)) russian[4 + 3] &= 0xEF;
      if (bit(1, 29) && (bit(1, 27) || bit_of(foreign, 4, 17))) flags &= 0xFE;
      if (bit(1, 28)) flags |= 1;
    }
    if (is("AaEFV")) paradigm();
    if (is("Pf") && g_cases() != 0 && !(context == 'B' && cases != 0)) cases = g_cases();
  }

  void er_egram(unsigned char c) {
    g = foreign, code = c;
    if (is("#Nn")) {
      if (singular() && plural())
        number = 2;
      else if (c == 'n' || plural() || no_singular())
        number = 1, current = 'n';
      else if (singular() || no_plural())
        number = 0;
      gender = g_gender(), cases = g_cases(), person = 3, paradigm();
    }
    if (is("A")) paradigm();
    if (is("P") && !bit(4, 27) && (word_is("of") || bit(5, 7))) aspect = 1;
    if (is("BPbfp")) prepositional();
    if (is("EFGVZh")) {
      if (cases == 0) cases = 8;
      if (current != 'G') {
        if (bit(1, 10) || is("EFh") || context == 'E') tense = 1;
        if (is("V")) {
          if (person == 0 && g_person() != 0) person = g_person();
          if (plural()) number = 1;
          if (context == 'z') number = 0;
        }
        if (is("h")) context = current = 'V';
        if (is("F")) secondary = 'n', context = current = 'E';
        paradigm();
      }
    }
    if (is(U"MQRqrtм"_1251)) pronoun(), person = g_person();
    if (is("z")) er_vgram(), number = 1, person = 3, cases = cases == 0 ? 8 : cases;
    if (is(U"БГв"_1251)) {
      if (plural()) number = 1;
      tense = bit(1, 10) ? 1 : 0;
      person = g_person();
    }
    if (is(U"Й"_1251)) person = 3, gender = 1;
    both_egram();
    if (is("X") && word_is("be")) foreign[8] |= 0x80;
  }
  void re_egram(unsigned char c) {
    g = foreign, code = c;
    if (is("A")) paradigm();
    if (is("BPbfp")) prepositional();
    if (is("EFGVh")) {
      if (cases == 0) cases = 8;
      if (current != 'G') {
        if (bit(1, 10) || is("EFh")) tense = 1;
        er_vgram();
        if (is("h")) context = current = 'V';
        if (is("F")) secondary = 'n', context = current = 'E';
        paradigm();
      }
    }
    if (is("MQRqrt")) pronoun(), person = g_person();
    if (is("N")) {
      if (!(singular() && plural()) && (plural() || no_singular())) current = 'n';
      noun_number(), gender = g_gender(), cases = g_cases(), person = 3, paradigm();
      if (gender == 3) gender = 0;
    }
    both_egram();
  }
  void prepositional() {
    if (bit(1, 14)) tense = 2;
    cases = g_cases();
  }
  void pronoun() {
    if (singular()) number = 0;
    if (plural()) number = 1;
    gender = g_gender(), cases = g_cases();
  }
  void both_egram() {
    if (is("I") && plural()) number = 1;
    if (is("JUvXYx")) er_vgram();
    if (is("OS")) pronoun(), person = g_person() != 0 ? g_person() : 3;
    if (is("JOS") && bit(4, 7)) aspect = 1;
    if (is("Uv")) person = 3, cases = cases == 0 ? 8 : cases;
    if (is("Y")) cases = 8;
    if (is("a")) mark = 'a';
  }

  void re_rgram(unsigned char c) {
    g = russian, code = c;
    if (is("#Nin")) {
      noun_number(), gender = g_gender();
      if (g_cases() != 0) cases = g_cases();
    }
    if (is(U"ADadн"_1251)) {
      if (bit(5, 31)) h = 1;
      if (bit(5, 24)) h = 0;
      if (bits(3, 8, 8) != 0 || bits(3, 16, 8) != 0) paradigm();
    }
    if (is(U"ADadнLMOQRSlmoqrs"_1251)) pronoun();
    if (is("#NinLMOQRSlmoqrs")) person = g_person() != 0 ? g_person() : 3;
    if (is("I") && plural()) number = 1;
    if (is(U"EGZegvzЭЮJPpЧдпUXYxy"_1251)) re_vgram();
    if (is(U"ADadнJLMOQRSlmoqrs"_1251) && bit(4, 7)) aspect = 1;
    if (is(U"EGZegvzЭЮU"_1251)) {
      if (g_person() == 0) person = 3;
      if (cases == 0) cases = 8;
    }
    if (is(U"PpЧдп"_1251) && cases == 0) cases = g_cases();
    if (is("Y")) cases = 8;
    if (is("y") && cases == 0) cases = 2;
    if (is(U"EGZegvzЭЮV"_1251)) verb_tail();
  }
  void verb_tail() {
    if (bit(1, 26) && !bit(1, 27)) aspect = 1;
    if (bit(1, 27) && !bit(1, 26)) aspect = 0;
    if (bit(1, 9)) aspect = 1;
    if (bit(4, 17)) aspect = 0;
    if (bit(1, 29)) flags &= 0xFE;
    if (bit(1, 28)) flags |= 1;
    if (g_cases() != 0 && (cases == 0 || cases == 8)) cases = g_cases();
    if (cases == 0) cases = 8;
    if (bits(4, 8, 6) != 0) cases2 = bits(4, 8, 6);
  }
};

}  // namespace kz_test

#endif  // KZ_TESTS_GRAMMAR_MAP_REFERENCE_H
