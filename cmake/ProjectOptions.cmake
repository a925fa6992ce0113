# One interface target for the language and code generation, one for warnings.

add_library(tarn_options INTERFACE)
target_compile_features(tarn_options INTERFACE cxx_std_20)
# Layouts must come out the same to the last bit on every build: no fused multiply-add.
target_compile_options(tarn_options INTERFACE -ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Collecting its own garbage takes the compiler a tenth of its time, and frees some 100 MB.
  target_compile_options(tarn_options INTERFACE --param=ggc-min-expand=1000 --param=ggc-min-heapsize=2000000)
endif()
# In everything alike, so that precompiled headers fit everywhere.
target_compile_definitions(tarn_options INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII
                                                  QT_NO_CAST_TO_ASCII)

if(TARN_PACKAGE)
  # Wherever it is built, the same comes out.
  target_compile_options(tarn_options INTERFACE -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
endif()

if(TARN_SANITIZE)
  target_compile_options(
    tarn_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                           -fno-omit-frame-pointer)
  target_link_options(tarn_options INTERFACE -fsanitize=address,undefined)
  # For tests that would take minutes under the sanitizers.
  target_compile_definitions(tarn_options INTERFACE TARN_SANITIZED)
endif()

# What computes little is compiled sooner than it is run: under the sanitizers it is not optimized,
# and goes without the checks that are most of its code, for what they find (a null pointer, an object
# that is gone) the address sanitizer mostly finds too. Linked last, behind what turns them on.
add_library(tarn_computes_little INTERFACE)
if(TARN_SANITIZE AND NOT TARN_EVERY_CHECK)
  target_compile_options(tarn_computes_little
                         INTERFACE -O0 -fno-sanitize=null,alignment,object-size,vptr)
endif()

if(TARN_SANITIZE_THREADS)
  target_compile_options(tarn_options INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
  target_link_options(tarn_options INTERFACE -fsanitize=thread)
  target_compile_definitions(tarn_options INTERFACE TARN_SANITIZED)
endif()

if(TARN_COVERAGE)
  target_compile_options(tarn_options INTERFACE --coverage -O0)
  target_link_options(tarn_options INTERFACE --coverage)
endif()

# What makes a fault of memory hard to make use of: the program and its tables lie at addresses that
# change, the tables are closed once it runs, buffers on the stack and in library calls are watched,
# and jumps lead only to where something begins. tests/hardening looks at the built programs. Builds
# for finding faults have their own means, Debug is for debuggers, and Windows has other ways.
set(TARN_HARDENED OFF)
if(NOT TARN_SANITIZE AND NOT TARN_COVERAGE AND NOT TARN_FUZZ AND NOT CMAKE_BUILD_TYPE STREQUAL "Debug"
   AND NOT WIN32)
  set(TARN_HARDENED ON)
  # Before all else: what uses Qt is compiled with -fPIC, and of the two the later one counts.
  string(APPEND CMAKE_CXX_FLAGS " -fPIE")
  target_compile_options(tarn_options INTERFACE -fstack-protector-strong -U_FORTIFY_SOURCE
                                                -D_FORTIFY_SOURCE=2)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i[3-6]86)$")
    target_compile_options(tarn_options INTERFACE -fcf-protection=full)
  endif()
  target_link_options(tarn_options INTERFACE -pie -Wl,-z,relro,-z,now,-z,noexecstack)
endif()

add_library(tarn_warnings INTERFACE)
target_compile_options(tarn_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlapping copies in every inlined string concatenation (GCC bug 105651).
  target_compile_options(tarn_warnings INTERFACE -Wno-restrict)
endif()
if(TARN_WERROR)
  target_compile_options(tarn_warnings INTERFACE -Werror)
endif()

find_program(TARN_CCACHE ccache)
if(TARN_CCACHE)
  # Paths are made relative, so that another clone or work tree finds what this one has compiled.
  # The sloppiness is what precompiled headers take.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND}
      -E
      env
      CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}
      CCACHE_NOHASHDIR=true
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      ${TARN_CCACHE})
endif()
