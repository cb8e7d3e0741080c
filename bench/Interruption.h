// SPDX-License-Identifier: Apache-2.0
#pragma once

/**
 * Ctrl-C, and the request to terminate: the run ends before the next measurement, and everything
 * is cleared away as usual.
 */
class Interruption
{
public:
    Interruption() = delete;

    /// Watches for it from now on.
    static void watch();
    /// Whether it has come.
    static bool hasCome();
    /// Throws std::runtime_error once it has come.
    static void check();
};
