// Databases that the dictionaries are measured beside, filled with the same words and entries.
#ifndef KZ_BENCH_PEERS_H
#define KZ_BENCH_PEERS_H

#include <cdb.h>
#include <fcntl.h>
#include <lmdb.h>
#include <unistd.h>

#include <string>

#include "bench/scratch.h"

namespace peers {

using scratch::fail;

// A constant database (tinycdb). `entries` is a range of pairs of word and text.
class Cdb {
 public:
  Cdb(const std::string& path, const auto& entries) {
    const int file = open(path.c_str(), O_RDWR | O_CREAT | O_TRUNC, 0600);
    cdb_make maker;
    if (file < 0 || cdb_make_start(&maker, file) != 0) fail("cannot make " + path);
    for (const auto& [word, text] : entries) {
      cdb_make_add(&maker, word.data(), static_cast<unsigned>(word.size()), text.data(),
                   static_cast<unsigned>(text.size()));
    }
    if (cdb_make_finish(&maker) != 0 || cdb_init(&database_, file) != 0) fail("cannot use " + path);
  }
  Cdb(const Cdb&) = delete;
  Cdb& operator=(const Cdb&) = delete;
  ~Cdb() {
    const int file = cdb_fileno(&database_);
    cdb_free(&database_);
    close(file);
  }

  // The text of the word in the mapped file, null when it is not there.
  const void* find(const std::string& word) {
    const auto size = static_cast<unsigned>(word.size());
    return cdb_find(&database_, word.data(), size) > 0 ? cdb_getdata(&database_) : nullptr;
  }

  // Copies every text to `room` and calls visit(size).
  void walk(char* room, auto visit) {
    unsigned position;
    cdb_seqinit(&position, &database_);
    while (cdb_seqnext(&position, &database_) > 0) {
      const unsigned size = cdb_datalen(&database_);
      cdb_read(&database_, room, size, cdb_datapos(&database_));
      visit(size);
    }
  }

 private:
  cdb database_{};
};

// An LMDB environment of one database, read in one transaction.
class Lmdb {
 public:
  Lmdb(const std::string& path, const auto& entries) {
    check(mdb_env_create(&environment_));
    check(mdb_env_set_mapsize(environment_, std::size_t{256} << 20));
    check(mdb_env_open(environment_, path.c_str(), MDB_NOSUBDIR | MDB_NOSYNC, 0600));
    check(mdb_txn_begin(environment_, nullptr, 0, &transaction_));
    check(mdb_dbi_open(transaction_, nullptr, 0, &database_));
    for (const auto& [word, text] : entries) {
      MDB_val key = value(word), data = value(text);
      check(mdb_put(transaction_, database_, &key, &data, 0));
    }
    check(mdb_txn_commit(transaction_));
    check(mdb_txn_begin(environment_, nullptr, MDB_RDONLY, &transaction_));
  }
  Lmdb(const Lmdb&) = delete;
  Lmdb& operator=(const Lmdb&) = delete;
  ~Lmdb() {
    mdb_txn_abort(transaction_);
    mdb_env_close(environment_);
  }

  const void* find(const std::string& word) {
    MDB_val key = value(word), data;
    return mdb_get(transaction_, database_, &key, &data) == 0 ? data.mv_data : nullptr;
  }

  void walk(char* room, auto visit) {
    MDB_cursor* cursor = nullptr;
    MDB_val key, data;
    check(mdb_cursor_open(transaction_, database_, &cursor));
    while (mdb_cursor_get(cursor, &key, &data, MDB_NEXT) == 0) {
      std::char_traits<char>::copy(room, static_cast<const char*>(data.mv_data), data.mv_size);
      visit(data.mv_size);
    }
    mdb_cursor_close(cursor);
  }

 private:
  static void check(int result) {
    if (result != 0) fail("LMDB: " + std::string(mdb_strerror(result)));
  }
  static MDB_val value(const std::string& text) {
    return MDB_val{text.size(), const_cast<char*>(text.data())};
  }

  MDB_env* environment_ = nullptr;
  MDB_txn* transaction_ = nullptr;
  MDB_dbi database_ = 0;
};

}  // namespace peers

#endif  // KZ_BENCH_PEERS_H
