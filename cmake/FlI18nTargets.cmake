# The compile settings that every target of this project shares, and the helper that makes a layer.

add_library(fl_i18n_settings INTERFACE)
target_compile_features(fl_i18n_settings INTERFACE cxx_std_20)
target_compile_options(fl_i18n_settings INTERFACE -Wall -Wextra -Wconversion $<$<BOOL:${FL_I18N_WERROR}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang") # the annotations of support/mutex.hpp
  target_compile_options(fl_i18n_settings INTERFACE -Wthread-safety)
endif()
target_compile_definitions(fl_i18n_settings INTERFACE
  U_NO_DEFAULT_INCLUDE_UTF_HEADERS=1 # ICU's headers then pull in only what they need
  UNISTR_FROM_CHAR_EXPLICIT=explicit UNISTR_FROM_STRING_EXPLICIT=explicit)
if(FL_I18N_SANITIZE)
  target_compile_options(fl_i18n_settings INTERFACE -fsanitize=${FL_I18N_SANITIZE} -fno-sanitize-recover=all)
  target_link_options(fl_i18n_settings INTERFACE -fsanitize=${FL_I18N_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU") # instrumented code misleads its flow analysis
    target_compile_options(fl_i18n_settings INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()

if(FL_I18N_BUILD_FUZZERS)
  target_compile_options(fl_i18n_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
find_program(FL_I18N_CCACHE ccache)
mark_as_advanced(FL_I18N_CCACHE)
if(FL_I18N_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${FL_I18N_CCACHE}")
endif()

# fl_i18n_layer_library(NAME RESULT): the target of a layer, which is named as its folder.
function(fl_i18n_layer_library name result)
  string(REPLACE "/" "_" target "${name}")
  set(${result} fl_i18n_${target} PARENT_SCOPE)
endfunction()

# fl_i18n_add_layer([HEADERS header...] [OFFERS header...] [SOURCES source...] [DEPENDS layer-or-library...])
#
# A layer is a leaf folder of src/ and is named by it: src/text/matching is the layer text/matching and the static
# library fl_i18n_text_matching. The shared library is all layers in one; a test of a layer links to that layer, and
# so reaches its internals but nothing above it.
#
#   HEADERS  the public headers that it implements, below include/fl/
#   OFFERS   those of its private headers that layers above may include
#   DEPENDS  the layers that it stands on, by folder, and libraries. All that these stand on may be used as well.
function(fl_i18n_add_layer)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "HEADERS;OFFERS;SOURCES;DEPENDS")
  file(RELATIVE_PATH layer "${PROJECT_SOURCE_DIR}/src" "${CMAKE_CURRENT_SOURCE_DIR}")
  fl_i18n_layer_library(${layer} target)
  get_property(layers GLOBAL PROPERTY fl_i18n_layers)
  set(below)
  set(libraries)
  foreach(dependency IN LISTS arg_DEPENDS)
    if(dependency IN_LIST layers)
      list(APPEND below ${dependency})
      fl_i18n_layer_library(${dependency} dependency)
    endif()
    list(APPEND libraries ${dependency})
  endforeach()

  if(arg_SOURCES)
    set(scope PUBLIC)
    add_library(${target} STATIC ${arg_SOURCES})
    if(NOT APPLE) # where no symbol can be replaced from outside anyway
      target_compile_options(${target} PRIVATE -fno-semantic-interposition)
    endif()
    # Where a short loop lies within a line of the cache changes its speed by a tenth, and any function before it
    # may move it.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
      target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-falign-functions=64>)
    endif()
    set_target_properties(${target} PROPERTIES
      POSITION_INDEPENDENT_CODE ON
      CXX_VISIBILITY_PRESET hidden
      VISIBILITY_INLINES_HIDDEN ON)
    set_property(GLOBAL APPEND PROPERTY fl_i18n_layer_libraries ${target})
  else()
    set(scope INTERFACE)
    add_library(${target} INTERFACE)
  endif()
  target_include_directories(${target} ${scope} "${PROJECT_SOURCE_DIR}/include" "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${target} ${scope} fl_i18n_settings ${libraries})

  set_property(GLOBAL APPEND PROPERTY fl_i18n_layers ${layer})
  foreach(part HEADERS OFFERS below)
    set(list ${arg_${part}})
    if(part STREQUAL "below")
      set(list ${below})
    endif()
    string(TOLOWER ${part} name)
    set_property(GLOBAL APPEND_STRING PROPERTY fl_i18n_layer_lists "set(${layer}_${name} ${list})\n")
  endforeach()
endfunction()

# Writes what the layers are and stand on, for the checks that hold the sources to it.
function(fl_i18n_write_layers file)
  get_property(layers GLOBAL PROPERTY fl_i18n_layers)
  get_property(lists GLOBAL PROPERTY fl_i18n_layer_lists)
  string(REPLACE ";" " " layers "${layers}")
  string(REPLACE ";" " " lists "${lists}")
  file(CONFIGURE OUTPUT "${file}" CONTENT "set(layers ${layers})\n${lists}" @ONLY)
endfunction()
