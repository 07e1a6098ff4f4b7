// Output by the platform layer, and the signals that end the program meanwhile.
#include "lexicon/file/delivery.h"

#include <signal.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <utility>

#include "kzlexicon/error.h"

namespace kz::lexicon {
namespace {

using kz::platform::UnfinishedFile;

// For the handler: the files of all deliveries under way.
std::array<std::atomic<const UnfinishedFile*>, 4> unfinished_files;

void clear_away_and_end(int signal) {
  for (const auto& file : unfinished_files) {
    if (const UnfinishedFile* const unfinished = file.load()) remove_unfinished(*unfinished);
  }
  raise(signal);  // ends the program when the handler, which is reset, returns
}

void watch_signals() {
  static bool watched = false;
  if (std::exchange(watched, true)) return;
  signal(SIGXFSZ, SIG_IGN);  // the write fails
  for (const int number : {SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGTERM, SIGXCPU}) {
    struct sigaction action {};
    if (sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) continue;
    action.sa_handler = clear_away_and_end;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    sigfillset(&action.sa_mask);
    sigaction(number, &action, nullptr);
  }
}

void exchange_unfinished(const UnfinishedFile* from, const UnfinishedFile* to) {
  const auto place = std::find(unfinished_files.begin(), unfinished_files.end(), from);
  if (place != unfinished_files.end()) place->store(to);
}

}  // namespace

Delivery::Delivery(std::string target) : target_(std::move(target)) {
  watch_signals();
  exchange_unfinished(nullptr, &file_.unfinished());
  if (!file_.begin(target_.c_str(), {})) {
    const int error = errno;
    exchange_unfinished(&file_.unfinished(), nullptr);
    fail(error);
  }
  setp(buffer_.data(), buffer_.data() + buffer_.size());
}

Delivery::~Delivery() {
  file_.abandon();
  exchange_unfinished(&file_.unfinished(), nullptr);
}

void Delivery::deliver() {
  stream_.flush();
  if (error_ != 0) fail(error_);
  if (!file_.commit()) fail(errno);
}

Delivery::int_type Delivery::overflow(int_type c) {
  if (sync() != 0) return traits_type::eof();
  return traits_type::eq_int_type(c, traits_type::eof()) ? traits_type::not_eof(c)
                                                         : sputc(traits_type::to_char_type(c));
}

int Delivery::sync() {
  if (error_ == 0 && !file_.write({pbase(), static_cast<std::size_t>(pptr() - pbase())})) {
    error_ = errno;
  }
  setp(buffer_.data(), buffer_.data() + buffer_.size());
  return error_ == 0 ? 0 : -1;
}

void Delivery::fail(int error) const {
  throw Error(ErrorCode::kFile, target_ + ": cannot write: " + std::strerror(error));
}

}  // namespace kz::lexicon
