# The word size of the controllers, on an x86-64 machine: GCC's own 32-bit side, SSE arithmetic, and the i386 libraries
# that scripts/setup has put into the build folder.
set(sysroot ${CMAKE_CURRENT_LIST_DIR}/../build/sysroot-i386)
cmake_path(NORMAL_PATH sysroot)

set(CMAKE_CXX_FLAGS_INIT "-m32 -msse2 -mfpmath=sse")
set(CMAKE_LIBRARY_ARCHITECTURE i386-linux-gnu)
list(APPEND CMAKE_PREFIX_PATH ${sysroot}/usr)
# What a library of the sysroot needs lies beside it: an old-style run path is inherited, as long as no library on the
# way has a new-style one of its own.
set(run_path ${sysroot}/usr/lib/i386-linux-gnu:${sysroot}/lib/i386-linux-gnu)
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-Wl,--disable-new-dtags")
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-Wl,--disable-new-dtags,-rpath,${run_path} -Wl,--allow-shlib-undefined -L${sysroot}/usr/lib/i386-linux-gnu")
