// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

/**
 * One of the fuzzers: does with an input what a program of ours does with such data.
 *
 * What is the same for every input is made once, with the object. The environment variable
 * KV_FUZZER names the fuzzer that a process runs.
 */
class FuzzTarget
{
public:
    FuzzTarget() = default;
    virtual ~FuzzTarget() = default;
    FuzzTarget(const FuzzTarget &) = delete;
    FuzzTarget &operator=(const FuzzTarget &) = delete;

    virtual void run(const QByteArray &input) = 0;

    using Maker = std::unique_ptr<FuzzTarget> (*)();
    /// Makes a fuzzer known under its name; called before main(), by KV_FUZZ_TARGET.
    static bool add(const char *name, Maker maker);
    /// Makes the fuzzer of that name; null when there is none.
    static std::unique_ptr<FuzzTarget> make(const QByteArray &name);

    /// The template of a QTemporaryDir. A fuzzer ends without removing its files, but
    /// tests/isolated removes the folder around them.
    static QString folderTemplate();
};

/// Stands at the end of a fuzzer's source.
#define KV_FUZZ_TARGET(name, Class)                                                                \
    [[maybe_unused]] static const bool isKnown##Class = FuzzTarget::add(                           \
        name, []() -> std::unique_ptr<FuzzTarget> { return std::make_unique<Class>(); });

/// Ends the process, which the fuzzer takes for a finding, unless the rule holds.
/// @param rule what should hold, in words.
void expectRule(bool holds, const char *rule);
