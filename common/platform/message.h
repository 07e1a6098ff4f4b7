// Message boxes and beeps, by the host's handlers or plainly.
#ifndef KZ_PLATFORM_MESSAGE_H
#define KZ_PLATFORM_MESSAGE_H

namespace kz::platform {

// Shows a message and returns the identifier of the button pressed (of the first one when the host
// has set no handler). Texts are Windows-1251; a null text counts as empty.
// An exception of the host's handler ends the process.
int message_box(const char* text, const char* caption, unsigned int type) noexcept;

// Makes the sound of the given kind; 0 is the plain beep.
void beep(unsigned int type = 0) noexcept;

}  // namespace kz::platform

#endif  // KZ_PLATFORM_MESSAGE_H
