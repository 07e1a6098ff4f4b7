// ZCString: sharing, locking, tags and buffers; searches and comparisons.
#include "kz/string.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

using namespace std::string_literals;

namespace {

const ZCStringData& header(const ZCString& text) {
  return reinterpret_cast<const ZCStringData*>(static_cast<const char*>(text))[-1];
}

std::string value(const ZCString& text) {
  return {static_cast<const char*>(text), static_cast<std::size_t>(text.GetLength())};
}

// The text, its room, tag and reference count.
std::string state(const ZCString& text) {
  return value(text) + ' ' + std::to_string(text.GetAllocLength()) + ' ' +
         std::to_string(text.GetLanguage()) + ' ' + std::to_string(header(text).references);
}

ZCString tagged(const char* text, int tag) {
  ZCString result(text);
  result.SetLanguage(tag);
  return result;
}

TEST(String, SharesABufferUntilAChange) {
  ZCString a("abc");
  EXPECT_EQ(state(a), "abc 3 0 1");
  ZCString b(a);
  b.SetLanguage(1049);
  EXPECT_EQ(state(a), "abc 3 1049 2") << "sharers see the tag";
  a = b;
  EXPECT_EQ(state(a), "abc 3 1049 2");
  b.SetAt(0, 'x');
  EXPECT_EQ(state(a), "abc 3 1049 1");
  EXPECT_EQ(state(b), "xbc 3 0 1");
  b = a;
  EXPECT_EQ(state(b), "abc 3 1049 2");
  b = "ab";
  EXPECT_EQ(state(b), "ab 2 0 1");
  a = "de";
  EXPECT_EQ(state(a), "de 3 1049 1");
  a = static_cast<const char*>(a) + 1;
  EXPECT_EQ(state(a), "e 3 1049 1");
  a = 'f';
  EXPECT_EQ(state(a), "f 3 1049 1");
  a = "more";
  EXPECT_EQ(state(a), "more 4 0 1");
  EXPECT_EQ(state(ZCString("a\0b", 3)), "a\0b 3 0 1"s);
  EXPECT_EQ(state(ZCString('x', 3)), "xxx 3 0 1");
  EXPECT_EQ(state(ZCString('x', -1)), " 0 0 -1");

  for (const auto change :
       {&ZCString::MakeReverse, &ZCString::TrimLeft, &ZCString::TrimRight, &ZCString::Trim,
        &ZCString::Code, &ZCString::DeCode, &ZCString::MakeUpper, &ZCString::MakeLower}) {
    ZCString sharer = tagged("abc", 1049);
    ZCString text(sharer);
    (text.*change)();
    EXPECT_EQ(state(sharer), "abc 3 1049 1");
    EXPECT_EQ(state(text).substr(3), " 3 0 1");
    (sharer.*change)();
    EXPECT_EQ(state(sharer).substr(3), " 3 1049 1") << "an own buffer stays";
  }
  ZCString word("abc");
  word.MakeReverse();
  EXPECT_EQ(value(word), "cba");
}

TEST(String, AppendsInPlaceOnlyWhereTheTextFits) {
  ZCString a("ab");
  a.GetBuffer(6);
  a.SetLanguage(1033);
  a += "cd";
  a += 'e';
  a += ZCString("f");
  EXPECT_EQ(state(a), "abcdef 6 1033 1");
  const ZCString b(a);
  a += "";
  a += ZCString();
  EXPECT_EQ(state(a), "abcdef 6 1033 2");
  a += 'g';
  EXPECT_EQ(state(a), "abcdefg 7 0 1");
  a += a;
  EXPECT_EQ(state(a), "abcdefgabcdefg 14 0 1");
  a.GetBuffer(16);
  a += static_cast<const char*>(a) + 12;
  EXPECT_EQ(state(a), "abcdefgabcdefgfg 16 0 1");
  ZCString c("x");
  c += '\0';
  EXPECT_EQ(state(c), "x\0 2 0 1"s);
}

TEST(String, BuffersAreAsLargeAsAskedFor) {
  ZCString a = tagged("abc", 1033);
  a.GetBuffer(2);
  EXPECT_EQ(state(a), "abc 3 1033 1");
  a.GetBuffer(9);
  EXPECT_EQ(state(a), "abc 9 0 1");
  a.SetLanguage(1033);
  a.FreeExtra();
  EXPECT_EQ(state(a), "abc 3 0 1");
  std::memcpy(a.GetBufferSetLength(5), "xy\0zz", 5);
  EXPECT_EQ(state(a), "xy\0zz 5 0 1"s);
  EXPECT_EQ(a.GetAt(5), '\0');
  a.ReleaseBuffer(-1);
  EXPECT_EQ(state(a), "xy 5 0 1");
  ZCString b(a);
  b.ReleaseBuffer(1);
  EXPECT_EQ(state(b), "x 2 0 1");
  ZCString c(a);
  c.GetBuffer(1);
  EXPECT_EQ(state(c), "xy 2 0 1") << "not less than the text";
  a.Empty();
  EXPECT_EQ(state(a), " 0 0 -1");
  a.GetBuffer(4);
  a.Empty();
  EXPECT_EQ(state(a), " 4 0 1") << "it was empty";
  a.FreeExtra();
  EXPECT_EQ(state(a), " 0 0 -1");
}

TEST(String, ALockedBufferIsNeverShared) {
  ZCString a = tagged("abc", 1033);
  const ZCString b(a);
  a.LockBuffer();
  EXPECT_EQ(state(a), "abc 3 0 -1");
  EXPECT_EQ(state(b), "abc 3 1033 1");
  a.SetLanguage(1031);
  ZCString c(a);
  EXPECT_EQ(state(c), "abc 3 0 1");
  c = a;
  EXPECT_EQ(state(c), "abc 3 1031 1");
  a = b;
  EXPECT_EQ(state(a), "abc 3 1033 -1");
  a.Empty();
  EXPECT_EQ(state(a), " 3 1033 -1");
  a = "de";
  a.UnlockBuffer();
  EXPECT_EQ(state(a), "de 3 1033 1");
  a.LockBuffer();
  a = ZCString("longer");
  EXPECT_EQ(state(a), "longer 6 0 1");
  a.SetLanguage(1033);
  a = ZCString();
  EXPECT_EQ(state(a), " 6 0 1");
  ZCString none;
  none.LockBuffer();
  none.UnlockBuffer();
  EXPECT_EQ(state(none), " 0 0 -1");
}

TEST(String, NullTextsCountAsEmpty) {
  const char* const null = nullptr;
  ZCString text(null);
  EXPECT_EQ(value(text), "");
  EXPECT_EQ(value(ZCString(static_cast<const unsigned char*>(nullptr))), "");
  EXPECT_EQ(value(ZCString(null, 3)), "");
  text = "abc";
  text += null;
  text.Insert(null, 1);
  text.Replace(null, "x");
  text.ReplaceOneOf(null, "x");
  EXPECT_EQ(value(null + text + null), "abc");
  EXPECT_EQ(text.Find(null), 0);
  EXPECT_EQ(text.FindOneOf(null), -1);
  EXPECT_EQ(text.StartsWith(null) + text.IsFlex(null) + text.IsFlex(0, null), 3);
  EXPECT_EQ(text.StartsWithNoCase(null) + text.IsFlexNoCase(null), 2);
  EXPECT_GT(text.Compare(null), 0);
  EXPECT_GT(text.CompareNoCase(null), 0);
  EXPECT_EQ(value(text.SpanIncluding(null)), "");
  EXPECT_EQ(value(text.SpanExcluding(null)), "abc");
  EXPECT_EQ(value(text.Replace("b", null)), "ac");
  text = null;
  EXPECT_EQ(text.IsEmpty(), 1);
}

TEST(String, ATagOnAnEmptyStringIsItsOwn) {
  ZCString tagged;
  tagged.SetLanguage(1049);
  EXPECT_EQ(tagged.GetLanguage(), 1049);
  EXPECT_EQ(ZCString().GetLanguage(), 0);
  const ZCString copy(tagged);
  EXPECT_EQ(copy.GetLanguage(), 1049);
  tagged.SetLanguage(1033);
  EXPECT_EQ(copy.GetLanguage(), 1033) << "sharers see the tag";
  ZCString text("abc");
  text.SetLanguage(1031);
  EXPECT_EQ(text.Left(0).GetLanguage(), 1031);
  EXPECT_EQ(text.Right(3).GetLanguage(), 0);
}

TEST(String, ConcatenationTakesExactlyTheJoinedLength) {
  const ZCString left("ab\0c", 4);
  const ZCString sums[] = {left + left, left + "x", "x" + left, left + '\0', 'x' + left};
  const std::string expected[] = {"ab\0cab\0c"s, "ab\0cx"s, "xab\0c"s, "ab\0c\0"s, "xab\0c"s};
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(value(sums[i]), expected[i]);
    EXPECT_EQ(sums[i].GetAllocLength(), static_cast<int>(expected[i].size()));
  }
  EXPECT_EQ(header(ZCString() + "").references, -1);
}

TEST(String, ComparisonIsByUnsignedBytesUpToTheFirstNul) {
  const char* const ordered[] = {"", "a", "ab", "b", "\x7F", "\x80", "\xFF", "\xFF\xFF"};
  for (const char* a : ordered) {
    for (const char* b : ordered) {
      const ZCString left(a);
      const ZCString right(b);
      EXPECT_EQ(left < right, std::less<>()(std::find(ordered, ordered + 8, a),
                                            std::find(ordered, ordered + 8, b)));
      EXPECT_EQ(left < b, left < right);
      EXPECT_EQ(a < right, left < right);
      EXPECT_EQ(b > left, left < right);
      EXPECT_EQ(right > left && right > a, left < right);
      EXPECT_EQ(left >= right && left >= b && a >= right, !(left < right));
      EXPECT_EQ(right <= left && right <= a && b <= left, !(left < right));
      EXPECT_EQ(left == right && left == b && a == right, a == b);
      EXPECT_EQ(left != right && left != b && a != right, a != b);
    }
  }
  EXPECT_TRUE(ZCString("a\0b", 3) == "a");
}

TEST(String, SearchWorksOnTheWholeLength) {
  const ZCString text("abc\0abd", 7);
  EXPECT_EQ(text.Find('a'), 0);
  EXPECT_EQ(text.ReverseFind('a'), 4);
  EXPECT_EQ(text.Find('d'), 6);
  EXPECT_EQ(text.Find('x'), -1);
  EXPECT_EQ(text.Find('\0'), 7);
  EXPECT_EQ(text.ReverseFind('\0'), 7);
  EXPECT_EQ(text.Find("abd"), 4);
  EXPECT_EQ(text.Find("abdx"), -1);
  EXPECT_EQ(text.FindOneOf("xd"), 6);
}

TEST(String, AnEndingIsTestedJustBeforeAPosition) {
  const ZCString text("xabc");
  EXPECT_EQ(text.IsFlex(3, "ab"), 1);
  EXPECT_EQ(text.IsFlex(4, "ab"), 0);
  EXPECT_EQ(text.IsFlex(1, "ab"), 0);
  EXPECT_EQ(text.IsFlex(0, ""), 1);
  EXPECT_EQ(text.IsFlex(-1, ""), 0);
  EXPECT_EQ(text.IsFlex(5, ""), 0);
  EXPECT_EQ(text.IsFlex("abc") + text.EndsWith("xabc") + text.StartsWith("xabc"), 3);
  EXPECT_EQ(text.IsFlex("yxabc") + text.StartsWith("xabcd") + text.EndsWith("ab"), 0);
}

TEST(String, ThreadsMayCopyChangeAndDestroySharersOfOneBuffer) {
  const ZCString shared("a text that every thread shares");
  std::vector<std::thread> threads;
  threads.reserve(4);
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([source = shared] {
      for (int i = 0; i < 5000; ++i) {
        ZCString copy(source);
        ZCString assigned;
        assigned = copy;
        copy.SetAt(0, 'b');
        ZCString empty;
        empty.GetBufferSetLength(0);
        empty.LockBuffer();
        if (value(assigned)[0] != 'a' || value(copy)[0] != 'b') std::abort();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(header(shared).references, 1);
}

TEST(String, TheLastSharerOnAnotherThreadMayWriteInPlace) {
  for (int round = 0; round < 500; ++round) {
    ZCString first("shared");
    std::thread other([second = first]() mutable { second.SetAt(0, 'S'); });
    first.SetAt(0, 'T');
    other.join();
    ASSERT_EQ(value(first), "Thared");
  }
}

TEST(StringDeathTest, ATextLongerThanAnIntEndsTheProcess) {
  EXPECT_DEATH(ZCString('a', INT_MAX), "");
}

}  // namespace
