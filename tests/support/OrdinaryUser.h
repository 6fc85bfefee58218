#pragma once

#include <sys/types.h>
#include <unistd.h>

namespace glossmill {

/// While it lives the test has no more rights than an ordinary user, even when root runs it: permissions mean nothing
/// to root.
class OrdinaryUser {
 public:
  OrdinaryUser() : m_former(geteuid()) { m_changed = m_former == 0 && seteuid(kNobody) == 0; }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (m_changed && seteuid(m_former) != 0) _exit(1);
  }

  static constexpr uid_t kNobody = 65534;

 private:
  const uid_t m_former;
  bool m_changed = false;
};

}  // namespace glossmill
