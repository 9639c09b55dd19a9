cmake_minimum_required(VERSION 3.25)

# Builds and runs libcxx_check.cpp with clang and libc++, so that a system with that standard library holds no
# surprise. Skipped, by its message, where there is no such compiler.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")
file(MAKE_DIRECTORY "${WORK}")
file(WRITE "${WORK}/probe.cpp" "#include <locale>\nint main() { return std::locale() != std::locale::classic(); }\n")
set(compile "${CLANGXX}" -stdlib=libc++ -std=c++20)

if(CLANGXX)
  execute_process(COMMAND ${compile} "${WORK}/probe.cpp" -o "${WORK}/probe"
    RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
endif()
if(NOT CLANGXX OR NOT result EQUAL 0)
  message("Skipped: no clang with libc++ here (Debian: clang libc++-dev libc++abi-dev).")
  return()
endif()

set(src "${SOURCE_DIR}/src")
run(${compile} -Wall -Wextra -Wconversion -Werror -pthread
  "-I${SOURCE_DIR}/include" "-I${src}" "-I${SOURCE_DIR}/tests" -idirafter "${BOOST_INCLUDE}"
  "${CMAKE_CURRENT_LIST_DIR}/libcxx_check.cpp"
  "${src}/locale_runtime/context/std_locale.cpp" "${src}/locale_runtime/context/std_locale_facets.cpp"
  "${src}/date_time/date_time_input.cpp" "${src}/date_time/date_time.cpp"
  "${src}/conversion/codecs/codecvt_ascii.cpp" "${src}/conversion/contract/converter.cpp"
  "${src}/conversion/contract/cvt_exceptions.cpp"
  -o "${WORK}/libcxx_check")
run("${WORK}/libcxx_check")
