// Output by the platform layer, and a list of what is under way.
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <streambuf>
#include <string_view>
#include <utility>

#include "kzlexicon/error.h"
#include "kzlexicon/output.h"
#include "platform/replace.h"

namespace kz::lexicon {
namespace {

using platform::UnfinishedFile;

// For handlers of signals: the files under way, as many as there are places.
std::array<std::atomic<const UnfinishedFile*>, 16> unfinished_files;

// Puts one file in the place of another in the list; null is no file.
void exchange_unfinished(const UnfinishedFile* from, const UnfinishedFile* to) {
  for (auto& place : unfinished_files) {
    const UnfinishedFile* expected = from;
    if (place.compare_exchange_strong(expected, to)) return;
  }
}

// Collects what is written, so that the file takes it in large pieces.
class Buffer : public std::streambuf {
 public:
  explicit Buffer(platform::Replacement& file) : file_(file) { reset(); }

  int error() const { return error_; }  // of the first write that failed

 private:
  void reset() { setp(bytes_.data(), bytes_.data() + bytes_.size()); }

  int_type overflow(int_type c) override {
    if (sync() != 0) return traits_type::eof();
    return traits_type::eq_int_type(c, traits_type::eof()) ? traits_type::not_eof(c)
                                                           : sputc(traits_type::to_char_type(c));
  }

  int sync() override {
    if (error_ == 0 && !file_.write({pbase(), static_cast<std::size_t>(pptr() - pbase())})) {
      error_ = errno;
    }
    reset();
    return error_ == 0 ? 0 : -1;
  }

  platform::Replacement& file_;
  std::array<char, 65536> bytes_;
  int error_ = 0;
};

}  // namespace

struct OutputFile::Impl {
  explicit Impl(std::string name) : target(std::move(name)) {
    exchange_unfinished(nullptr, &file.unfinished());
  }
  ~Impl() {
    file.abandon();
    exchange_unfinished(&file.unfinished(), nullptr);
  }
  Impl(const Impl&) = delete;
  Impl& operator=(const Impl&) = delete;

  [[noreturn]] void fail(int error) const {
    throw Error(ErrorCode::kFile, std::string("cannot write: ") + std::strerror(error), {target});
  }

  std::string target;
  platform::Replacement file;
  Buffer buffer{file};
  std::ostream stream{&buffer};
};

OutputFile::OutputFile(const std::string& target) : impl_(std::make_unique<Impl>(target)) {
  if (!impl_->file.begin(target.c_str(), {})) impl_->fail(errno);
}

OutputFile::~OutputFile() = default;

std::ostream& OutputFile::stream() { return impl_->stream; }
int OutputFile::handle() const { return impl_->file.handle(); }
std::string OutputFile::path() const { return impl_->file.path(); }

void OutputFile::commit() {
  impl_->stream.flush();
  if (impl_->buffer.error() != 0) impl_->fail(impl_->buffer.error());
  if (!impl_->file.commit()) impl_->fail(errno);
}

void remove_unfinished_files() noexcept {
  for (const auto& file : unfinished_files) {
    if (const UnfinishedFile* const unfinished = file.load()) remove_unfinished(*unfinished);
  }
}

}  // namespace kz::lexicon
