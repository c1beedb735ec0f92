# Installs a build tree into a scratch prefix and builds tests/consumer against
# it twice: through find_package(pel) and through pkg-config. Run as
#   cmake -DBUILD_DIR=... -DWORK_DIR=... -DCONSUMER_DIR=... -DGENERATOR=...
#         -DC_COMPILER=... -DLIBDIR=... [-DMAKE_PROGRAM=...] [-DCONFIG=...]
#         [-DPKG_CONFIG=...] [-DEXTRA_C_FLAGS=...] [-DVERSION=...] [-DBINDIR=...]
#         -P install_consumer.cmake
# When the build has pel-demo, the installed copy is run too: it must find the
# installed libraries on its own.
foreach(var BUILD_DIR WORK_DIR CONSUMER_DIR GENERATOR C_COMPILER LIBDIR)
  if(NOT DEFINED ${var} OR "${${var}}" STREQUAL "")
    message(FATAL_ERROR "install_consumer: ${var} is not set")
  endif()
endforeach()

# Runs a command; stops with its output when it fails, returns the output.
function(run what out_var)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE out)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${what} failed (${rc}):\n${ARGN}\n${out}")
  endif()
  message(STATUS "${what}: ok")
  set(${out_var} "${out}" PARENT_SCOPE)
endfunction()

set(prefix "${WORK_DIR}/prefix")
set(libdir "${prefix}/${LIBDIR}")
if(IS_ABSOLUTE "${LIBDIR}")
  set(libdir "${LIBDIR}")
endif()
file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
# Only the installed copy may be found, never the build tree or a library
# the environment points at.
unset(ENV{LD_LIBRARY_PATH})

set(config_args "")
if(CONFIG)
  set(config_args --config "${CONFIG}")
endif()
run("install" _ "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${prefix}" ${config_args})
foreach(file "${prefix}/include/peli.h" "${prefix}/include/pelcore.h"
             "${libdir}/cmake/pel/pelConfig.cmake" "${libdir}/pkgconfig/pel.pc")
  if(NOT EXISTS "${file}")
    message(FATAL_ERROR "install: ${file} is missing")
  endif()
endforeach()

if(BINDIR AND EXISTS "${prefix}/${BINDIR}/pel-demo")
  run("run installed pel-demo" _ "${prefix}/${BINDIR}/pel-demo" -o "${WORK_DIR}/demo-out")
endif()

# 1. The CMake package.
set(cmake_dir "${WORK_DIR}/cmake")
set(make_args "")
if(MAKE_PROGRAM)
  set(make_args "-DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}")
endif()
run("configure consumer" _ "${CMAKE_COMMAND}" -S "${CONSUMER_DIR}" -B "${cmake_dir}" -G "${GENERATOR}"
    ${make_args} "-DCMAKE_C_COMPILER=${C_COMPILER}" "-DCMAKE_C_FLAGS=${EXTRA_C_FLAGS}"
    -DCMAKE_BUILD_TYPE=Release "-DCMAKE_PREFIX_PATH=${prefix}")
file(STRINGS "${cmake_dir}/CMakeCache.txt" found_dir REGEX "^pel_DIR:")
string(REGEX REPLACE "^pel_DIR:[A-Z]+=" "" found_dir "${found_dir}")
file(REAL_PATH "${found_dir}" found_dir)
file(REAL_PATH "${libdir}/cmake/pel" want_dir)
if(NOT found_dir STREQUAL want_dir)
  message(FATAL_ERROR "consumer found pel in ${found_dir}, not in ${want_dir}")
endif()
run("build consumer" _ "${CMAKE_COMMAND}" --build "${cmake_dir}")
run("run consumer (CMake package)" out "${cmake_dir}/pel_consumer")
message("${out}")

# 2. pkg-config, looking at nothing but the installed pel.pc.
if(NOT PKG_CONFIG)
  message(STATUS "pkg-config not found: pkg-config half skipped")
  return()
endif()
set(ENV{PKG_CONFIG_PATH} "${libdir}/pkgconfig")
set(ENV{PKG_CONFIG_LIBDIR} "${libdir}/pkgconfig")
if(VERSION)
  run("pkg-config --modversion" modversion "${PKG_CONFIG}" --modversion pel)
  string(STRIP "${modversion}" modversion)
  if(NOT modversion STREQUAL VERSION)
    message(FATAL_ERROR "pel.pc gives version ${modversion}, the project is ${VERSION}")
  endif()
endif()
run("pkg-config --cflags --libs" flags "${PKG_CONFIG}" --cflags --libs pel)
separate_arguments(flags UNIX_COMMAND "${flags}")
separate_arguments(extra UNIX_COMMAND "${EXTRA_C_FLAGS}")
file(MAKE_DIRECTORY "${WORK_DIR}/pkg-config")
set(exe "${WORK_DIR}/pkg-config/pel_consumer")
run("compile consumer with pkg-config flags" _ "${C_COMPILER}" ${extra} "${CONSUMER_DIR}/consumer.c" -o "${exe}" ${flags})
set(ENV{LD_LIBRARY_PATH} "${libdir}")
run("run consumer (pkg-config)" out "${exe}")
message("${out}")
