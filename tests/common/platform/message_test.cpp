// Messages and beeps reach the host's handlers, or standard error without them.
#include <gtest/gtest.h>

#include <string>

#include "kz/platform.h"
#include "kz/string.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;

TEST(MessageBox, HandlerGetsTheTextsAndAnswers) {
  struct Seen {
    std::string text, caption;
    unsigned type;
  } seen;
  kz_platform_set_message_box(
      [](const char* text, const char* caption, unsigned int type, void* context) {
        *static_cast<Seen*>(context) = {text, caption, type};
        return 6;
      },
      &seen);
  EXPECT_EQ(ZMessageBox(U"Вопрос?"_1251.data(), nullptr, 0x24), 6);
  EXPECT_EQ(seen.text, U"Вопрос?"_1251);
  EXPECT_EQ(seen.caption, "");
  EXPECT_EQ(seen.type, 0x24U);
  kz_platform_set_message_box(nullptr, nullptr);
}

TEST(MessageBox, WithoutHandlerIsOneLineOfUtf8AnsweredWithOk) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(ZMessageBox(U"Ёлки — «да»\r\nи №5"_1251.data(), U"Сообщение"_1251.data(), 0x31), 1);
  EXPECT_EQ(ZMessageBox(nullptr, nullptr, 0), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Сообщение: Ёлки — «да» и №5\n\n");
}

}  // namespace
