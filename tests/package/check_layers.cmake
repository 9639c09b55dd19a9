cmake_minimum_required(VERSION 3.25)

# Includes point downwards: fails when a folder of src/ includes a header, private or public, of a layer that it
# does not stand on.
set(layers platform support text xml contract locale_data locale_runtime conversion matching date_time filesystem
  locale_data_xml locale_runtime_startup catalog)
set(below_platform support)
set(below_support)
set(below_text support)
set(below_xml)
set(below_contract support)
set(below_locale_data support)
set(below_locale_runtime locale_data contract support)
set(below_conversion locale_runtime contract text support)
set(below_date_time conversion locale_runtime support)
set(below_matching conversion locale_runtime text support)
set(below_filesystem matching conversion locale_runtime contract text platform support)
set(below_locale_data_xml filesystem locale_runtime locale_data xml support)
set(below_locale_runtime_startup
  locale_data_xml filesystem conversion locale_runtime locale_data contract text platform support)
set(below_catalog filesystem conversion locale_runtime text xml support)

# Private headers that a folder offers to others. Everything else of src/ stays within its folder.
set(shared platform/directory.hpp platform/platform.hpp platform/stat_times.hpp
  text/case_mapping.hpp text/normalization.hpp text/text_buffer.hpp text/unit_search.hpp text/utf32_units.hpp
  text/matching/match_limit.hpp
  locale_runtime/global_locale_slot.hpp locale_runtime/locale_setting.hpp
  conversion/contract/converter_name.hpp conversion/sized_conversion.hpp xml/expat_session.hpp)

# Public headers by layer; those below fl/i18n/ that are not named here belong to the catalogs.
set(public_base export ustring idbase)
set(public_text character_class code_points compare cstring ctype_exception find scan transform trim)
set(public_contract converter cvt_ctx cvt_exception)
set(public_locale_data locale_name locale_tables language_context locale_database lc_data)
set(public_locale_data_xml lc_data_exceptions lc_data_xml)
set(public_locale_runtime locale locale_impl locale_context discovery_record locale_fallback locale_exceptions
  std_locale)
set(public_locale_runtime_startup locale_discovery environment java_vm_context locale_status startup)
set(public_matching character_handling_mode natural_sort_exception pattern_match regex_exception regex_holder
  simple_pattern_match)
set(public_conversion charset_detection codecvt codecvt_ascii codecvt_java codecvt_wide conversion_step stream_codecvt
  string_conversion)
set(public_date_time date_time time_zone)

function(layer_of header result)
  set(${result} catalog PARENT_SCOPE)
  if(header MATCHES "^conversion/contract/")
    set(${result} contract PARENT_SCOPE)
  elseif(header MATCHES "^locale_data/xml/")
    set(${result} locale_data_xml PARENT_SCOPE)
  elseif(header MATCHES "^locale_runtime/startup/")
    set(${result} locale_runtime_startup PARENT_SCOPE)
  elseif(header MATCHES "^text/matching/")
    set(${result} matching PARENT_SCOPE)
  elseif(header MATCHES "^fl/filesystem/")
    set(${result} filesystem PARENT_SCOPE)
  elseif(header MATCHES "^fl/i18n/(.*)\\.hpp$")
    foreach(layer base ${layers})
      if(CMAKE_MATCH_1 IN_LIST public_${layer})
        set(${result} ${layer} PARENT_SCOPE)
      endif()
    endforeach()
  elseif(header MATCHES "^([a-z_]+)/")
    set(${result} ${CMAKE_MATCH_1} PARENT_SCOPE)
  endif()
endfunction()

file(GLOB_RECURSE files RELATIVE "${SOURCE_DIR}/src" "${SOURCE_DIR}/src/*.[ch]pp")
set(checked 0)
foreach(file IN LISTS files)
  layer_of(${file} layer)
  file(STRINGS "${SOURCE_DIR}/src/${file}" includes REGEX "^#include (\"|<fl/)")
  foreach(include IN LISTS includes)
    string(REGEX REPLACE "^#include .([^\">]+).*" "\\1" header "${include}")
    math(EXPR checked "${checked} + 1")
    layer_of(${header} target)
    if(target STREQUAL layer OR target STREQUAL "base")
      continue()
    endif()
    set(is_open TRUE)
    if(NOT header MATCHES "^(fl|support)/" AND NOT header IN_LIST shared)
      set(is_open FALSE)
    endif()
    if(NOT target IN_LIST below_${layer} OR NOT is_open)
      message(SEND_ERROR "src/${file} includes ${header}")
    endif()
  endforeach()
endforeach()
if(checked LESS 200)
  message(FATAL_ERROR "Only ${checked} includes were seen: the check looks in the wrong place.")
endif()
