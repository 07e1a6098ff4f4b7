// ZCString: sharing, locking, tags and buffers, against a plain model.
#include "kz/string.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <string_view>
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

// The slow and obvious string: a shared record, none for a string without a buffer.
struct Buffer {
  std::string text;
  int room = 0;
  int tag = 0;
  bool locked = false;
};
using Model = std::shared_ptr<Buffer>;

int size(const Model& model) { return model ? static_cast<int>(model->text.size()) : 0; }
std::string text(const Model& model) { return model ? model->text : ""; }

Model fresh(const std::string& text, int room = 0) {
  room = std::max(room, static_cast<int>(text.size()));
  return room == 0 ? nullptr : std::make_shared<Buffer>(Buffer{text, room});
}

bool holds(const Model& model, int length) {
  return length <= (model ? model->room : 0) && model.use_count() < 2;
}
void unshare(Model& model) {
  if (model.use_count() > 1) model = fresh(model->text);
}
void get_buffer(Model& model, int length) {
  if (!holds(model, length)) model = fresh(text(model), length);
}
void write(Model& model, const std::string& text) {
  get_buffer(model, static_cast<int>(text.size()));
  if (model) model->text = text;
}
void assign(Model& model, const std::string& text) {
  if (!holds(model, static_cast<int>(text.size()))) {
    model = fresh(text);
  } else if (model) {
    model->text = text;
  }
}
void append(Model& model, const std::string& tail) {
  if (!tail.empty()) assign(model, text(model) + tail);
}
void set_tag(Model& model, int tag) {
  if (!model && tag != 0) model = std::make_shared<Buffer>();
  if (model) model->tag = tag;
}
Model copied(const Model& model) { return model && model->locked ? fresh(model->text) : model; }
void assign_string(Model& model, const Model& source) {
  if (model == source) return;
  const int tag = source ? source->tag : 0;
  if ((model && model->locked) || !source || source->locked) {
    assign(model, text(source));
  } else {
    model = source;
  }
  set_tag(model, tag);
}

// A handful of strings and their models, put through the same random operations.
class ModelTest : public testing::Test {
 protected:
  static constexpr std::size_t kStrings = 5;
  ZCString strings[kStrings];
  Model models[kStrings];
  std::mt19937 random{20240611};

  int pick(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
  std::string random_text() {
    std::string result;
    for (int length = pick(9); length > 0; --length) result += "ab \t~\xFF\xE0"[pick(7)];
    return result;
  }
  void step(ZCString& string, Model& model, const ZCString& other, const Model& other_model);
  void change_buffer(ZCString& string, Model& model);
  void change_text(ZCString& string, Model& model);
  void expect_equal(std::size_t i);
};

void ModelTest::step(ZCString& string, Model& model, const ZCString& other,
                     const Model& other_model) {
  const std::string argument = random_text();
  switch (pick(9)) {
    case 0:
      string = other;
      assign_string(model, other_model);
      break;
    case 1: {
      const std::array<ZCString, 1> copy{other};
      EXPECT_EQ(value(copy[0]), text(other_model));
      string = copy[0];
      const Model model_copy = copied(other_model);
      assign_string(model, model_copy);
      break;
    }
    case 2:
      string = argument.c_str();
      assign(model, argument);
      break;
    case 3: {  // a text in the string's own buffer
      const int from = pick(size(model) + 1);
      string = static_cast<const char*>(string) + from;
      const std::string tail = text(model).substr(static_cast<std::size_t>(from));
      assign(model, tail.c_str());
      break;
    }
    case 4:
      string += other;
      append(model, text(other_model));
      break;
    case 5:
      string += static_cast<const char*>(string);
      append(model, text(model).c_str());
      break;
    case 6:
      string += '\0';
      append(model, std::string(1, '\0'));
      break;
    case 7: change_buffer(string, model); break;
    default: change_text(string, model); break;
  }
}

void ModelTest::change_buffer(ZCString& string, Model& model) {
  switch (pick(8)) {
    case 0:
      string.LockBuffer();
      get_buffer(model, 0);
      if (model) model->locked = true;
      break;
    case 1:
      string.UnlockBuffer();
      if (model) model->locked = false;
      break;
    case 2: {
      const int tag = pick(3) * 1033;
      string.SetLanguage(tag);
      set_tag(model, tag);
      break;
    }
    case 3:
      string.Empty();
      if (model && model->locked) model->text.clear();
      if (size(model) != 0) model = nullptr;
      break;
    case 4:
      string.FreeExtra();
      if (model && size(model) != model->room) model = fresh(model->text);
      break;
    case 5: {
      const int room = pick(30);
      string.GetBuffer(room);
      get_buffer(model, room);
      break;
    }
    case 6: {  // at the first NUL
      string.ReleaseBuffer(-1);
      unshare(model);
      if (model) model->text = model->text.c_str();
      break;
    }
    default: {
      const std::string written = random_text();
      std::memcpy(string.GetBuffer(12), written.data(), written.size());
      string.ReleaseBuffer(static_cast<int>(written.size()));
      get_buffer(model, 12);
      model->text = written;
    }
  }
}

void ModelTest::change_text(ZCString& string, Model& model) {
  const std::string argument = random_text();
  switch (pick(6)) {
    case 0:
      if (size(model) == 0) return;
      string.SetAt(size(model) - 1, 'x');
      unshare(model);
      model->text.back() = 'x';
      break;
    case 1:
      string.MakeReverse();
      unshare(model);
      if (model) std::reverse(model->text.begin(), model->text.end());
      break;
    case 2: {
      const int position = pick(size(model) + 3) - 1;
      const ZCString result = string.Insert(argument.c_str(), position);
      EXPECT_EQ(value(result), value(string));
      if (position < 0 || position > size(model) || size(model) + argument.size() == 0) return;
      write(model, text(model).insert(static_cast<std::size_t>(position), argument));
      break;
    }
    case 3: {  // by the string's own text
      if (size(model) > 30) return;
      string.Replace("a", static_cast<const char*>(string));
      std::string result;
      for (const char c : text(model)) {
        result += c == 'a' ? text(model).c_str() : std::string(1, c);
      }
      write(model, result);
      break;
    }
    case 4:
      string.Code();
      string.DeCode();
      unshare(model);
      break;
    default: {
      ZCString left = string.Left(3);
      EXPECT_EQ(value(left), text(model).substr(0, 3));
      EXPECT_EQ(left.GetLanguage(), string.GetLanguage());
      string = left.Mid(1);
      EXPECT_EQ(left.Mid(1).GetLanguage(), 0);
      assign_string(model, fresh(left.GetLength() > 1 ? text(model).substr(1, 2) : ""));
    }
  }
}

void ModelTest::expect_equal(std::size_t i) {
  const Model& model = models[i];
  ASSERT_EQ(value(strings[i]), text(model));
  ASSERT_EQ(strings[i].GetAt(strings[i].GetLength()), '\0');
  ASSERT_EQ(strings[i].GetAllocLength(), model ? model->room : 0);
  ASSERT_EQ(strings[i].GetLanguage(), model ? model->tag : 0);
  ASSERT_EQ(header(strings[i]).references,
            model && !model->locked ? static_cast<int>(model.use_count()) : -1);
}

TEST_F(ModelTest, RandomOperationsKeepValuesTagsRoomSharingAndLocks) {
  for (int round = 0; round < 60000; ++round) {
    const auto i = static_cast<std::size_t>(pick(kStrings));
    const auto j = static_cast<std::size_t>(pick(kStrings));
    step(strings[i], models[i], strings[j], models[j]);
    for (std::size_t k = 0; k < kStrings; ++k) expect_equal(k);
    if (HasFatalFailure()) FAIL() << "in round " << round;
    if (size(models[i]) > 200) {
      strings[i] = "";
      assign(models[i], "");
    }
  }
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
