// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

/// Marks what the printing core's shared library exports.
#ifdef KVPRINTCORE_BUILD
#define KVPRINTCORE_EXPORT Q_DECL_EXPORT
#else
#define KVPRINTCORE_EXPORT Q_DECL_IMPORT
#endif
