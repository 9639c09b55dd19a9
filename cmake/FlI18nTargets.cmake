# The compile settings that every target of this project shares, and the helper that makes a layer.

add_library(fl_i18n_settings INTERFACE)
target_compile_features(fl_i18n_settings INTERFACE cxx_std_20)
target_compile_options(fl_i18n_settings INTERFACE -Wall -Wextra -Wconversion $<$<BOOL:${FL_I18N_WERROR}>:-Werror>)
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

find_program(FL_I18N_CCACHE ccache)
mark_as_advanced(FL_I18N_CCACHE)

# fl_i18n_add_layer(NAME SOURCES source... [DEPENDS library...])
#
# A layer is one folder of src/ (or one floor of it), built as a static library that names the layers below it.
# The shared library is all layers in one; a test of a layer links to that layer, and so reaches its internals
# but nothing above it.
function(fl_i18n_add_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;DEPENDS")
  add_library(fl_i18n_${name} STATIC ${arg_SOURCES})
  target_include_directories(fl_i18n_${name} PUBLIC
    "${PROJECT_SOURCE_DIR}/include" "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(fl_i18n_${name} PUBLIC fl_i18n_settings ${arg_DEPENDS})
  if(NOT APPLE) # where no symbol can be replaced from outside anyway
    target_compile_options(fl_i18n_${name} PRIVATE -fno-semantic-interposition)
  endif()
  set_target_properties(fl_i18n_${name} PROPERTIES
    POSITION_INDEPENDENT_CODE ON
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  if(FL_I18N_CCACHE)
    set_target_properties(fl_i18n_${name} PROPERTIES CXX_COMPILER_LAUNCHER "${FL_I18N_CCACHE}")
  endif()
  set_property(GLOBAL APPEND PROPERTY fl_i18n_layers fl_i18n_${name})
endfunction()
