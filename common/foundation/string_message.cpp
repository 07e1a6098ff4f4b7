// ZMessageBox: a message box without an owner window.
#include "kz/string.h"
#include "platform/message.h"

int ZMessageBox(const char* text, const char* caption, unsigned int type) noexcept {
  return kz::platform::message_box(text, caption, type);
}
