#pragma once

#if defined(_WIN32)
#  if defined(KXCOREUNITSWIDGETS_BUILDING)
#    define KXCOREUNITSWIDGETS_EXPORT __declspec(dllexport)
#  else
#    define KXCOREUNITSWIDGETS_EXPORT __declspec(dllimport)
#  endif
#else
#  define KXCOREUNITSWIDGETS_EXPORT __attribute__((visibility("default")))
#endif
