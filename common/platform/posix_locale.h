// The "C" locale, for the functions that take a locale.
#ifndef KZ_PLATFORM_POSIX_LOCALE_H
#define KZ_PLATFORM_POSIX_LOCALE_H

#include <locale.h>

namespace kz::platform {

inline locale_t c_locale() {
  static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
  return locale;
}

}  // namespace kz::platform

#endif  // KZ_PLATFORM_POSIX_LOCALE_H
