# Cross-compiles for 32-bit Windows with Debian's g++-mingw-w64-i686-posix.

set(CMAKE_SYSTEM_PROCESSOR i686)
set(triple i686-w64-mingw32)
include("${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake")
