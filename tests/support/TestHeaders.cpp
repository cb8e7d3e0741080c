// SPDX-License-Identifier: Apache-2.0

// What is compiled here is the precompiled header alone.
