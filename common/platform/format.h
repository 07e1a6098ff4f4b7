// Formatted texts, by the "C" locale whatever the locale of the process is.
#ifndef KZ_PLATFORM_FORMAT_H
#define KZ_PLATFORM_FORMAT_H

#include <cstdarg>
#include <cstddef>

namespace kz::platform {

// vsnprintf by the "C" locale. The locales of the process and of its threads stay.
int format_text(char* buffer, std::size_t room, const char* format, std::va_list arguments);

}  // namespace kz::platform

#endif  // KZ_PLATFORM_FORMAT_H
