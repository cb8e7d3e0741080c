// SPDX-License-Identifier: Apache-2.0

/// Has AddressSanitizer follow stacks through libraries without frame pointers, as GTK's are: their
/// leaks can be told from ours.
extern "C" const char *__asan_default_options()
{
    return "fast_unwind_on_malloc=0";
}
