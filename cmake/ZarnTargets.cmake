# How every target of ZARN is compiled and where its programs and resources lie.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# The program finds its resources at "<folder of the executable>/../Resources/", in the build tree too.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(ZARN_RESOURCES "${PROJECT_BINARY_DIR}/Resources")
if(IS_SYMLINK "${ZARN_RESOURCES}")
  file(REMOVE "${ZARN_RESOURCES}")
endif()
file(MAKE_DIRECTORY "${ZARN_RESOURCES}")
# Copies, for the program installs profiles here: through a link it would write into the sources.
if(IS_SYMLINK "${ZARN_RESOURCES}/profiles")
  file(REMOVE "${ZARN_RESOURCES}/profiles")
endif()
file(GLOB_RECURSE profiles CONFIGURE_DEPENDS RELATIVE "${PROJECT_SOURCE_DIR}/resources" "${PROJECT_SOURCE_DIR}/resources/profiles/*")
foreach(profile ${profiles})
  configure_file("${PROJECT_SOURCE_DIR}/resources/${profile}" "${ZARN_RESOURCES}/${profile}" COPYONLY)
endforeach()

foreach(part shores places airfields)
  configure_file("${PROJECT_SOURCE_DIR}/resources/map/${part}.bin" "${ZARN_RESOURCES}/map/${part}.bin" COPYONLY)
endforeach()

option(ZARN_WERROR "Treat warnings as errors" OFF)
option(ZARN_SANITIZE "Address and undefined behaviour sanitizers" OFF)

find_program(ZARN_CCACHE ccache)
if(ZARN_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${ZARN_CCACHE}")
endif()

add_library(zarn_options INTERFACE)
target_include_directories(zarn_options INTERFACE "${PROJECT_SOURCE_DIR}")
# Contraction off: the same bits on every platform; a fused multiply-add is written std::fma.
target_compile_options(zarn_options INTERFACE -ffp-contract=off -Wall -Wextra -Wshadow -Wconversion -Wno-sign-conversion
                                              -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2)
target_compile_definitions(zarn_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
if(ZARN_WERROR)
  target_compile_options(zarn_options INTERFACE -Werror)
endif()
if(ZARN_SANITIZE)
  target_compile_options(zarn_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(zarn_options INTERFACE -fsanitize=address,undefined)
endif()

# zarn_library(NAME LINKS target... [FOLDERS folder...]): all sources of this folder, or of the folders given, as one static
# library; a main function is no part of it.
function(zarn_library name)
  cmake_parse_arguments(ARG "" "" "LINKS;FOLDERS" ${ARGN})
  if(NOT ARG_FOLDERS)
    set(ARG_FOLDERS .)
  endif()
  list(TRANSFORM ARG_FOLDERS APPEND "/*.cpp" OUTPUT_VARIABLE patterns)
  list(TRANSFORM ARG_FOLDERS APPEND "/*.h" OUTPUT_VARIABLE headers)
  file(GLOB sources CONFIGURE_DEPENDS ${patterns} ${headers})
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  if(NOT sources)
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE zarn_options ${ARG_LINKS})
    return()
  endif()
  add_library(${name} STATIC ${sources})
  target_link_libraries(${name} PUBLIC zarn_options ${ARG_LINKS})
endfunction()

# Seconds after which a test counts as hanging; wide, for sanitized tests of windows on a busy machine without a graphics card.
set(ZARN_TEST_TIMEOUT 900)

# zarn_test(NAME SOURCE LINKS target... [LABELS label...] [GUI]): one Qt Test program.
# GUI: it opens windows on a real X server (label gui), one such test at a time, for they would take each other's focus.
function(zarn_test name source)
  cmake_parse_arguments(ARG "GUI" "" "LINKS;LABELS" ${ARGN})
  add_executable(${name} ${source})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests")
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} zarn_test_places Qt6::Test)
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ZARN_TEST_TIMEOUT} LABELS "${ARG_LABELS}")
  if(ARG_GUI)
    # No session bus: the toolkit would start one for each test, and leak a little in it.
    set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS};gui" RESOURCE_LOCK display
                                            ENVIRONMENT "DBUS_SESSION_BUS_ADDRESS=disabled:")
    if(ZARN_SANITIZE)
      target_sources(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests/sanitize/LeakCheck.cpp")
    endif()
  else()
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
  endif()
endfunction()
