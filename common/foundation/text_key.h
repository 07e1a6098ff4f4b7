// The one-byte key of the library's reversible scrambling.
#ifndef KZ_FOUNDATION_TEXT_KEY_H
#define KZ_FOUNDATION_TEXT_KEY_H

namespace kz {

// String scrambling, dictionary passwords and the endings of compiled inflection tables are all
// XORed with this byte. A character equal to the key scrambles to NUL and would end the text there,
// so the key is '~': no letter of any code page, no digit and no blank, hence no character that a
// password or an ending is made of. It must never change: it is part of the file formats.
inline constexpr unsigned char kTextKey = 0x7E;

}  // namespace kz

#endif  // KZ_FOUNDATION_TEXT_KEY_H
