// The rights of an ordinary user, also where the tests run as the superuser.
#ifndef KZ_TESTS_UNPRIVILEGED_H
#define KZ_TESTS_UNPRIVILEGED_H

#include <unistd.h>

#include <cstdlib>

namespace kz::test {

class Unprivileged {
 public:
  static constexpr uid_t kNobody = 65534;

  Unprivileged() : user_(geteuid()) { become(user_ == 0 ? kNobody : user_); }
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;
  ~Unprivileged() { become(user_); }

 private:
  static void become(uid_t user) {
    if (seteuid(user) != 0) std::abort();
  }

  uid_t user_;
};

}  // namespace kz::test

#endif  // KZ_TESTS_UNPRIVILEGED_H
