# Programs for Windows, made on Linux with mingw-w64 in its POSIX flavour, the one whose threads the
# standard library knows. TESSEL_WINDOWS_QT is the folder of the Qt that they are built against.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TESSEL_WINDOWS_QT)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# What is run is of this computer; all else is of Windows.
set(CMAKE_PREFIX_PATH "${TESSEL_WINDOWS_QT}")
set(CMAKE_FIND_ROOT_PATH "${TESSEL_WINDOWS_QT}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# What runs a test program.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../packaging/windows/in-wine")
