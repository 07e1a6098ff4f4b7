/* Hooks through which a host shows the library's messages and beeps its own way.
 *
 * The library has no user interface. A message (ZMessageBox in kz/string.h, MsgBox in
 * kz/strutil.h) goes to the handler that the host has set here; without one it is written to
 * standard error as one line and counts as answered with the first button (Yes of Yes and No, Abort
 * of Abort, Retry and Ignore). Handlers must not throw. Set the handlers before other threads use
 * the library:
 *
 *   static int show(const char* text, const char* caption, unsigned int type, void* window) {
 *     printf("%s: %s\n", caption, text);  // Output: Message: Saved
 *     return 1;
 *   }
 *   kz_platform_set_message_box(show, 0);
 *   MsgBox("Saved", 0, 0);
 */
#ifndef KZ_PLATFORM_H
#define KZ_PLATFORM_H

#include "kz/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Shows a message and returns the identifier of the button pressed: 1 OK, 2 Cancel, 3 Abort,
 * 4 Retry, 5 Ignore, 6 Yes, 7 No. `text` and `caption` are zero-terminated Windows-1251 text, never
 * null, valid during the call only. `type` is the caller's style: buttons in bits 0 to 3 (0 OK,
 * 1 OK and Cancel, 2 Abort, Retry and Ignore, 3 Yes, No and Cancel, 4 Yes and No, 5 Retry and
 * Cancel), icon in bits 4 to 7. `context` is what the host gave when it set the handler. */
typedef int (*kz_message_box_handler)(const char* text, const char* caption, unsigned int type,
                                      void* context);

/* Makes a sound. `type` is 0 for the plain beep or an icon value as in bits 4 to 7 of a message's
 * style. */
typedef void (*kz_beep_handler)(unsigned int type, void* context);

/* Sets the handler of messages; a null handler brings the line on standard error back. That line
 * is UTF-8: the caption, a colon and the text, with line ends turned into spaces. */
KZ_API void kz_platform_set_message_box(kz_message_box_handler handler, void* context);

/* Sets the handler of beeps; a null handler brings the default back, which rings the bell of the
 * terminal when standard error is one and is silent otherwise. */
KZ_API void kz_platform_set_beep(kz_beep_handler handler, void* context);

#ifdef __cplusplus
}
#endif

#endif /* KZ_PLATFORM_H */
