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

TEST(MessageBox, WithoutHandlerIsOneLineOfUtf8AnsweredWithTheFirstButton) {
  testing::internal::CaptureStderr();
  ZMessageBox(U"Ёлки — «да»\r\nи №5"_1251.data(), U"Сообщение"_1251.data(), 0x31);
  ZMessageBox(nullptr, nullptr, 0);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Сообщение: Ёлки — «да» и №5\n\n");

  // By the buttons: OK twice, Abort, Yes twice, Retry; OK for styles that there are not.
  const int first_buttons[] = {1, 1, 3, 6, 6, 4, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
  testing::internal::CaptureStderr();
  for (unsigned style = 0; style < 16; ++style) {
    for (const unsigned icon : {0x00u, 0x20u, 0x140u}) {
      EXPECT_EQ(ZMessageBox("text", "caption", icon | style), first_buttons[style]) << style;
    }
  }
  testing::internal::GetCapturedStderr();
}

}  // namespace
