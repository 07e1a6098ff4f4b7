// A dictionary as Python holds it: opened by itself, or one of a set.
#ifndef PYTHON_OPEN_DICTIONARY_H
#define PYTHON_OPEN_DICTIONARY_H

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "kzlexicon/dictionary.h"
#include "kzlexicon/dictionary_set.h"

namespace kz::python {

class OpenDictionary {
 public:
  explicit OpenDictionary(lexicon::Dictionary dictionary)
      : own_(std::move(dictionary)), dictionary_(&*own_) {}
  // One of the set, which lives as long as it.
  OpenDictionary(lexicon::Dictionary& dictionary, std::shared_ptr<lexicon::DictionarySet> set)
      : set_(std::move(set)), dictionary_(&dictionary) {}

  // Threads take turns. Throws Error after close().
  template <typename Work>
  auto use(Work work) {
    const std::lock_guard lock(mutex_);
    if (dictionary_ == nullptr) {
      throw lexicon::Error(lexicon::ErrorCode::kArgument, "the dictionary is closed");
    }
    return work(*dictionary_);
  }

  void close() {
    const std::lock_guard lock(mutex_);
    dictionary_ = nullptr;
    own_.reset();
    set_.reset();
  }

  bool closed() {
    const std::lock_guard lock(mutex_);
    return dictionary_ == nullptr;
  }

 private:
  std::mutex mutex_;
  std::optional<lexicon::Dictionary> own_;
  std::shared_ptr<lexicon::DictionarySet> set_;
  lexicon::Dictionary* dictionary_;
};

}  // namespace kz::python

#endif  // PYTHON_OPEN_DICTIONARY_H
