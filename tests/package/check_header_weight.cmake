cmake_minimum_required(VERSION 3.25)

# What a header costs those who include it: the lines that it preprocesses to, for which a compiler's time is a fair
# guess. With g++ 12 `<string>` alone comes to 19 000.
#
# A header that has no limit of its own here has `usual_limit`. What the interface names by value makes up most of
# this: `<memory>` with `<string>`, `<vector>` and `<variant>` comes to 40 200; with `<functional>` to 51 100; with
# `<map>`, `<locale>` and Boost's ptime, any and shared pointer besides, to 77 600.
set(usual_limit 47500)
set(limits
  fl/filesystem.hpp:80000
  fl/filesystem/boost_path.hpp:61000
  fl/filesystem/directory_entry.hpp:50000
  fl/filesystem/directory_iterator.hpp:50000
  fl/filesystem/recursive_directory_iterator.hpp:50000
  fl/i18n.hpp:82000
  fl/i18n/catalog_map_xml.hpp:57000
  fl/i18n/catalog_xml.hpp:57000
  fl/i18n/expat_loader.hpp:57000
  fl/i18n/message_catalog.hpp:52000
  fl/i18n/message_catalog_impl.hpp:52500
  fl/i18n/message_catalog_exceptions.hpp:52000)

include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")
file(GLOB_RECURSE headers RELATIVE "${SOURCE_DIR}/include" "${SOURCE_DIR}/include/fl/*.hpp")
foreach(header IN LISTS headers)
  set(limit ${usual_limit})
  foreach(entry IN LISTS limits)
    if(entry MATCHES "^${header}:(.*)$")
      set(limit ${CMAKE_MATCH_1})
    endif()
  endforeach()
  file(WRITE "${WORK}/weight.cpp" "#include <${header}>\n")
  run("${CXX}" -std=c++20 -E -P "-I${SOURCE_DIR}/include" -idirafter "${BOOST_INCLUDE}" "${WORK}/weight.cpp")
  string(REGEX REPLACE "[^\n]" "" lines "${output}")
  string(LENGTH "${lines}" lines)
  if(lines EQUAL 0 AND NOT header STREQUAL "fl/i18n/export.hpp")
    message(SEND_ERROR "${header}: no lines were seen: the check looks in the wrong place.")
  endif()
  if(lines GREATER limit)
    message(SEND_ERROR "${header} preprocesses to ${lines} lines, more than ${limit}.")
  endif()
  message(STATUS "${lines} ${header}")
endforeach()
