cmake_minimum_required(VERSION 3.25)

# Installs the library, then configures, builds and runs a project that uses it.
file(REMOVE_RECURSE "${WORK}")
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK}/install")
run("${CMAKE_COMMAND}" -S "${CONSUMER}" -B "${WORK}/build" -G Ninja "-DCMAKE_CXX_COMPILER=${CXX}"
  "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}" "-DCMAKE_CXX_FLAGS_DEBUG=${FLAGS_DEBUG}"
  "-DCMAKE_PREFIX_PATH=${WORK}/install" "-DFL_I18N_SOURCE_DIR=${SOURCE_DIR}")
run("${CMAKE_COMMAND}" --build "${WORK}/build")
run("${WORK}/build/consumer")
