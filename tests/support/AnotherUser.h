// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <unistd.h>

/// While it lives, a test that root runs may do no more than any other user, who owns nothing.
/// Anybody else stays who he is.
class AnotherUser
{
public:
    AnotherUser()
        : mIsSwitched(geteuid() == 0 && seteuid(nobody) == 0)
    {
    }
    ~AnotherUser()
    {
        if (mIsSwitched && seteuid(0) != 0) {
            _exit(1);
        }
    }
    AnotherUser(const AnotherUser &) = delete;
    AnotherUser &operator=(const AnotherUser &) = delete;

private:
    static constexpr uid_t nobody = 65534;

    bool mIsSwitched;
};
