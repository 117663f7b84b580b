# Builds for Windows with Debian's MinGW-w64. scripts/windows sets LOQUITOR_WINDOWS_QT, the folder of Qt for
# Windows; without it only what needs no Qt can be built. It also sets LOQUITOR_WINDOWS_FLITE, the folder of flite for
# Windows; without it the programs cannot read English.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES LOQUITOR_WINDOWS_FLITE LOQUITOR_WINDOWS_QT)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${LOQUITOR_WINDOWS_FLITE} ${LOQUITOR_WINDOWS_QT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# Qt's tools (moc, rcc) are the host's, their CMake files too.
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)

# One file to copy: no runtime library beside the programs.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# The tests run under Wine.
find_program(LOQUITOR_WINE NAMES wine64 wine PATHS /usr/lib/wine)
if(LOQUITOR_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${LOQUITOR_WINE})
endif()
