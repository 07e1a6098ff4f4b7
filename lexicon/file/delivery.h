// Output files that appear under their name only when they are finished.
#ifndef KZ_LEXICON_DELIVERY_H
#define KZ_LEXICON_DELIVERY_H

#include <string>

namespace kz::lexicon {

// Write to path(), then deliver() renames the file to its final name. Without that the destructor
// removes it.
class Delivery {
 public:
  explicit Delivery(std::string target);
  Delivery(const Delivery&) = delete;
  Delivery& operator=(const Delivery&) = delete;
  ~Delivery();

  const std::string& path() const { return path_; }
  void deliver();  // throws Error

 private:
  std::string target_;
  std::string path_;
};

}  // namespace kz::lexicon

#endif  // KZ_LEXICON_DELIVERY_H
