// Lines read as they arrive, answered in blocks.
#include "tools/line_filter.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <new>
#include <nlohmann/json.hpp>

#include "kzlexicon/code_page.h"
#include "kzlexicon/output.h"
#include "tools/status.h"
#include "tools/streams.h"

namespace kzdic {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::size_t kPiece = 65536;
constexpr std::size_t kLongLine = 16 * kPiece;

class File {
 public:
  explicit File(const std::string& path)
      : name_(path == "-" ? "(standard input)" : path),
        descriptor_(path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (descriptor_ < 0) throw Failure(Status::kFile, name_ + ": cannot open: " + reason());
  }
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() {
    if (descriptor_ != STDIN_FILENO) close(descriptor_);
  }

  const std::string& name() const { return name_; }

  // Waits for what there is next, at most `size` bytes; 0 at the end.
  std::size_t read(char* destination, std::size_t size) {
    ssize_t count = 0;
    do {
      count = ::read(descriptor_, destination, size);
    } while (count < 0 && errno == EINTR);
    if (count < 0) throw Failure(Status::kFile, name_ + ": cannot read: " + reason());
    return static_cast<std::size_t>(count);
  }

 private:
  static std::string reason() { return std::strerror(errno); }

  std::string name_;
  int descriptor_;
};

// Bytes that grow at their end. The memory allocator moves large blocks without a copy.
class Bytes {
 public:
  std::string_view view() const { return {data_.get(), size_}; }

  void erase_front(std::size_t count) {
    std::copy(data_.get() + count, data_.get() + size_, data_.get());
    size_ -= count;
  }
  // Room for this many bytes after the end.
  char* room(std::size_t count) {
    if (capacity_ - size_ < count) {
      const std::size_t capacity = std::max(2 * capacity_, size_ + count);
      void* const grown = std::realloc(data_.get(), capacity);
      if (grown == nullptr) throw std::bad_alloc();
      static_cast<void>(data_.release());
      data_.reset(static_cast<char*>(grown));
      capacity_ = capacity;
    }
    return data_.get() + size_;
  }
  void grow(std::size_t count) { size_ += count; }

 private:
  struct Free {
    void operator()(char* data) const { std::free(data); }
  };

  std::unique_ptr<char, Free> data_;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

// Takes a file apart where lines end.
class LineReader {
 public:
  explicit LineReader(const std::string& path) : file_(path) {}

  const std::string& name() const { return file_.name(); }

  // The whole lines that have arrived; at the end of the file what is left, then nothing.
  std::string_view next() {
    buffer_.erase_front(taken_);
    for (;;) {
      const std::size_t before = buffer_.view().size();
      const std::size_t count = file_.read(buffer_.room(kPiece), kPiece);
      buffer_.grow(count);
      const std::size_t end = buffer_.view().substr(before).rfind('\n');
      if (count != 0 && end == std::string_view::npos) continue;
      taken_ = count == 0 ? before : before + end + 1;
      return buffer_.view().substr(0, taken_);
    }
  }

 private:
  File file_;
  Bytes buffer_;
  std::size_t taken_ = 0;
};

class Run {
 public:
  Run(LineFilter& filter, const FilterOptions& options) : filter_(filter), options_(options) {}

  void file(const std::string& path) {
    LineReader reader(path);
    std::size_t line = 1;
    for (std::string_view text; !(text = reader.next()).empty();) {
      if (line == 1 && filter_.reads_utf8()) text.remove_prefix(byte_order_mark(text));
      answer({text, reader.name(), line});
      line += static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    }
  }

 private:
  void answer(const Block& block) {
    out_.clear();
    if (options_.json || block.text.size() > kLongLine) {
      answer_singly(block);
    } else {
      try {
        filter_.answer(block, out_);
      } catch (const std::runtime_error&) {
        out_.clear();
        answer_singly(block);
      }
    }
    write();
  }

  void answer_singly(const Block& block) {
    Block line = block;
    for (std::size_t at = 0; at < block.text.size(); at += line.text.size(), ++line.line) {
      line.text = block.text.substr(at);
      line.text = line.text.substr(0, std::min(line.text.find('\n'), line.text.size() - 1) + 1);
      const std::size_t answered = out_.size();
      try {
        answer_line(line);
      } catch (const BadText& bad) {
        out_.resize(std::min(answered, out_.size()));
        write();
        throw Failure(Status::kDamaged,
                      at_place({.file = line.file, .line = line.line},
                               "byte " + std::to_string(bad.offset + 1) + ' ' + bad.what()));
      } catch (const Error&) {
        out_.resize(std::min(answered, out_.size()));
        write();
        throw;
      }
    }
  }

  void answer_line(Block line) {
    if (!options_.json) {
      return line.text.size() > kLongLine ? answer_in_pieces(line) : filter_.answer(line, out_);
    }
    if (line.text.ends_with('\n')) {
      line.text.remove_suffix(line.text.ends_with("\r\n") ? 2 : 1);
    }
    Json object;
    if (!options_.files.empty()) object["file"] = line.file;
    object["line"] = line.line;
    filter_.describe(line, object);
    out_ += object.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
  }

  void answer_in_pieces(Block line) {
    for (const bool rehearsal : {true, false}) {
      line.rehearsal = rehearsal;
      for (std::size_t at = 0; at < line.text.size();) {
        const std::size_t answered = out_.size();
        at += filter_.answer_piece(line, at, out_);
        if (rehearsal) {
          out_.resize(answered);
        } else {
          write();
        }
      }
    }
  }

  void write() {
    std::cout.write(out_.data(), static_cast<std::streamsize>(out_.size()));
    out_.clear();
    finish_output();
  }

  LineFilter& filter_;
  const FilterOptions& options_;
  std::string out_;
};

}  // namespace

void TextLineFilter::describe(const Block& line, Json& object) {
  std::string output;
  answer(line, output);
  object["input"] = line.text;
  object["output"] = output;
}

void run_filter(LineFilter& filter, const FilterOptions& options) {
  const std::vector<std::string> files =
      options.files.empty() ? std::vector<std::string>{"-"} : options.files;
  refuse_inputs_as_output("-", files);
  Run run(filter, options);
  try {
    for (const std::string& path : files) run.file(path);
  } catch (const std::bad_alloc&) {
    throw Failure(Status::kFile, "not enough memory for a line this long");
  }
}

}  // namespace kzdic
