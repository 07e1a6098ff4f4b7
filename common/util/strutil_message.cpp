// The message box and the beep of the utilities.
#include "kz/strutil.h"
#include "platform/message.h"
#include "text/literal.h"

namespace {

using kz::operator""_1251;

constexpr const char* kTitle = "Message";
constexpr const char* kRussianTitle = U"Сообщение"_1251.data();

}  // namespace

int MsgBox(const char* text, unsigned int style, unsigned int language) {
  return kz::platform::message_box(text, language == 0 ? kTitle : kRussianTitle, style);
}

void beep(void) { kz::platform::beep(); }
