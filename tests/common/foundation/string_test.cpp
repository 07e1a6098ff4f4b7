// ZCString: sharing, locking, tags and buffers; searches and comparisons.
#include "kz/string.h"

#include <climits>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "tests/common/foundation/fixture.h"

using namespace std::string_literals;

namespace {

const ZCStringData& header(const ZCString& text) {
  return reinterpret_cast<const ZCStringData*>(static_cast<const char*>(text))[-1];
}

// The text, its room, tag and reference count.
std::string state(const ZCString& string) {
  return text(string) + ' ' + std::to_string(string.GetAllocLength()) + ' ' +
         std::to_string(string.GetLanguage()) + ' ' + std::to_string(header(string).references);
}

TEST(String, SharesABufferUntilAChange) {
  ZCString a("abc");
  EXPECT_EQ(state(a), "abc 3 0 1");
  ZCString b(a);
  b.SetLanguage(1049);
  EXPECT_EQ(state(a), "abc 3 1049 2") << "sharers see the tag";
  EXPECT_EQ(state(a = b), "abc 3 1049 2");
  b.SetAt(0, 'x');
  EXPECT_EQ(state(a), "abc 3 1049 1");
  EXPECT_EQ(state(b), "xbc 3 0 1");
  EXPECT_EQ(state(b = a), "abc 3 1049 2");
  EXPECT_EQ(state(b = "ab"), "ab 2 0 1");
  EXPECT_EQ(state(a = "de"), "de 3 1049 1");
  EXPECT_EQ(state(a = static_cast<const char*>(a) + 1), "e 3 1049 1");
  EXPECT_EQ(state(a = 'f'), "f 3 1049 1");
  EXPECT_EQ(state(a = "more"), "more 4 0 1");
  EXPECT_EQ(state(ZCString("a\0b", 3)), "a\0b 3 0 1"s);
  EXPECT_EQ(state(ZCString('x', 3)), "xxx 3 0 1");
  EXPECT_EQ(state(ZCString('x', -1)), " 0 0 -1");

  for (const auto change :
       {&ZCString::MakeReverse, &ZCString::TrimLeft, &ZCString::TrimRight, &ZCString::Trim,
        &ZCString::Code, &ZCString::DeCode, &ZCString::MakeUpper, &ZCString::MakeLower}) {
    ZCString sharer = tagged("abc", 1049), string(sharer);
    (string.*change)();
    EXPECT_EQ(state(sharer), "abc 3 1049 1");
    EXPECT_EQ(state(string).substr(3), " 3 0 1");
    (sharer.*change)();
    EXPECT_EQ(state(sharer).substr(3), " 3 1049 1") << "an own buffer stays";
  }
  ZCString word("abc");
  EXPECT_EQ((word.MakeReverse(), text(word)), "cba");
}

TEST(String, AppendsInPlaceOnlyWhereTheTextFits) {
  ZCString a("ab"), c("x");
  a.GetBuffer(6);
  a.SetLanguage(1033);
  EXPECT_EQ(state((a += "cd") += 'e'), "abcde 6 1033 1");
  EXPECT_EQ(state(a += ZCString("f")), "abcdef 6 1033 1");
  const ZCString b(a);
  EXPECT_EQ(state((a += "") += ZCString()), "abcdef 6 1033 2");
  EXPECT_EQ(state(a += 'g'), "abcdefg 7 0 1");
  EXPECT_EQ(state(a += a), "abcdefgabcdefg 14 0 1");
  a.GetBuffer(16);
  EXPECT_EQ(state(a += static_cast<const char*>(a) + 12), "abcdefgabcdefgfg 16 0 1");
  EXPECT_EQ(state(c += '\0'), "x\0 2 0 1"s);
}

TEST(String, BuffersAreAsLargeAsAskedFor) {
  ZCString a = tagged("abc", 1033);
  EXPECT_EQ((a.GetBuffer(2), state(a)), "abc 3 1033 1");
  EXPECT_EQ((a.GetBuffer(9), state(a)), "abc 9 0 1");
  a.SetLanguage(1033);
  EXPECT_EQ((a.FreeExtra(), state(a)), "abc 3 0 1");
  std::memcpy(a.GetBufferSetLength(5), "xy\0zz", 5);
  EXPECT_EQ(state(a), "xy\0zz 5 0 1"s);
  EXPECT_EQ(a.GetAt(5), '\0');
  EXPECT_EQ((a.ReleaseBuffer(-1), state(a)), "xy 5 0 1");
  ZCString b(a), c(a);
  EXPECT_EQ((b.ReleaseBuffer(1), state(b)), "x 2 0 1");
  EXPECT_EQ((c.GetBuffer(1), state(c)), "xy 2 0 1") << "not less than the text";
  EXPECT_EQ((a.Empty(), state(a)), " 0 0 -1");
  EXPECT_EQ((a.GetBuffer(4), a.Empty(), state(a)), " 4 0 1") << "it was empty";
  EXPECT_EQ((a.FreeExtra(), state(a)), " 0 0 -1");
}

TEST(String, ALockedBufferIsNeverShared) {
  ZCString a = tagged("abc", 1033);
  const ZCString b(a);
  EXPECT_EQ((a.LockBuffer(), state(a)), "abc 3 0 -1");
  EXPECT_EQ(state(b), "abc 3 1033 1");
  a.SetLanguage(1031);
  ZCString c(a);
  EXPECT_EQ(state(c), "abc 3 0 1");
  EXPECT_EQ(state(c = a), "abc 3 1031 1");
  EXPECT_EQ(state(a = b), "abc 3 1033 -1");
  EXPECT_EQ((a.Empty(), state(a)), " 3 1033 -1");
  a = "de";
  EXPECT_EQ((a.UnlockBuffer(), state(a)), "de 3 1033 1");
  a.LockBuffer();
  EXPECT_EQ(state(a = ZCString("longer")), "longer 6 0 1");
  a.SetLanguage(1033);
  EXPECT_EQ(state(a = ZCString()), " 6 0 1");
  ZCString none;
  none.LockBuffer();
  EXPECT_EQ((none.UnlockBuffer(), state(none)), " 0 0 -1");
}

TEST(String, NullTextsCountAsEmpty) {
  const char* const null = nullptr;
  ZCString string("abc");
  string.Insert(null, 1);
  string.Replace(null, "x");
  string.ReplaceOneOf(null, "x");
  EXPECT_EQ(texts({null, static_cast<const unsigned char*>(nullptr), {null, 3}}), "|||");
  EXPECT_EQ(texts({null + (string += null) + null, string.SpanExcluding(null)}), "abc|abc|");
  EXPECT_EQ(string.Find(null), 0);
  EXPECT_EQ(string.FindOneOf(null), -1);
  EXPECT_EQ(string.StartsWith(null) + string.IsFlex(null) + string.IsFlex(0, null), 3);
  EXPECT_EQ(string.StartsWithNoCase(null) + string.IsFlexNoCase(null), 2);
  EXPECT_TRUE(string.Compare(null) > 0 && string.CompareNoCase(null) > 0);
  EXPECT_EQ(texts({string.SpanIncluding(null), string.Replace("b", null), string = null}), "|ac||");
}

TEST(String, ATagOnAnEmptyStringIsItsOwn) {
  ZCString own = tagged("", 1049);
  const ZCString copy(own);
  EXPECT_EQ(own.GetLanguage() + copy.GetLanguage() + ZCString().GetLanguage(), 2 * 1049);
  own.SetLanguage(1033);
  EXPECT_EQ(copy.GetLanguage(), 1033) << "sharers see the tag";
  EXPECT_EQ(tagged("abc", 1031).Left(0).GetLanguage(), 1031);
  EXPECT_EQ(tagged("abc", 1031).Right(3).GetLanguage(), 0);
}

TEST(String, ConcatenationTakesExactlyTheJoinedLength) {
  const ZCString left("ab\0c", 4);
  EXPECT_EQ(state(left + left), "ab\0cab\0c 8 0 1"s);
  EXPECT_EQ(state(left + "x"), "ab\0cx 5 0 1"s);
  EXPECT_EQ(state("x" + left), "xab\0c 5 0 1"s);
  EXPECT_EQ(state(left + '\0'), "ab\0c\0 5 0 1"s);
  EXPECT_EQ(state('x' + left), "xab\0c 5 0 1"s);
  EXPECT_EQ(state(ZCString() + ""), " 0 0 -1");
}

TEST(String, ComparisonIsByUnsignedBytesUpToTheFirstNul) {
  const char* const ordered[] = {"", "a", "ab", "b", "\x7F", "\x80", "\xFF", "\xFF\xFF"};
  const auto expect = [](const auto& a, const auto& b, int order) {
    EXPECT_TRUE((a < b) == (order < 0) && (a <= b) == (order <= 0) && (a == b) == (order == 0));
    EXPECT_TRUE((a > b) == (order > 0) && (a >= b) == (order >= 0) && (a != b) == (order != 0));
  };
  for (int a = 0; a < 8; ++a) {
    for (int b = 0; b < 8; ++b) {
      expect(ZCString(ordered[a]), ZCString(ordered[b]), a - b);
      expect(ZCString(ordered[a]), ordered[b], a - b);
      expect(ordered[a], ZCString(ordered[b]), a - b);
    }
  }
  EXPECT_TRUE(ZCString("a\0b", 3) == "a");
}

TEST(String, SearchWorksOnTheWholeLength) {
  const ZCString nul("abc\0abd", 7), word("xabc");
  using Places = std::vector<int>;
  EXPECT_EQ((Places{nul.Find('a'), nul.Find('d'), nul.Find('x'), nul.Find('\0')}),
            (Places{0, 6, -1, 7}));
  EXPECT_EQ((Places{nul.ReverseFind('a'), nul.ReverseFind('\0')}), (Places{4, 7}));
  EXPECT_EQ((Places{nul.Find("abd"), nul.Find("abdx"), nul.FindOneOf("xd")}), (Places{4, -1, 6}));
  // An ending is looked for just before a position.
  EXPECT_EQ(word.IsFlex(3, "ab") + word.IsFlex(0, ""), 2);
  EXPECT_EQ(word.IsFlex(4, "ab") + word.IsFlex(1, "ab") + word.IsFlex(-1, "") + word.IsFlex(5, ""),
            0);
  EXPECT_EQ(word.IsFlex("abc") + word.EndsWith("xabc") + word.StartsWith("xabc"), 3);
  EXPECT_EQ(word.IsFlex("yxabc") + word.StartsWith("xabcd") + word.EndsWith("ab"), 0);
}

TEST(String, ThreadsMayCopyChangeAndDestroySharersOfOneBuffer) {
  const ZCString shared("a text that every thread shares");
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([source = shared] {
      for (int i = 0; i < 5000; ++i) {
        ZCString copy(source), assigned, empty;
        assigned = copy;
        copy.SetAt(0, 'b');
        empty.GetBufferSetLength(0);
        empty.LockBuffer();
        if (assigned[0] != 'a' || copy[0] != 'b') std::abort();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(header(shared).references, 1);
  for (int round = 0; round < 500; ++round) {  // the last sharer writes in place
    ZCString first("shared");
    std::thread other([second = first]() mutable { second.SetAt(0, 'S'); });
    first.SetAt(0, 'T');
    other.join();
    ASSERT_EQ(text(first), "Thared");
  }
}

TEST(StringDeathTest, ATextLongerThanAnIntEndsTheProcess) {
  EXPECT_DEATH(ZCString('a', INT_MAX), "");
}

}  // namespace
