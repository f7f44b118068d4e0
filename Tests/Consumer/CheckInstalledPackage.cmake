# Installs the build into a folder of its own and uses it as a stranger would: builds and runs a program against the
# package, and runs the installed tool; then moves it away, and builds and runs a program with what pkg-config says of
# it, and nothing else. Run by ctest, with BUILD, CONFIG, LIBDIR, BINDIR, VERSION, GENERATOR, COMPILER and READELF set.

cmake_minimum_required(VERSION 3.25)

set(work "${BUILD}/ConsumerTest")
set(prefix "${work}/prefix")
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

run_step("${CMAKE_COMMAND}" --install "${BUILD}" --config "${CONFIG}" --prefix "${prefix}")

run_step(
    "${CMAKE_COMMAND}" -S "${CMAKE_CURRENT_LIST_DIR}" -B "${work}/build" -G "${GENERATOR}"
    "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Werror"
)
file(STRINGS "${work}/build/CMakeCache.txt" packageFolder REGEX "^FrameworkDataContainers_DIR:")
if(NOT packageFolder MATCHES "=${prefix}/")
    message(FATAL_ERROR "another installed package was found: ${packageFolder}")
endif()
run_step("${CMAKE_COMMAND}" --build "${work}/build")
run_step("${work}/build/Consumer" "${CMAKE_CURRENT_LIST_DIR}/LoadConfig.xml")
message(STATUS "${output}")
run_step("${work}/build/FindValues" find Device "${CMAKE_CURRENT_LIST_DIR}/LoadConfig.xml")
if(NOT output MATCHES "LoadConfig.xml: ThreadChildList\\[UniqueName=Devices\\]/UniqueName  ThreadChildListType  \"Devices\"")
    message(FATAL_ERROR "FindValues printed '${output}'")
endif()

set(library "${prefix}/${LIBDIR}/libFrameworkDataContainers.so")
run_step("${READELF}" -d "${library}")
if(NOT output MATCHES "SONAME[^\n]*\\[libFrameworkDataContainers\\.so\\.1\\]")
    message(FATAL_ERROR "${library} has another SONAME:\n${output}")
endif()

run_step("${prefix}/${BINDIR}/lanedoc" --version)
string(FIND "${output}" "${VERSION}" place)
if(place EQUAL -1)
    message(FATAL_ERROR "lanedoc --version printed '${output}', expected ${VERSION} in it")
endif()

set(moved "${work}/moved")
file(RENAME "${prefix}" "${moved}")
set(pkgConfig "${CMAKE_COMMAND}" -E env "PKG_CONFIG_PATH=${moved}/${LIBDIR}/pkgconfig" pkg-config)
run_step(${pkgConfig} --modversion FrameworkDataContainers)
if(NOT output STREQUAL VERSION)
    message(FATAL_ERROR "pkg-config --modversion printed '${output}', expected ${VERSION}")
endif()

run_step(${pkgConfig} --cflags --libs FrameworkDataContainers)
message(STATUS "${output}")
if(NOT output MATCHES "${moved}/" OR output MATCHES "${prefix}|-lx(erces|alan)-c")
    message(FATAL_ERROR "expected the folders of ${moved}, and no library that programs need not link")
endif()

separate_arguments(flags UNIX_COMMAND "${output}")
run_step("${COMPILER}" -std=c++20 "${CMAKE_CURRENT_LIST_DIR}/Consumer.cpp" -o "${work}/Consumer" ${flags})
run_step(
    "${CMAKE_COMMAND}" -E env "LD_LIBRARY_PATH=${moved}/${LIBDIR}"
    "${work}/Consumer" "${CMAKE_CURRENT_LIST_DIR}/LoadConfig.xml"
)
message(STATUS "${output}")
