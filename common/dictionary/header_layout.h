// The places of the fields of a dictionary header, in bytes from its start.
#ifndef KZ_DICTIONARY_HEADER_LAYOUT_H
#define KZ_DICTIONARY_HEADER_LAYOUT_H

#include <cstddef>
#include <string_view>

#include "dictionary/header.h"

namespace kz {

inline constexpr std::string_view kSignature = DIC_SIGNATURE;
static_assert(kSignature.size() == 44);

namespace layout {

inline constexpr std::size_t kSignature = offsetof(DicHeader, Signature);
inline constexpr std::size_t kSignatureSize = sizeof(DicHeader::Signature);
inline constexpr std::size_t kLabel = offsetof(DicHeader, Label);
inline constexpr std::size_t kLabelSize = sizeof(DicHeader::Label);
inline constexpr std::size_t kLanguage = offsetof(DicHeader, Language);
inline constexpr std::size_t kType = offsetof(DicHeader, Type);
inline constexpr std::size_t kTitle = offsetof(DicHeader, Title);
inline constexpr std::size_t kTitleSize = sizeof(DicHeader::Title);
inline constexpr std::size_t kReserved1 = offsetof(DicHeader, Reserved1);
inline constexpr std::size_t kPassword = offsetof(DicHeader, Password);
inline constexpr std::size_t kPasswordSize = sizeof(DicHeader::Password);
inline constexpr std::size_t kProperty = offsetof(DicHeader, Property);
inline constexpr std::size_t kFormatVersion = offsetof(DicHeader, FormatVersion);
inline constexpr std::size_t kIndexDepth = offsetof(DicHeader, IndexDepth);
inline constexpr std::size_t kAlphabetSize = offsetof(DicHeader, AlphabetSize);
inline constexpr std::size_t kIndexOffset = offsetof(DicHeader, IndexOffset);
inline constexpr std::size_t kDataOffset = offsetof(DicHeader, DataOffset);
inline constexpr std::size_t kFileSize = offsetof(DicHeader, FileSize);
inline constexpr std::size_t kTimeStamp = offsetof(DicHeader, TimeStamp);
inline constexpr std::size_t kReserved2 = offsetof(DicHeader, Reserved2);
inline constexpr std::size_t kChecksum = offsetof(DicHeader, Checksum);
inline constexpr std::size_t kPacking = offsetof(DicHeader, Packing);
inline constexpr std::size_t kSharedOffset = offsetof(DicHeader, SharedOffset);
inline constexpr std::size_t kIndexCount = offsetof(DicHeader, IndexCount);
inline constexpr std::size_t kSharedSize = offsetof(DicHeader, SharedSize);

}  // namespace layout

}  // namespace kz

#endif  // KZ_DICTIONARY_HEADER_LAYOUT_H
