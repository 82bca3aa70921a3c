# What makes a fault in the programs hard to use, and their bytes the same wherever they are built. packaging/check-hardening reads the
# results out of the binaries.

include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported(OUTPUT_VARIABLE pie_problem LANGUAGES CXX)
if(NOT CMAKE_CXX_LINK_PIE_SUPPORTED)
  message(STATUS "Programs are not position-independent: ${pie_problem}")
endif()

if(UNIX AND NOT APPLE)
  add_link_options(LINKER:-z,relro,-z,now,-z,noexecstack)
endif()

# Of the release only: each costs something, and sanitizers do more.
# _GLIBCXX_ASSERTIONS is not among them: it checks every access to a sequence, in the loops that read and decode too, and costs more than the
# 2 % that it may. Instructions of zarn-cli on a card of 93 MiB, by valgrind's cachegrind, with it: ids + 3.2 %, flights + 2.7 %, events + 2.5 %,
# csv + 0.5 %. The sanitizers of the tests and the fuzz targets find what it would.
set(hardening -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
check_cxx_compiler_flag(-fcf-protection=full ZARN_HAS_CF_PROTECTION)
if(ZARN_HAS_CF_PROTECTION)
  list(APPEND hardening -fcf-protection=full)
endif()
add_compile_options("$<$<CONFIG:Release>:${hardening}>")

# No path of the machine that builds gets into the bytes. Times are those of SOURCE_DATE_EPOCH, where that is set.
add_compile_options("$<$<CONFIG:Release>:-ffile-prefix-map=${PROJECT_BINARY_DIR}=build;-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>")
