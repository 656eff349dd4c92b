// Fatal assertions for programming errors. They stay active in release builds and
// report through Qt's assertion handler with the condition text, file and line.
#pragma once

#include <QtGlobal>

#define KX_ASSERT(cond) \
    ((cond) ? static_cast<void>(0) : qt_assert(#cond, KX_SOURCE_PATH, __LINE__))

// Files name themselves by their path in the source tree (src/Common/...), not by
// the build machine's absolute path.
#ifndef KX_SOURCE_PATH
#define KX_SOURCE_PATH __FILE__
#endif
