#pragma once

#include <exception>
#include <stdexcept>
#include <sys/types.h>
#include <unistd.h>

/// For as long as it lives, the program may do no more than any user: the superuser, as whom tests
/// are run in places, may read, write and move every file.
class OrdinaryUser {
  public:
    OrdinaryUser() : _former(::geteuid()) {
        if (_former == 0 && ::seteuid(nobody) != 0) {
            throw std::runtime_error("seteuid");
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser() {
        if (::seteuid(_former) != 0) {
            std::terminate();
        }
    }

  private:
    static constexpr uid_t nobody = 65534;
    uid_t _former;
};
