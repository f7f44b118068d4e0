# Installs the build into a folder of its own, moves that away, and builds and runs a program with what pkg-config says
# of it, and nothing else. Run by ctest, with BUILD, CONFIG, LIBDIR, VERSION and COMPILER set.

cmake_minimum_required(VERSION 3.25)

set(work "${BUILD}/PkgConfigTest")
set(prefix "${work}/moved")
file(REMOVE_RECURSE "${work}")

function(run_step)
    execute_process(
        COMMAND ${ARGN}
        OUTPUT_VARIABLE output
        ERROR_VARIABLE output
        RESULT_VARIABLE result
        OUTPUT_STRIP_TRAILING_WHITESPACE
    )
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nended with ${result}:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

run_step("${CMAKE_COMMAND}" --install "${BUILD}" --config "${CONFIG}" --prefix "${work}/installed")
file(RENAME "${work}/installed" "${prefix}")

set(pkgConfig "${CMAKE_COMMAND}" -E env "PKG_CONFIG_PATH=${prefix}/${LIBDIR}/pkgconfig" pkg-config)
run_step(${pkgConfig} --modversion FrameworkDataContainers)
if(NOT output STREQUAL VERSION)
    message(FATAL_ERROR "pkg-config --modversion printed '${output}', expected ${VERSION}")
endif()

run_step(${pkgConfig} --cflags --libs FrameworkDataContainers)
message(STATUS "${output}")
if(NOT output MATCHES "${prefix}/" OR output MATCHES "${work}/installed|-lx(erces|alan)-c")
    message(FATAL_ERROR "expected the folders of ${prefix}, and no library that programs need not link")
endif()

separate_arguments(flags UNIX_COMMAND "${output}")
run_step("${COMPILER}" -std=c++20 "${CMAKE_CURRENT_LIST_DIR}/Consumer.cpp" -o "${work}/Consumer" ${flags})
run_step(
    "${CMAKE_COMMAND}" -E env "LD_LIBRARY_PATH=${prefix}/${LIBDIR}"
    "${work}/Consumer" "${CMAKE_CURRENT_LIST_DIR}/LoadConfig.xml"
)
message(STATUS "${output}")
