// Output files that take their place when they are finished.
#ifndef KZ_LEXICON_DELIVERY_H
#define KZ_LEXICON_DELIVERY_H

#include <array>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

#include "platform/replace.h"

namespace kz::lexicon {

// Takes the contents by its handle or its stream; then deliver() puts them in the place of the
// target. Without that, and after a signal that ends the program, the target is as it was and
// nothing is left.
class Delivery : private std::streambuf {
 public:
  explicit Delivery(std::string target);  // throws Error
  Delivery(const Delivery&) = delete;
  Delivery& operator=(const Delivery&) = delete;
  ~Delivery() override;

  int handle() const { return file_.handle(); }
  // A name under which the contents can be opened meanwhile.
  std::string path() const { return file_.path(); }
  std::ostream& stream() { return stream_; }
  void deliver();  // throws Error

 private:
  int_type overflow(int_type c) override;
  int sync() override;
  [[noreturn]] void fail(int error) const;

  std::string target_;
  kz::platform::Replacement file_;
  std::array<char, 65536> buffer_;
  int error_ = 0;  // of the first write that failed
  std::ostream stream_{this};
};

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_DELIVERY_H
