// SPDX-License-Identifier: Apache-2.0
#include "FuzzTarget.h"

#include <QApplication>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {
/// Never destroyed: the fuzzer ends the process wherever it is.
FuzzTarget *target = nullptr;
} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // Qt takes arguments of its own away, and keeps the count.
    static int count = 1;
    static char *program[] = {(*argv)[0], nullptr};
    Q_UNUSED(argc)
    new QApplication(count, program);
    const QByteArray name = qgetenv("KV_FUZZER");
    target = FuzzTarget::make(name).release();
    if (!target) {
        std::fprintf(stderr, "KV_FUZZER: there is no fuzzer \"%s\"\n", name.constData());
        std::exit(2);
    }
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    target->run(QByteArray(reinterpret_cast<const char *>(data), QByteArray::size_type(size)));
    return 0;
}
