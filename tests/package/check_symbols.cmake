cmake_minimum_required(VERSION 3.25)

# The library exports its interface and nothing else: no symbol outside namespace fl, but for an exception
# family that keeps its own namespace, for what the standard library and Boost must share between modules (their
# type information and template instances), and for the standard facets for char16_t.
execute_process(COMMAND "${NM}" --dynamic --defined-only --demangle "${LIBRARY}"
  OUTPUT_VARIABLE output RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${NM} cannot read ${LIBRARY}")
endif()
string(REPLACE ";" "," output "${output}")
string(REPLACE "\n" ";" lines "${output}")
# Type information is weak by one compiler and not by another.
set(start " [TDBR] (typeinfo for |typeinfo name for |vtable for |VTT for )?")
set(own 0)
foreach(line IN LISTS lines)
  if(line MATCHES "${start}std::(__[a-z0-9_]+::)?(ctype|numpunct)(_byname)?<char16_t>")
    continue()
  endif()
  if(line MATCHES "${start}(fl|foundation::ustring)::")
    math(EXPR own "${own} + 1")
  elseif(line MATCHES " [TDBR] ")
    message(SEND_ERROR "exported without need: ${line}")
  endif()
  if(line MATCHES "${start}fl::(support|platform)::")
    message(SEND_ERROR "an internal symbol is exported: ${line}")
  endif()
endforeach()
if(own LESS 100)
  message(FATAL_ERROR "Only ${own} symbols of the library were seen.")
endif()
