# Build settings shared by every target of the project.

# A host project that takes us in by add_subdirectory keeps its own choices.
if(PROJECT_IS_TOP_LEVEL)
    get_property(multiConfig GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
    if(NOT multiConfig AND NOT CMAKE_BUILD_TYPE)
        set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
    endif()

    find_program(FRAMEWORK_CCACHE ccache)
    mark_as_advanced(FRAMEWORK_CCACHE)
    if(FRAMEWORK_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
        set(CMAKE_CXX_COMPILER_LAUNCHER "${FRAMEWORK_CCACHE}")
    endif()
endif()

set(FRAMEWORK_SANITIZE_FLAGS "")
if(FRAMEWORK_SANITIZE)
    set(FRAMEWORK_SANITIZE_FLAGS
        "-fsanitize=${FRAMEWORK_SANITIZE}" -fno-sanitize-recover=all -fno-omit-frame-pointer
    )
    add_compile_options(${FRAMEWORK_SANITIZE_FLAGS})
    add_link_options(${FRAMEWORK_SANITIZE_FLAGS})
endif()

if(FRAMEWORK_BUILD_FUZZERS)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "libFuzzer comes with clang: configure with the preset \"fuzz\"")
    endif()
    # What the fuzzer steers by is counted in all code; only the targets themselves link its main function.
    add_compile_options(-fsanitize=fuzzer-no-link)
    add_link_options(-fsanitize=fuzzer-no-link)
endif()

# Language level, visibility and warnings for a target with sources of ours.
function(framework_target_settings target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(
        ${target}
        PROPERTIES
            CXX_EXTENSIONS OFF
            CXX_VISIBILITY_PRESET hidden
            VISIBILITY_INLINES_HIDDEN ON
            COMPILE_WARNING_AS_ERROR ${PROJECT_IS_TOP_LEVEL}
    )
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # At -O3 GCC 12 sees overlapping copies in every "text" + std::string.
        target_compile_options(${target} PRIVATE -Wno-restrict)
    endif()
    if(FRAMEWORK_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # The instrumentation makes GCC see uninitialised reads that are not there.
        target_compile_options(${target} PRIVATE -Wno-maybe-uninitialized)
    endif()
endfunction()

# The sources below a folder; a new file is picked up by the next build.
function(framework_collect_sources result folder)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${folder}/*.cpp")
    set(${result} "${sources}" PARENT_SCOPE)
endfunction()
