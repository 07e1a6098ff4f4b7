// Formatted texts on POSIX systems.
#include "platform/format.h"

#include <cstdio>

#include "platform/posix_locale.h"

namespace kz::platform {
namespace {

// There is no vsnprintf that takes a locale, so the thread gets the "C" locale for a while.
class InCLocale {
 public:
  InCLocale() : before_(uselocale(c_locale())) {}
  InCLocale(const InCLocale&) = delete;
  InCLocale& operator=(const InCLocale&) = delete;
  ~InCLocale() { uselocale(before_); }

 private:
  locale_t before_;
};

}  // namespace

int format_text(char* buffer, std::size_t room, const char* format, std::va_list arguments) {
  const InCLocale locale;
  return std::vsnprintf(buffer, room, format, arguments);
}

}  // namespace kz::platform
