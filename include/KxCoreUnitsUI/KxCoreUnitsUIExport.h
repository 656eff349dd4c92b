#pragma once

#if defined(_WIN32)
#  if defined(KXCOREUNITSUI_BUILDING)
#    define KXCOREUNITSUI_EXPORT __declspec(dllexport)
#  else
#    define KXCOREUNITSUI_EXPORT __declspec(dllimport)
#  endif
#else
#  define KXCOREUNITSUI_EXPORT __attribute__((visibility("default")))
#endif
