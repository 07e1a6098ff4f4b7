// UTF-8 text lent to functions of the library that work on whole texts of Windows-1251.
#ifndef KZ_LEXICON_RUSSIAN_TEXT_H
#define KZ_LEXICON_RUSSIAN_TEXT_H

#include <string>
#include <string_view>

namespace kz::lexicon {

// A byte without a character in Windows-1251. It takes the place of each character that the page
// lacks, and of zeros; the functions pass it through.
inline constexpr char kForeign = static_cast<char>(152);

class RussianText {
 public:
  explicit RussianText(std::string_view utf8);  // throws BadUtf8

  const std::string& bytes() const { return bytes_; }

  // UTF-8 of what was made of the bytes: as many foreign characters are in it, in their order.
  std::string restore(std::string_view made) const;

 private:
  std::string bytes_;
  std::u32string foreign_;
};

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_RUSSIAN_TEXT_H
