# WebAssembly with Debian's packages: clang-14 llvm-14 wasi-libc libc++-14-dev-wasm32
# libc++abi-14-dev-wasm32 libclang-rt-14-dev-wasm32.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)

set(CMAKE_CXX_COMPILER clang++-14)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_AR llvm-ar-14)
set(CMAKE_RANLIB llvm-ranlib-14)

# Debian puts the target's headers and libraries into wasm32-wasi folders under /usr.
set(CMAKE_SYSROOT /usr)
set(CMAKE_CXX_FLAGS_INIT -fno-exceptions)
set(CMAKE_POSITION_INDEPENDENT_CODE OFF)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
