# Finds what the library stands on, and says in one sentence what to do when something is missing.

function(fl_i18n_missing what packages)
  message(FATAL_ERROR
    "fl_i18n needs ${what}, which was not found. Install it (${packages}) or point CMAKE_PREFIX_PATH at it.")
endfunction()

# Homebrew keeps ICU and expat out of the default search path.
if(APPLE)
  foreach(formula icu4c expat)
    execute_process(COMMAND brew --prefix ${formula} OUTPUT_VARIABLE prefix
      OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET RESULT_VARIABLE result)
    if(result EQUAL 0)
      list(APPEND CMAKE_PREFIX_PATH "${prefix}")
    endif()
  endforeach()
endif()

find_package(Threads REQUIRED)

find_package(ICU 71 QUIET COMPONENTS uc i18n data)
if(NOT ICU_FOUND)
  fl_i18n_missing("ICU 71 or newer" "Debian: libicu-dev, Homebrew: icu4c")
endif()

find_package(EXPAT 2.4 QUIET)
if(NOT EXPAT_FOUND)
  fl_i18n_missing("expat 2.4 or newer" "Debian: libexpat1-dev, Homebrew: expat")
endif()

find_package(Boost 1.81 QUIET COMPONENTS thread filesystem)
if(NOT Boost_FOUND)
  fl_i18n_missing("Boost 1.81 or newer"
    "Debian: libboost1.81-dev libboost-thread1.81-dev libboost-filesystem1.81-dev, Homebrew: boost")
endif()
