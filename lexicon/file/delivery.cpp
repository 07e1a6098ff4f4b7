// Write beside, then rename.
#include "lexicon/file/delivery.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "kzlexicon/error.h"

namespace kz::lexicon {

Delivery::Delivery(std::string target)
    : target_(std::move(target)), path_(target_ + ".unfinished") {}

Delivery::~Delivery() {
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

void Delivery::deliver() {
  std::error_code error;
  std::filesystem::rename(path_, target_, error);
  if (error) throw Error(ErrorCode::kFile, target_ + ": cannot write: " + error.message());
}

}  // namespace kz::lexicon
