// Message boxes and beeps: the host's handlers, standard error without them.
#include "platform/message.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <string>
#include <string_view>

#include "kz/platform.h"
#include "platform/file.h"

namespace kz::platform {
namespace {

// The identifier of the first button, by the style's bits 0 to 3: OK, OK and Cancel; Abort, Retry
// and Ignore; Yes, No and Cancel; Yes and No; Retry and Cancel; OK for any other style.
constexpr std::array<int, 16> kFirstButton = {1, 1, 3, 6, 6, 4, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};

struct Handlers {
  kz_message_box_handler message_box = nullptr;
  void* message_box_context = nullptr;
  kz_beep_handler beep = nullptr;
  void* beep_context = nullptr;
};

Handlers& handlers() {
  static Handlers set_by_host;
  return set_by_host;
}

// Windows-1251, 0x80 to 0xFF. 0x98 is not assigned.
constexpr std::u16string_view kUpperHalf =
    u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏђ‘’“”•–—\uFFFD™љ›њќћџ"
    u"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї°±Ііґµ¶·ё№є»јЅѕї"
    u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"
    u"абвгдежзийклмнопрстуфхцчшщъыьэюя";
static_assert(kUpperHalf.size() == 128);

void append_utf8(std::string& out, char16_t c) {
  const auto add = [&out](unsigned byte) { out += static_cast<char>(byte); };
  if (c < 0x80) {
    add(c);
  } else if (c < 0x800) {
    add(0xC0U | (c >> 6));
    add(0x80U | (c & 0x3FU));
  } else {
    add(0xE0U | (c >> 12));
    add(0x80U | ((c >> 6) & 0x3FU));
    add(0x80U | (c & 0x3FU));
  }
}

// Appends Windows-1251 text on one line: every run of control characters becomes one blank.
void append_line(std::string& out, std::string_view text) {
  bool in_controls = false;
  for (const char ch : text) {
    const auto byte = static_cast<unsigned char>(ch);
    const bool control = byte < 0x20 || byte == 0x7F;
    if (control && !in_controls)
      out += ' ';
    else if (!control)
      append_utf8(out, byte < 0x80 ? byte : kUpperHalf[byte - 0x80U]);
    in_controls = control;
  }
}

}  // namespace

int message_box(const char* text, const char* caption, unsigned int type) noexcept {
  if (text == nullptr) text = "";
  if (caption == nullptr) caption = "";
  if (const Handlers& set = handlers(); set.message_box != nullptr)
    return set.message_box(text, caption, type, set.message_box_context);
  const int error = errno;
  std::string line;
  append_line(line, caption);
  if (!line.empty()) line += ": ";
  append_line(line, text);
  line += '\n';
  write_file(STDERR_FILENO, line.data(), line.size());
  errno = error;
  return kFirstButton[type & 0xFU];
}

void beep(unsigned int type) noexcept {
  if (const Handlers& set = handlers(); set.beep != nullptr)
    return set.beep(type, set.beep_context);
  const int error = errno;
  if (isatty(STDERR_FILENO) != 0) write_file(STDERR_FILENO, "\a", 1);
  errno = error;
}

}  // namespace kz::platform

void kz_platform_set_message_box(kz_message_box_handler handler, void* context) {
  auto& set = kz::platform::handlers();
  set.message_box = handler;
  set.message_box_context = context;
}

void kz_platform_set_beep(kz_beep_handler handler, void* context) {
  auto& set = kz::platform::handlers();
  set.beep = handler;
  set.beep_context = context;
}
