cmake_minimum_required(VERSION 3.25)

# Installs the library, then configures, builds and runs a project that uses it.
file(REMOVE_RECURSE "${WORK}")
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}: ${result}\n${output}")
  endif()
endfunction()

run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK}/install")
run("${CMAKE_COMMAND}" -S "${CONSUMER}" -B "${WORK}/build" -G Ninja "-DCMAKE_CXX_COMPILER=${CXX}"
  "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}" "-DCMAKE_CXX_FLAGS_DEBUG=${FLAGS_DEBUG}"
  "-DCMAKE_PREFIX_PATH=${WORK}/install" "-DFL_I18N_SOURCE_DIR=${SOURCE_DIR}")
run("${CMAKE_COMMAND}" --build "${WORK}/build")
run("${WORK}/build/consumer")
