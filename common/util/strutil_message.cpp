// Messages to the user, and the title line of generated files.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "kz/charclass.h"
#include "kz/strutil.h"
#include "platform/calendar.h"
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

namespace {

constexpr std::size_t kLineLength = 72;
constexpr std::size_t kNameLength = 8;

// The part of the line that is still to be written.
class Columns {
 public:
  explicit Columns(char* line) : at_(line), end_(line + kLineLength) {}

  void skip() { at_ += at_ != end_ ? 1 : 0; }

  void write(std::string_view text) {
    for (const char c : text) {
      if (at_ == end_) return;
      *at_++ = static_cast<char>(__toupper(c));
    }
  }

 private:
  char* at_;
  char* end_;
};

void write_name(Columns& columns, std::string_view path) {
  const std::size_t separator = path.find_last_of("\\/:");
  if (separator != std::string_view::npos) path.remove_prefix(separator);
  const std::size_t dot = path.rfind('.');
  const bool has_extension = dot != std::string_view::npos && dot != 0;

  std::string_view name = path.substr(0, has_extension ? dot : path.size()).substr(0, kNameLength);
  if (name.starts_with('\\') || name.starts_with('/')) name.remove_prefix(1);
  columns.write(name);
  if (has_extension) columns.write(path.substr(dot));
}

void write_time(char* line) {
  std::array<char, sizeof "Jan 02 12:34:56 2005\n"> time;
  const std::size_t length =
      kz::platform::format_moment(time.data(), time.size(), "%b %d %H:%M:%S %Y\n",
                                  kz::platform::now(), kz::platform::Zone::local);
  std::copy_n(time.data(), length, line + kLineLength - length);
}

}  // namespace

char* init_header(char* output, const char* first_path, const char* second_path) {
  std::memset(output, ' ', kLineLength);
  output[kLineLength] = '\0';
  Columns columns(output);
  write_name(columns, first_path == nullptr ? "" : first_path);
  if (second_path != nullptr) {
    columns.skip();
    write_name(columns, second_path);
  }
  write_time(output);
  return output + kLineLength;
}
