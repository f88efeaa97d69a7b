#ifndef MIVO_TESTS_SUPPORT_UNPRIVILEGED_USER_H
#define MIVO_TESTS_SUPPORT_UNPRIVILEGED_USER_H

#include <sys/types.h>

#include <vector>

namespace mivo {

/// Takes root's rights away for as long as it lives, so that a test sees permissions refused
/// whoever runs it. The process becomes the user who owns nothing, except that everything in
/// PrivateFolder() is handed over to that user first; a program started meanwhile can never get the
/// rights back. Does nothing for an ordinary user. Throws std::system_error when the system
/// refuses.
class UnprivilegedUser {
 public:
  UnprivilegedUser();
  ~UnprivilegedUser();
  UnprivilegedUser(const UnprivilegedUser&) = delete;
  UnprivilegedUser& operator=(const UnprivilegedUser&) = delete;

 private:
  bool wasRoot_;
  std::vector<gid_t> groups_;
};

}  // namespace mivo

#endif
