// The one exception type of the library.
#include "kzlexicon/error.h"

#include <utility>

namespace kz::lexicon {

std::string at_place(const Place& place, const std::string& message) {
  std::string text;
  const auto add = [&text](const std::string& part, const char* end) { (text += part) += end; };
  if (!place.file.empty()) add(place.file, ":");
  if (place.line != 0) add(std::to_string(place.line), ":");
  if (place.column != 0) add(std::to_string(place.column), ":");
  if (place.offset >= 0) add(" offset " + std::to_string(place.offset), ":");
  return text.empty() ? message : text + ' ' + message;
}

Error::Error(ErrorCode code, const std::string& message, Place place)
    : std::runtime_error(at_place(place, message)),
      code_(code),
      place_(std::move(place)),
      message_(message) {}

}  // namespace kz::lexicon
