// Beeps reach the host's handler and are silent where no terminal is.
#include <gtest/gtest.h>

#include "kz/platform.h"
#include "platform/message.h"

namespace {

TEST(Beep, HandlerGetsTheKind) {
  unsigned kind = 0;
  kz_platform_set_beep(
      [](unsigned int type, void* context) { *static_cast<unsigned*>(context) = type; }, &kind);
  kz::platform::beep(0x30);
  EXPECT_EQ(kind, 0x30U);
  kz_platform_set_beep(nullptr, nullptr);
}

TEST(Beep, WritesNothingToAFile) {
  testing::internal::CaptureStderr();
  kz::platform::beep();
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
